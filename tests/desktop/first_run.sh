#!/bin/bash
# Goes from the splash window to two charts and out again with real clicks and keys.
. "$(dirname "$0")/steps.sh"

begin skerrand
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
[ "$(green "$chart")" -gt 100 ] || fail "no runway on the chart"
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
await_end "$program" "CLOSE_PROGRAM did not end the program"
