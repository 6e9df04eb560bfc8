# A user's hand and eye on an X screen of their own, for scripts that source it. It starts the script
# anew on such a screen with a window manager. The script sets `bin`, the folder of the programs, and
# `pictures`, a folder, before it calls anything here.
step=0
id=
begun=()

if [ -z "${ON_OWN_SCREEN:-}" ]; then
    unset QT_QPA_PLATFORM QT_SCALE_FACTOR DISPLAY WAYLAND_DISPLAY
    ON_OWN_SCREEN=yes exec xvfb-run --auto-servernum \
        --server-args="-screen 0 1280x1024x24 -dpi 96" "$0" "$@"
fi

# Ends the script with a picture of the screen.
fail() {
    echo "FAILED: $1; $pictures/failure.png shows the screen" >&2
    import -silent -window root "$pictures/failure.png"
    exit 1
}

# A picture of the window at hand, with its frame.
picture() {
    step=$((step + 1))
    sleep 0.5 # let it finish painting
    # Without its window the camera would wait for a click on another one.
    timeout 10 import -silent -window "$id" -frame \
        "$(printf '%s/%02d-%s.png' "$pictures" $step "$1")" || fail "no window for \"$1\""
}

# Waits up to 30 seconds for a condition.
wait_for() {
    local tries
    for tries in $(seq 150); do
        "${@:2}" > /dev/null 2>&1 && return
        sleep 0.2
    done
    fail "$1"
}

# begin PROGRAM [ARGUMENTS]: starts it and sets `program` to its process.
begin() {
    env --default-signal=INT "$bin/$1" "${@:2}" & # which a script lets its children ignore
    program=$!
    begun+=($program)
}

clean_up() {
    kill "${begun[@]}" 2> /dev/null
    rm -rf "$XDG_RUNTIME_DIR"
}

# Apart from the simulators that others run; in a place of a short name, for the sockets' sake.
XDG_RUNTIME_DIR=$(mktemp -d) || exit 1
export XDG_RUNTIME_DIR
trap clean_up EXIT
openbox --sm-disable > /dev/null 2>&1 &
begun+=($!)
wait_for "the window manager does not start" xdotool get_num_desktops

shown() { xdotool search --onlyvisible --name "^$1\$" 2> /dev/null; }

# Sets `id` to the window of that title, a regular expression.
window() {
    wait_for "no window \"$1\"" shown "$1"
    id=$(shown "$1" | tail -1)
    sleep 0.4
}

# click LEFT TOP [TIMES]: at a point inside the window, in 96ths of an inch.
click() {
    xdotool mousemove --window "$id" $(($1 * ${DPI:-96} / 96)) $(($2 * ${DPI:-96} / 96))
    sleep 0.1
    xdotool click --delay 120 --repeat "${3:-1}" 1
    sleep 0.4
}

# Each is held for 80 ms, as by a quick finger.
keys() {
    xdotool key --delay 160 "$@"
    sleep 0.4
}

# Takes a picture of the message box and closes it.
answer() {
    window 'Skerrand Message'
    picture "$1"
    keys Return
    wait_for "the message \"$1\" stays" eval '! shown "Skerrand Message" | grep -qx "$id"'
}

# choose DEPARTURE DESTINATION: finds both by parts of their names, beginning where the focus is, and
# goes on to the chart.
choose() {
    local name
    window 'Choosing an airport'
    sleep 2.5
    for name in "$@"; do
        keys ctrl+a
        xdotool type --delay 40 "$name"
        sleep 0.6
        keys Down Return Tab
    done
    picture choice
    click 155 240
}

# menu LEFT ROW: the entry of that number in the menu at that place of the chart's menu bar.
menu() {
    local row
    click "$1" 12
    for row in $(seq "$2"); do keys Down; done
    keys Return
}
