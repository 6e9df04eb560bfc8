# Shared by the tests with real clicks and keys, which source it with their arguments:
#   NAME.sh BIN FOLDER
# BIN is the folder of the programs. The test runs in FOLDER, on a screen of its own, and leaves a
# picture of each step in FOLDER/pictures.
set -u
bin=$1
folder=$2
pictures=$folder/pictures
step=0
id=
begun=()

if [ "${3:-}" != "on-screen" ]; then
    unset QT_QPA_PLATFORM QT_SCALE_FACTOR WAYLAND_DISPLAY
    exec xvfb-run -a -s "-screen 0 1280x1024x24" "$0" "$bin" "$folder" on-screen
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

# Waits for the program to end by itself, as it should.
await_end() {
    wait_for "$2" test ! -e "/proc/$1"
    wait "$1" || fail "exit status $?"
}

# How many pixels of a window are as green as runways and the aircraft.
green() { import -window "$1" -depth 8 txt:- | grep -c '#00C000'; }

# Starts a program and sets `program` to its process.
begin() {
    "$bin/$1" "${@:2}" &
    program=$!
    begun+=($program)
}

clean_up() {
    kill "${begun[@]}" 2> /dev/null
    rm -rf "$XDG_RUNTIME_DIR"
}

rm -rf "$folder"
mkdir -p "$pictures"
cd "$folder" || exit 1
# Apart from the simulators that others run; in a place of a short name, for the sockets' sake.
XDG_RUNTIME_DIR=$(mktemp -d) || exit 1
export XDG_RUNTIME_DIR
trap clean_up EXIT
"$bin/make_world" "$folder/fs2002" || fail "no world"
