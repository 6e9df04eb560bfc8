#!/bin/bash
# A first and a second run of the program with real clicks and keys:
#   two_runs.sh BIN FOLDER
# BIN is the folder of the programs. It runs in FOLDER, on a screen and with a printer of its own, and
# leaves pictures in FOLDER/pictures. The status is 77 where there can be no such screen or printer.
set -u
bin=$1
folder=$2
pictures=$folder/pictures
scripts=$(dirname "$(readlink -f "$0")")/../../scripts
type xvfb-run xdotool import > /dev/null || exit 77
. "$scripts/hand.sh"
. "$scripts/cups.sh"
can_print || exit 77
begin_printing || fail "no printing service"
trap 'clean_up; end_printing' EXIT

# How many pixels of a window have that colour.
pixels() { import -window "$1" -depth 8 txt:- | grep -c "#$2"; }
green=00C000 # as runways and the aircraft are

# Under Wine a signal is none that the program sees.
close_active() {
    keys alt+F4
    [ ! -e "/proc/$program/exe" ]
}

# Ends the program by a signal, as the closing of its windows would, and waits for that.
end_by() {
    if [ -n "${UNDER_WINE:-}" ]; then
        wait_for "its closed windows do not end the program" close_active
    else
        kill "-$1" $program
        wait_for "SIG$1 does not end the program" test ! -e "/proc/$program/exe"
    fi
    wait $program || fail "exit status $? after SIG$1"
}

rm -rf "$folder"
mkdir -p "$pictures"
cd "$folder" || exit 1
# The list of folders begins here; under Wine it does so by itself.
[ "${3:-}" = on-screen ] || { export HOME=$folder; unset WINEPREFIX; }
"$bin/make_world" "$folder/fs2002" || fail "no world"

# The first one leads from the splash window to the flight of a stand-in simulator that is slow to
# answer, and when that was killed in mid-flight over another chart, printed without a printer, out.
if [ -z "${UNDER_WINE:-}" ]; then
    env -u DISPLAY "$bin/skerrand" 2> no_display.txt
    [ $? -eq 1 ] && [ "$(wc -l < no_display.txt)" -eq 1 ] || fail "no plain line without a display"
fi

begin skerrand
window Settings
touch skerrand_config.cfg # which the window's closing takes away again
end_by INT
[ ! -e skerrand_config.cfg ] || fail "a setup that was not finished leaves settings"

# So far that it does not land before the test ends, on a slow machine either.
begin skerrand-simulator --wait --departure KSEA --destination EGLL --speed-up 10 --answer-late 100 > flight.txt
simulator=$program
# A desktop that opens by one click what others open by two.
export XDG_CURRENT_DESKTOP=KDE KDE_FULL_SESSION=true KDE_SESSION_VERSION=5
CUPS_SERVER=$folder/none begin skerrand # without a printer
window Settings
click 60 206 2 # into fs2002
click 200 370
answer settings-written
answer scan-begins
answer scan-ends
wait_for "the simulator does not stand" grep minutes flight.txt
choose seattle heathrow
window 'KSEA Chart'
sleep 1.2
menu 20 1 # and once more, by a link of its own
choose seattle heathrow
window 'KSEA Chart'
chart=$id
! shown 'Skerrand Message' > /dev/null || fail "the chart does not find the simulator"
# To zoom 29, where the view spans 0.7 degrees of longitude and no runway is drawn.
click 15 113 20
sleep 1.5
[ "$(pixels "$chart" $green)" -gt 20 ] || fail "no aircraft on the chart"
kill -KILL $simulator
answer link-lost
id=$chart
wait_for "the aircraft stays on the chart" eval '[ "$(pixels "$chart" $green)" -eq 0 ]'

menu 60 2
window 'EGLL Chart'
click 15 113 10
wait_for "no runway on the chart" eval '[ "$(pixels "$chart" $green)" -gt 100 ]'
menu 20 2
answer not-on-paper
xdotool windowactivate --sync "$chart"
window 'EGLL Chart'
menu 20 1
window 'Choosing an airport'
end_by HUP

# The second one goes through the menus of the chart: keys pressed in another window, the dialogs, a
# print.
begin skerrand
choose seattle heathrow
answer no-simulator
window 'KSEA Chart'
departure=$id

# Another program of the user's has the focus.
mkdir elsewhere
(cd elsewhere && exec "$bin/skerrand") &
begun+=($!)
window Settings
xdotool windowfocus --sync "$id"
keys 2
window 'EGLL Chart'
keys 1
window 'KSEA Chart'
zoomed() { keys KP_Add && [ "$(pixels "$id" $green)" -gt 100 ]; }
wait_for "the keys do not zoom" zoomed
farther() { xdotool mousemove --window "$id" 150 150 click 5 && [ "$(pixels "$id" $green)" -lt 100 ]; }
wait_for "the wheel does not zoom" farther
# On a French keyboard the key of the Q is the one of the A.
setxkbmap fr
paused() { keys 24 && [ "$(pixels "$id" C00000)" -gt 20 ]; }
wait_for "another layout of the keyboard is not seen" paused
setxkbmap us

menu 100 2
window 'Keyboard assigments'
# The head of its frame, not its client area, is in the corner of the screen.
framed() { ! import -window root -crop 2x2+4+4 -depth 8 txt:- | grep -qE '#(000000|D4D0C8)'; }
wait_for "the dialog is not in the corner" framed
click 100 110 2
window 'Change key assigment'
keys F5 Tab
click 228 60 # "Try Again"
keys space   # which must not press it once more
click 140 100
window 'Keyboard assigments'
click 236 208
saved() { [ "$(tail -c 12 skerrand_config.cfg | od -An -td4 -N 4)" -eq 32 ]; }
wait_for "the space bar is not in the settings" saved

id=$departure
menu 20 2
await_jobs || fail "no page"
pdftotext "$printed" - | grep -q 'Seattle Tacoma Intl *(KSEA)' || fail "no title on the page"
pdfinfo "$printed" | grep -q '^Title: *KSEA Chart$' || fail "the page bears another name"
wait_for "the chart is not minimised" eval '! shown "KSEA Chart"'
sleep 2.5
! shown 'KSEA Chart' > /dev/null || fail "a tick brings the minimised chart back"
keys 2
wait_for "the chart does not go on" xdotool search --name '^EGLL Chart$'

xdotool windowactivate --sync "$id"
window 'EGLL Chart'
menu 60 3
window 'Skerrand Message'
end_by TERM
