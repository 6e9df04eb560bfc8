#!/bin/bash
# Flies the aircraft of a stand-in simulator that is slow to answer over a chart, kills the simulator
# in mid-flight, and prints without a printer.
. "$(dirname "$0")/steps.sh"

set_up

# So far that it does not land before the test ends, on a slow machine either.
begin skerrand-simulator --departure KSEA --destination EGLL --speed-up 10 --answer-late 100 > flight.txt
simulator=$program
wait_for "the simulator does not stand" grep minutes flight.txt
export CUPS_SERVER=$folder/none # no printer
begin skerrand
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
menu 20 2
answer not-on-paper
end_by TERM
