#!/bin/bash
# Goes with real clicks and keys from the splash window to the flight of a stand-in simulator that is
# slow to answer, kills the simulator in mid-flight, and leads over another chart, printed without a
# printer, out again.
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

# So far that it does not land before the test ends, on a slow machine either.
begin skerrand-simulator --wait --departure KSEA --destination EGLL --speed-up 10 --answer-late 100 > flight.txt
simulator=$program
export CUPS_SERVER=$folder/none # no printer
# A desktop that opens by one click what others open by two.
export XDG_CURRENT_DESKTOP=KDE KDE_FULL_SESSION=true KDE_SESSION_VERSION=5
begin skerrand
window Settings
click 60 206 2 # into fs2002
click 200 370
answer settings-written
answer scan-begins
answer scan-ends
wait_for "the simulator does not stand" grep minutes flight.txt
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
sleep 2.5
click 280 240
wait_for "CLOSE_PROGRAM did not end the program" test ! -e "/proc/$program/exe"
wait $program || fail "exit status $?"
