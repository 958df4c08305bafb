#!/bin/sh
# Runs a Windows program under Wine: run-wine.sh PROGRAM.exe [ARGUMENT...]
# The prefix is made on first use and a server is kept running, so that later programs start at once.
# WINE_MANAGED=Y makes a prefix whose windows belong to the desktop's window manager; otherwise they belong to none.
: "${WINEPREFIX:=$HOME/.cache/calctol-wine}" "${WINEDEBUG:=-all}" "${WINEDLLOVERRIDES:=mscoree,mshtml=}"
# A program with CALCTOL_DISPLAY=second goes to the display SECOND_DISPLAY, when there is one, in a prefix of its own.
if [ "${CALCTOL_DISPLAY-}" = second ] && [ -n "${SECOND_DISPLAY-}" ]; then
    DISPLAY=$SECOND_DISPLAY WINEPREFIX=$WINEPREFIX-second
    export DISPLAY
fi
export WINEPREFIX WINEDEBUG WINEDLLOVERRIDES
mkdir -p "$WINEPREFIX" || exit
(
    flock 8 # one warm-up at a time; 8>&-: the server must not inherit the lock
    if wineserver -p 8>&- || ! [ -e "$WINEPREFIX/.ready" ]; then
        if ! [ -e "$WINEPREFIX/.ready" ]; then
            # The package fonts-wine has the fonts that dialogs are measured in, but Wine looks for them in the prefix.
            fonts=$WINEPREFIX/drive_c/windows/Fonts
            mkdir -p "$fonts" && cp /usr/share/wine/fonts/* "$fonts"
        fi
        wine wineboot 8>&- # starts the services without our standard streams, else a pipe behind us never ends
        if ! [ -e "$WINEPREFIX/.ready" ]; then
            # Managed=N: without a window manager every hidden top-level window would block for two seconds.
            wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d "${WINE_MANAGED:-N}" /f 8>&-
            # A crash ends the program with an exit code instead of a debugger window that waits for ever.
            wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f 8>&-
            wine winecfg -v win10 8>&-
            : >"$WINEPREFIX/.ready"
        fi
    fi
) 8>"$WINEPREFIX.lock" </dev/null >/dev/null 2>&1
exec wine "$@"
