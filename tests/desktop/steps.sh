# Shared by the tests with real clicks and keys, which source it with their arguments:
#   NAME.sh BIN FOLDER
# BIN is the folder of the programs. The test runs in FOLDER, on a screen of its own, and leaves a
# picture of each step in FOLDER/pictures.
set -u
bin=$1
folder=$2
pictures=$folder/pictures
begun=()
scripts=$(dirname "$(readlink -f "$0")")/../../scripts
. "$scripts/hand.sh"

if [ "${3:-}" != "on-screen" ]; then
    unset QT_QPA_PLATFORM QT_SCALE_FACTOR WAYLAND_DISPLAY
    exec xvfb-run -a -s "-screen 0 1280x1024x24" "$0" "$bin" "$folder" on-screen
fi

fail() {
    echo "FAILED: $1" >&2
    import -window root "$pictures/failure.png"
    exit 1
}

# How many pixels of a window have that colour.
pixels() { import -window "$1" -depth 8 txt:- | grep -c "#$2"; }
green=00C000 # as runways and the aircraft are

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

# Sets the program up for the world, as a run before would have left it.
set_up() {
    "$bin/skerrand-headless" > setup.txt << END
advance 3000
folder Form2.Dir1 $folder/fs2002
click Form2.Command1
advance 5000
END
    [ -s all_fs_airports.dat ] || fail "no database"
}

# Picks two airports and goes on to the chart.
choose() {
    window 'Choosing an airport'
    sleep 2.5
    pick 50 seattle
    pick 82 heathrow
    click 155 240
}

# Goes from the chart back to the lists, and ends the program there.
close_program() {
    menu 20 1
    window 'Choosing an airport'
    sleep 2.5
    click 280 240
    wait_for "CLOSE_PROGRAM did not end the program" test ! -e "/proc/$program"
    wait "$program" || fail "exit status $?"
}
