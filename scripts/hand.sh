# A user's hand and eye on an X screen, for scripts that source it. They set `pictures`, a folder,
# and define `fail MESSAGE`, which ends the script.
step=0
id=

# A picture of the whole screen.
picture() {
    step=$((step + 1))
    import -silent -window root "$(printf '%s/%02d-%s.png' "$pictures" $step "$1")"
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

shown() { xdotool search --onlyvisible --name "^$1\$" 2> /dev/null; }

# Sets `id` to the window of that title, a regular expression.
window() {
    wait_for "no window \"$1\"" shown "$1"
    id=$(shown "$1" | tail -1)
    sleep 0.4
}

# click LEFT TOP [TIMES]: at a point inside the window, in pixels.
click() {
    xdotool mousemove --window "$id" "$1" "$2"
    sleep 0.1
    xdotool click --delay 120 --repeat "${3:-1}" 1
    sleep 0.4
}

keys() {
    xdotool key --delay 60 "$@"
    sleep 0.4
}

# Takes a picture of the message box and closes it.
answer() {
    window 'Skerrand Message'
    picture "$1"
    xdotool mousemove --window "$id" 20 5
    keys Return
    wait_for "the message \"$1\" stays" eval '! shown "Skerrand Message" | grep -qx "$id"'
}

# pick TOP TEXT: finds an airport by typing a part of its name into the combo box at that height.
pick() {
    click 150 "$1"
    keys ctrl+a
    xdotool type --delay 40 "$2"
    sleep 0.6
    keys Down Return
}

# menu LEFT ROW: the entry of that number in the menu at that place of the chart's menu bar.
menu() {
    local row
    click "$1" 12
    for row in $(seq "$2"); do keys Down; done
    keys Return
}
