#!/bin/bash
# Goes from the splash window to two charts and out again with real clicks and keys.
. "$(dirname "$0")/steps.sh"

if [ -z "${UNDER_WINE:-}" ]; then
    env -u DISPLAY "$bin/skerrand" 2> no_display.txt
    [ $? -eq 1 ] && [ "$(wc -l < no_display.txt)" -eq 1 ] || fail "no plain line without a display"
fi

for signal in HUP INT; do
    begin skerrand
    window Settings
    touch skerrand_config.cfg # which the window's closing takes away again
    end_by $signal
    [ ! -e skerrand_config.cfg ] || fail "a setup that was not finished leaves settings"
done

# A desktop that opens by one click what others open by two.
export XDG_CURRENT_DESKTOP=KDE KDE_FULL_SESSION=true KDE_SESSION_VERSION=5
begin skerrand
window Settings
click 60 193  # into the list of folders
keys f Return # down into fs2002
click 200 370
answer settings-written
answer scan-begins
answer scan-ends
choose seattle heathrow
answer no-simulator

window 'KSEA Chart'
sleep 1.2
click 15 113 30
sleep 1.2
[ "$(pixels "$id" $green)" -gt 100 ] || fail "no runway on the chart"
menu 60 2
window 'EGLL Chart'

menu 20 1
window 'Choosing an airport'
sleep 2.5
click 280 240
wait_for "CLOSE_PROGRAM did not end the program" test ! -e "/proc/$program/exe"
wait $program || fail "exit status $?"
