# Shared by the tests with real clicks and keys, which source it with their arguments:
#   NAME.sh BIN FOLDER
# BIN is the folder of the programs. The test runs in FOLDER, on a screen of its own, and leaves
# pictures in FOLDER/pictures.
set -u
bin=$1
folder=$2
pictures=$folder/pictures
scripts=$(dirname "$(readlink -f "$0")")/../../scripts
for tool in xvfb-run xdotool import; do
    command -v $tool > /dev/null || { echo "$tool is not installed"; exit 77; }
done
. "$scripts/hand.sh"

# How many pixels of a window have that colour.
pixels() { import -window "$1" -depth 8 txt:- | grep -c "#$2"; }
green=00C000 # as runways and the aircraft are

# Under Wine a signal is none that the program sees.
close_active() {
    keys alt+F4
    [ ! -e "/proc/$program/exe" ]
}

# Ends the program by a signal, as the closing of its windows would, and waits for that.
end_by() {
    if [ -n "${UNDER_WINE:-}" ]; then
        wait_for "its closed windows do not end the program" close_active
    else
        kill "-$1" $program
        wait_for "SIG$1 does not end the program" test ! -e "/proc/$program/exe"
    fi
    wait $program || fail "exit status $? after SIG$1"
}

rm -rf "$folder"
mkdir -p "$pictures"
cd "$folder" || exit 1
# The list of folders begins here; under Wine it does so by itself.
[ "${3:-}" = on-screen ] || { export HOME=$folder; unset WINEPREFIX; }
"$bin/make_world" "$folder/fs2002" || fail "no world"

# Sets the program up for the world, as a run before would have left it.
set_up() {
    "$bin/skerrand-headless" > setup.txt << END
advance 3000
folder Form2.Dir1 $folder/fs2002
click Form2.Command1
advance 5000
END
    [ -s all_fs_airports.dat ] || fail "no database"
}
