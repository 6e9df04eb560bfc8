#!/bin/bash
# same_bytes.sh LINUX WINDOWS: the programs of both folders make the demonstration world, read it,
# and draw and print the charts of all its airports. Each byte has to be the same, but for the way
# to the world in the files that name it.
set -euo pipefail
export LC_ALL=C
linux=$1 windows=$2 scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"

printf '%s\n' 'advance 3000' 'folder Form2.Dir1 ../world' 'click Form2.Command1' 'advance 20000' \
    'items Form3.Combo1' > commands
for ((i = 0; i < 26; i += 2)); do
    printf '%s\n' "pick Form3.Combo1 $i" "pick Form3.Combo2 $((i + 1))" 'click Form3.Command3' \
        'advance 1000' "svg Form4 $i.svg"
    for chart in dp_airpt_chrt dst_airpt_chrt; do
        echo "click Form4.$chart"
        for _ in {1..25}; do echo 'click Form4.Command2'; done
        printf '%s\n' 'advance 1000' 'picture Form4' 'click Form4.print_cht1' messages
    done
    printf '%s\n' "page $((i + 1))" "page $((i + 2))" "svg page $((i + 2)) page$i.svg" \
        'click Form4.load_airpts_lst' 'advance 1000'
done >> commands

for programs in linux windows; do
    mkdir run
    (
        cd run
        "${!programs}/make_world" ../world < /dev/null
        "${!programs}/skerrand-headless" < ../commands > answers
        # A path is a length of two bytes and the text.
        sed -Ei "s/.\x00(z:)?${scratch//\//[/\\\\]}.world/WORLD/Ig" *.cfg *.lst
    )
    mkdir "$programs"
    mv run world "$programs"
done
# Charts and paths are there to be compared.
[ "$(grep -c '^text' linux/run/answers)" -gt 200 ] && grep -q WORLD linux/run/*.lst || exit 1
diff -r linux windows
