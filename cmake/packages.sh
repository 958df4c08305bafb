# Debian packages that ./run and ./test need. Read by both with `.`; needs bash.

packages_to_run=(
    cmake ninja-build python3 g++-mingw-w64-x86-64-posix # the build for Windows
    googletest nlohmann-json3-dev libcli11-dev           # libraries, as sources
    wine wine64 fonts-wine                               # fonts-wine: dialogs keep the sizes they have under Windows
    xvfb x11-utils                                       # a display where there is none
)
packages_to_test=(
    "${packages_to_run[@]}"
    g++
    clang libclang-rt-dev     # the fuzzing engine
    locales                   # a locale with a decimal comma is made from it
    clang-format clang-tidy
)

# install_missing PACKAGE...: installs those that are not there yet, fails with a message when it can't.
install_missing() {
    local package missing=() installer=(env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=120)
    if ! command -v dpkg-query >/dev/null; then
        echo "This is not a Debian system. Needed are the programs of these Debian 12 packages: $*" >&2
        return 1
    fi
    for package; do
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0

    if [ "$(id -u)" != 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "Missing packages: ${missing[*]}. Neither root nor sudo is at hand to install them." >&2
            return 1
        fi
        installer=(sudo "${installer[@]}")
    fi
    echo "Installing ${missing[*]} ..."
    local report
    report=$(mktemp)
    if ! { "${installer[@]}" update && "${installer[@]}" install --no-install-recommends "${missing[@]}"; } >"$report" 2>&1
    then
        tail -n 20 "$report" >&2
        rm -f "$report"
        echo "Missing packages: ${missing[*]}. They could not be installed; apt-get's own words stand above." >&2
        return 1
    fi
    rm -f "$report"
}
