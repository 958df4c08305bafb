# A display for windows. Read by ./run and ./test with `.`; needs bash.

# has_display: is there a display that answers?
has_display() {
    [ -n "${DISPLAY:-}" ] && timeout 10 xdpyinfo >/dev/null 2>&1
}

virtual_displays=() # process and name of each, like 1234:56

# start_virtual_display: starts one of the caller's own, which becomes DISPLAY; stop_virtual_displays ends them all.
start_virtual_display() {
    local number process
    number=$(mktemp)
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$number" >/dev/null 2>&1 &
    process=$!
    for _ in {1..100}; do # ten seconds
        if [ -s "$number" ]; then
            DISPLAY=:$(<"$number")
            export DISPLAY
            unset XAUTHORITY
            rm -f "$number"
            virtual_displays+=("$process$DISPLAY")
            return 0
        fi
        kill -0 "$process" 2>/dev/null || break
        sleep 0.1
    done
    rm -f "$number"
    kill "$process" 2>/dev/null
    echo "There is no display, and the virtual one (Xvfb) does not start." >&2
    return 1
}

stop_virtual_displays() {
    local display environment
    for display in "${virtual_displays[@]}"; do
        for environment in /proc/[0-9]*/environ; do # Wine's desktop on it goes first, else it complains that it was left
            if grep -sqzx "DISPLAY=:${display#*:}" "$environment" && grep -sqx explorer.exe "${environment%environ}comm"; then
                kill "$(basename "${environment%/environ}")" 2>/dev/null
            fi
        done
        kill "${display%:*}" 2>/dev/null
    done
    virtual_displays=()
}
