#!/bin/bash
# Goes through the menus of the chart: keys pressed in another window, the dialogs, a print.
. "$(dirname "$0")/steps.sh"
. "$scripts/cups.sh"
can_print || exit 77
begin_printing || fail "no printing service"
trap 'clean_up; end_printing' EXIT

set_up

begin skerrand
choose seattle heathrow
answer no-simulator
window 'KSEA Chart'
departure=$id

# Another program of the user's has the focus.
mkdir elsewhere
(cd elsewhere && exec "$bin/skerrand") &
other=$!
begun+=($other)
window Settings
xdotool windowfocus --sync "$id"
keys 2
window 'EGLL Chart'
[ "$id" = "$departure" ] || fail "another window has taken the chart's place"
keys 1
window 'KSEA Chart'
zoomed() { keys KP_Add && [ "$(pixels "$id" $green)" -gt 100 ]; }
wait_for "the keys do not zoom" zoomed
# On a French keyboard the key of the Q is the one of the A.
setxkbmap fr
keys 24
paused() { [ "$(pixels "$id" C00000)" -gt 20 ]; }
wait_for "another layout of the keyboard is not seen" paused
setxkbmap us

menu 100 2
window 'Keyboard assigments'
# The head of its frame, not its client area, is in the corner of the screen.
framed() { ! import -window root -crop 2x2+4+4 -depth 8 txt:- | grep -qE '#(000000|D4D0C8)'; }
wait_for "the dialog is not in the corner" framed
xdotool mousemove --window "$id" 100 110 click --repeat 2 --delay 80 1
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
