#!/usr/bin/env bash
# make_world.sh PROGRAM: command lines and folders that make_world has to take or refuse.
set -euo pipefail
program=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"

# expect STATUS WORD ARGUMENT...: the program answers with both.
expect() {
    local answered=0 answer
    answer=$("$program" "${@:3}" 2>&1) || answered=$?
    [[ $answered == "$1" && $answer == *"$2"* ]] || { echo "$*: $answered, $answer"; exit 1; }
}

expect 2 "more than one" a b
expect 2 "unknown option --size" a --size
expect 2 "needs a value" a --airports
for count in -1 456977 9x ""; do expect 2 "takes a number" a --airports "$count"; done
expect 1 "--data tells" a --data nowhere
expect 0 "Usage" --help
# Another world takes the place of the first; the same one comes out the same.
for world in one two; do expect 0 "" $world --airports 3; done
expect 0 "" one
expect 0 "" one --airports 3
diff -r one two
echo mine >one/letter.txt
expect 1 "letter.txt is no part" one
rm one/letter.txt
diff -r one two
rm two/made-by-make_world.txt
expect 1 "two is not empty" two
# A disk that is full, for no file may be larger than so many KiB: nothing is taken for a world.
(trap '' XFSZ && ulimit -f 0 && expect 1 "cannot write none/made-by" none)
(trap '' XFSZ && ulimit -f 20 && expect 1 "cannot write full/" full)
if [ -e full/fs2002.exe ]; then exit 1; fi
