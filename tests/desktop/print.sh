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
rm -rf "$folder"
mkdir -p "$folder" && cd "$folder" || exit 1
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

# The four edges of the frame in a viewer of that resolution, where a hairline is below a pixel.
expect_frame() {
    local part thick=$((400 * $1 / 300))
    pdftoppm -r "$1" -png -singlefile page.pdf page
    for part in ${thick}x1+0+$((5 * thick)) ${thick}x1+$((21 * thick / 4))+$((5 * thick)) \
        1x$thick+$((5 * thick / 8))+0 1x$thick+$((5 * thick / 8))+$((31 * thick / 4)); do
        white "$part" 0 99 "an edge at $1 dots to the inch"
    done
}

# The page is 2291 x 3133 dots and starts at 75, 225 of the sheet's 2479 x 3508.
expect_page() {
    local width height
    await_jobs || fail "a page is not printed"
    mv "$printed" page.pdf || fail "no page is printed"
    grep -q '^300 2291 3133 ' measures || fail "the page's size is $(cat measures)"
    pdftotext page.pdf - | grep -q 'São Paulo, Zürich, Šlapanice' || fail "a text is not legible"
    # Where the words lie, in points; a letter may be narrower than its advance.
    read -r _ _ _ width height < measures
    pdftotext -bbox page.pdf - | tr '"' ' ' | awk -v width="$width" -v height="$height" '
        />S..?o</ { left = $3; top = $5 } />Co</ { right = $7 } />2</ { next_left = $3; next_top = $5 }
        function is_near(points, dots) { return (points - dots * 72 / 300) ^ 2 < 1 }
        END { exit !(is_near(next_left, 75) && is_near(top, 225 + 0.2 * 3133) &&
                     is_near(right - left, width) && is_near(next_top - top, height)) }' ||
        fail "the text is not at its place"
    expect_frame 300
    white 110x3508+2369+0 100 100 "right of the frame"
    white 500x1+1000+1008 35 60 "the dashes"
    [ "$(convert page.png -crop 500x400+1280+410 -depth 8 txt:- | grep -c '#FF0000')" -eq 200000 ] ||
        fail "the figure is not red"
}

print_page() { timeout 20 "$bin/print_page" "$@" > measures || fail "the page is not taken"; }

# expect_sheet NAME DOTS...
expect_sheet() {
    print_page measure
    grep -q "^${*:2} " measures || fail "$1: a page of $(cat measures)"
}

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
for resolution in 60 72 96 100 150; do expect_frame $resolution; done

expect_failure lpadmin -x test
add_printer
expect_failure cupsreject test
cupsaccept test
expect_failure kill -STOP $service
kill -CONT $service
expect_failure stop_service

# Without a printer the sheet is that of the user's country, with margins of 5 mm.
LC_ALL=C expect_sheet A4 600 4724 6783
# The locale that every system has, with 279 by 216 mm in the place of 297 by 210.
mkdir us_letter
LC_ALL=C sed 's/\x29\x01\x00\x00\xd2/\x17\x01\x00\x00\xd8/' /usr/lib/locale/C.utf8/LC_PAPER > us_letter/LC_PAPER
LOCPATH=$PWD LC_PAPER=us_letter LC_ALL='' expect_sheet Letter 600 4866 6366
serve || fail "no printing service"

cupsdisable test # it takes jobs and keeps them
print_page
cupsenable test
expect_page

for option in media PageSize; do
    lpoptions -p test/$option -o $option=A5
    lpoptions -d test/$option > /dev/null
    print_page
    await_jobs || fail "a page is not printed"
    pdfinfo "$printed" | grep -q A5 || fail "the user's own paper, by $option, is not taken"
    rm -- "$printed"
done
lpadmin -p raw -E -v "file://$printed" 2> /dev/null
lpoptions -d raw > /dev/null
expect_sheet "a printer that does not tell" 600 4724 6783
