#!/bin/bash
# screen.sh SCRIPT BIN FOLDER: plays a script of tests/desktop/ with the Windows programs of BIN,
# under Wine on a screen of its own with a window manager and a default printer. BIN is handed on as
# a folder of programs that the script can start as its own.
root=$(readlink -f "$(dirname "$0")/../..")
script=$1 bin=$(readlink -f "$2") folder=$3

if [ "${4:-}" != on-screen ]; then
    # One at a time: they share a place of Wine's, and the end of one ends all that runs there.
    exec flock --close "$(dirname "$bin")/wine-screen.lock" \
        xvfb-run -a -s "-screen 0 1280x1024x24 -dpi 96" "$0" "$@" on-screen
fi

. "$root/scripts/cups.sh"
begin_printing || exit 77
# A place apart from other tests': what runs there belongs to this screen and ends with it.
export WINEPREFIX=$(dirname "$bin")/wine-screen
"$root/scripts/wine" "$bin/make_world.exe" --help > /dev/null 2>&1 < /dev/null
"$root/scripts/wine" reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /f \
    /d "${DPI:-96}" > /dev/null 2>&1 < /dev/null
wineserver -k
openbox --sm-disable > /dev/null 2>&1 &
manager=$!
programs=$(mktemp -d)
export ON_OWN_SCREEN=yes UNDER_WINE=yes cups printed
trap 'wineserver -k; kill $manager 2> /dev/null; end_printing; rm -rf "$programs"' EXIT
for program in "$bin"/*.exe; do
    name=$programs/$(basename "$program" .exe)
    printf '#!/bin/sh\nexec "%s/scripts/wine" "%s" "$@"\n' "$root" "$program" > "$name"
    chmod +x "$name"
done
# Wine's services would keep the caller's pipe open.
"$script" "$programs" "$folder" on-screen > "$programs/output" 2>&1 < /dev/null
status=$?
cat "$programs/output"
exit $status
