#!/bin/bash
# Prints pages through a printing service of its own, and takes its printer away before a page is
# sent:
#   print.sh BIN FOLDER
# BIN is the folder of the programs; the printed page is left in FOLDER. The status is 77 where such
# a service cannot run.
set -u
. "$(dirname "$0")/../../scripts/cups.sh"
bin=$1
folder=$2
can_print || exit 77
mkdir -p "$folder"
cd "$folder" || exit 1
rm -f -- *
export QT_QPA_PLATFORM=offscreen
trap end_printing EXIT

fail() {
    echo "FAILED: $1" >&2
    cat "$cups/log/error" >&2
    exit 1
}

# Whether the part WIDTHxHEIGHT+LEFT+TOP of the page has that share of white, in per cent.
white() {
    local share
    share=$(convert page.png -crop "$1" -threshold 99% -format '%[fx:100*mean]' info:)
    [ "${share%.*}" -ge "$2" ] && [ "${share%.*}" -le "$3" ] || fail "$4: $share % of $1 is white"
}

# The printer's page is 2329 dots wide and starts at 75, 150 of the sheet's 2479 x 3508.
expect_page() {
    await_jobs || fail "a page is not printed"
    mv "$printed" page.pdf || fail "no page is printed"
    pdftoppm -r 300 -png -singlefile page.pdf page
    pdftotext page.pdf - | grep -q 'São Paulo, Zürich, Šlapanice' || fail "a text is not legible"
    pdfinfo page.pdf | grep -q '^Title: *KSEA Chart$' || fail "the job has no title"
    white 75x3508+0+0 100 100 "left of the frame"
    white 1x3200+75+151 0 1 "the frame"
    white 74x3508+2405+0 100 100 "right of the frame"
    white 500x1+1000+952 35 60 "the dashes"
    [ "$(convert page.png -crop 500x400+1300+350 -depth 8 txt:- | grep -c '#FF0000')" -eq 200000 ] ||
        fail "the figure is not red"
}

print_page() { timeout 20 "$bin/print_page" || fail "the page is not taken"; }

# Does something to the printer after it is opened, and prints: that has to fail, and in time.
expect_failure() {
    coproc program { timeout 20 "$bin/print_page" wait; }
    local process=$program_PID input=${program[1]}
    read -r _ <&"${program[0]}" || fail "no printer at first"
    "$@" || fail "cannot: $*"
    echo >&"$input"
    wait $process
    local status=$?
    [ $status -eq 1 ] || fail "$*: the print gives $status"
    [ ! -s "$printed" ] || fail "$*: something is printed"
}

begin_printing || fail "no printing service"
print_page
expect_page

expect_failure lpadmin -x test
add_printer
expect_failure cupsreject test
cupsaccept test
expect_failure kill -STOP $service
kill -CONT $service
expect_failure stop_service
serve || fail "no printing service"

cupsdisable test # it takes jobs and keeps them
print_page
cupsenable test
expect_page

lpoptions -p test -o media=A5
print_page
await_jobs || fail "a page is not printed"
pdfinfo "$printed" | grep -q A5 || fail "the user's own paper is not taken"
