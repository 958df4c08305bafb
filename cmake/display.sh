# A display for windows. Read by ./run and ./test with `.`; needs bash.

# has_display: is there a display that answers?
has_display() {
    [ -n "${DISPLAY:-}" ] && timeout 10 xdpyinfo >/dev/null 2>&1
}

# start_virtual_display: starts one of the caller's own; stop_virtual_display ends it.
start_virtual_display() {
    local number
    number=$(mktemp)
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$number" >/dev/null 2>&1 &
    virtual_display=$!
    for _ in {1..100}; do # ten seconds
        if [ -s "$number" ]; then
            DISPLAY=:$(<"$number")
            export DISPLAY
            unset XAUTHORITY
            rm -f "$number"
            return 0
        fi
        kill -0 "$virtual_display" 2>/dev/null || break
        sleep 0.1
    done
    rm -f "$number"
    stop_virtual_display
    echo "There is no display, and the virtual one (Xvfb) does not start." >&2
    return 1
}

stop_virtual_display() {
    local environment
    [ -n "${virtual_display:-}" ] || return 0
    for environment in /proc/[0-9]*/environ; do # Wine's desktop on it goes first, else it complains that it was left
        if grep -sqzx "DISPLAY=$DISPLAY" "$environment" && grep -sqx explorer.exe "${environment%environ}comm"; then
            kill "$(basename "${environment%/environ}")" 2>/dev/null
        fi
    done
    kill "$virtual_display" 2>/dev/null
    virtual_display=
}
