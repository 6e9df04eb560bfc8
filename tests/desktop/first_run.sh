#!/bin/bash
# Goes from the splash window to two charts and out again with real clicks and keys.
. "$(dirname "$0")/steps.sh"

begin skerrand
sleep 1.5
picture splash

window Settings
click 200 370
answer wrong-folder
[ ! -e skerrand_config.cfg ] || fail "setup took a folder without the simulator"
window Settings
click 60 212  # the first folder of the list, below ".."
keys Return
picture folder
click 200 370
answer settings-written
[ -s skerrand_config.cfg ] || fail "setup wrote no settings"

answer scan-begins
answer scan-ends
[ -s all_fs_airports.dat ] && [ -s world_airspaces.lst ] || fail "the scan wrote no databases"
window 'Choosing an airport'
sleep 1
pick 50 seattle
pick 82 heathrow
picture picked
click 155 240
answer no-simulator

window 'KSEA Chart'
sleep 1.2
picture departure
click 15 113 30
sleep 1.2
picture zoomed-in
[ "$(green "$id")" -gt 100 ] || fail "no runway on the chart"
menu 60 2
window 'EGLL Chart'
picture destination

menu 20 1
window 'Choosing an airport'
sleep 2.5
picture second-pick
click 280 240
await_end "$program" "CLOSE_PROGRAM did not end the program"
