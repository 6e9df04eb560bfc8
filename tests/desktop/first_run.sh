#!/bin/bash
# Goes from the splash window to two charts and out again with real clicks and keys, on a screen of
# its own, and leaves a picture of each step in FOLDER/pictures:
#   first_run.sh SKERRAND MAKE_WORLD FOLDER
set -u
skerrand=$1
make_world=$2
folder=$3
pictures=$folder/pictures
step=0
id=

if [ "${4:-}" != "on-screen" ]; then
    unset QT_QPA_PLATFORM QT_SCALE_FACTOR WAYLAND_DISPLAY
    exec xvfb-run -a -s "-screen 0 1280x1024x24" "$0" "$1" "$2" "$3" on-screen
fi

fail() {
    echo "FAILED: $1" >&2
    import -window root "$pictures/failure.png"
    exit 1
}

picture() {
    step=$((step + 1))
    import -window root "$(printf '%s/%02d-%s.png' "$pictures" $step "$1")"
}

# Waits up to 30 seconds for a condition.
wait_for() {
    for _ in $(seq 150); do
        "${@:2}" > /dev/null 2>&1 && return
        sleep 0.2
    done
    fail "$1"
}

shown() { xdotool search --onlyvisible --name "$1"; }

# Sets `id` to the window of that title.
window() {
    wait_for "no window \"$1\"" shown "$1"
    id=$(shown "$1" | tail -1)
    sleep 0.4
}

# A click at a point inside a window, in pixels.
click() {
    xdotool mousemove --window "$1" "$2" "$3"
    sleep 0.1
    xdotool click 1
    sleep "${4:-0.4}"
}

keys() {
    xdotool key --delay 60 "$@"
    sleep 0.4
}

answer() {
    window '^Skerrand Message$'
    picture "$1"
    xdotool mousemove --window "$id" 20 5
    keys Return
}

# Finds an airport by typing a part of its name into the combo box at that height.
pick() {
    click "$1" 150 "$2"
    keys ctrl+a
    xdotool type --delay 40 "$3"
    sleep 0.6
    picture "typed-$3"
    keys Down Return
}

rm -rf "$folder"
mkdir -p "$pictures"
cd "$folder" || exit 1
"$make_world" "$folder/fs2002" || fail "no world"
"$skerrand" &
program=$!
trap 'kill $program 2> /dev/null' EXIT
sleep 1.5
picture splash

window '^Settings$'
setup=$id
click "$setup" 200 370
answer wrong-folder
[ ! -e skerrand_config.cfg ] || fail "setup took a folder without the simulator"
click "$setup" 60 212  # the first folder of the list, below ".."
keys Return
picture folder
click "$setup" 200 370
answer settings-written
[ -s skerrand_config.cfg ] || fail "setup wrote no settings"

answer scan-begins
answer scan-ends
[ -s all_fs_airports.dat ] && [ -s world_airspaces.lst ] || fail "the scan wrote no databases"
window '^Choosing an airport$'
sleep 1
pick "$id" 50 seattle
pick "$id" 82 heathrow
picture picked
click "$id" 155 240
answer no-simulator

window '^KSEA Chart$'
chart=$id
sleep 1.2
picture departure
for _ in $(seq 30); do click "$chart" 15 113 0.1; done
sleep 1.2
picture zoomed-in
runways=$(import -window "$chart" -depth 8 txt:- | grep -c '#00C000')
[ "$runways" -gt 100 ] || fail "no runway on the chart"
click "$chart" 60 12
picture menu
keys Down Down Return
window '^EGLL Chart$'
picture destination

click "$chart" 20 12
keys Down Return
window '^Choosing an airport$'
sleep 2.5
picture second-pick
click "$id" 280 240
wait_for "CLOSE_PROGRAM did not end the program" test ! -e "/proc/$program"
wait "$program" || fail "exit status $?"
