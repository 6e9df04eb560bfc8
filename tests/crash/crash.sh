#!/bin/bash
# Ends the program at each call that opens, writes, syncs, renames or unlinks one of its own files,
# one at a time, or fails the call with EIO and ENOSPC. After that the next start must have
# everything or build it again, with no settings lost and nothing left behind:
#   crash.sh BIN FOLDER
# BIN is the folder of the programs, FOLDER is made anew. The status is 77 where strace cannot trace.
set -u
export bin=$1 folder=$2 world=$2/world start keys

# What a user does: a start, with setup and scan where they are needed, and a look at the lists; and
# a new key besides.
start=$(printf '%s\n' 'advance 3000' "folder Form2.Dir1 $world" 'click Form2.Command1' \
    'advance 9000' 'get Form3.Text1.text' 'items Form3.Combo1' 'items Form3.Combo2')
keys=$(printf '%s\n' "$start" 'pick Form3.Combo1 13' 'pick Form3.Combo2 0' 'click Form3.Command3' \
    'click Form4.kb_assign1' 'pick Form7.List1 2' 'double_click Form7.List1' 'key 49 down' \
    'advance 1' 'click Form8.Command1' 'click Form7.Command1')

# Does a job in the working folder, under strace if options for it follow: strace looks at the own
# files alone, and stands aside (-D) so that this process becomes the one that their temporary names
# tell. The answers come without the ends of the answers.
run() (
    input=$start own=(-P "$PWD" -P .)
    [ "$1" = keys ] && input=$keys
    shift
    {
        for file in skerrand_config.cfg all_fs_airports.dat world_airspaces.lst; do
            own+=(-P "$file" -P "$PWD/$file" -P "$PWD/$file.$BASHPID.tmp")
        done
        [ $# -eq 0 ] || set -- strace -D -f -qqq -o "$PWD.trace" "${own[@]}" "$@"
        exec "$@" "$bin/skerrand-headless" <<< "$input" 2> "$PWD.err"
    } | grep -v -e '^ok$' -e '^error '
    exit "${PIPESTATUS[0]}"
)

# Whether the files are those of a finished job and no others.
files_are_whole() {
    [ "$(ls -A | tr '\n' ' ')" = 'all_fs_airports.dat skerrand_config.cfg world_airspaces.lst ' ] &&
        cmp -s all_fs_airports.dat ../whole/all_fs_airports.dat &&
        cmp -s world_airspaces.lst ../whole/world_airspaces.lst && settings_are_whole "$1"
}

# Keys may be lost with the databases alone: without those, setup begins anew.
settings_are_whole() {
    cmp -s skerrand_config.cfg "../before_$1/skerrand_config.cfg" && return
    cmp -s skerrand_config.cfg "../after_$1/skerrand_config.cfg" && return
    [ "$1" != keys ] && cmp -s skerrand_config.cfg ../whole/skerrand_config.cfg
}

# try JOB CALL NUMBER FAULT: a line with the verdict.
try() {
    local place=$1.$2.$3.${4#*=} first next
    cp -r "$folder/before_$1" "$folder/$place" && cd "$folder/$place" || exit 1
    first=$(run "$1" -e "trace=$2" -e "inject=$2:$4:when=$3")
    local status=$? fault=
    grep -q INJECTED ../"$place".trace || [ $status -eq 137 ] || fault='the call was not hit'
    [[ $first == *Done* && $first != "$(cat ../lists)" ]] && fault='Done with other lists'
    [ "$1" = keys ] && ! settings_are_whole keys && fault="${fault:-the settings are lost}"
    [ "$1 $2 $3 ${4%=*}" = 'keys fsync 1 error' ] &&
        ! cmp -s skerrand_config.cfg ../before_keys/skerrand_config.cfg && fault='not synced'
    next=$(run "${1/keys/start}")
    [ "$next" = "$(cat ../lists)" ] || fault='the next start has other lists'
    files_are_whole "$1" || fault="${fault:-the next start leaves $(ls -A | tr '\n' ' ')}"
    [ -n "$fault" ] || rm -rf "$PWD" "$PWD".*
    echo "${fault:-good}: $place"
}
export -f run try files_are_whole settings_are_whole

rm -rf "$folder"
mkdir -p "$folder"/{whole,before_setup}
"$bin/make_world" "$world" || exit 1
cd "$folder/whole" || exit 1
run setup > ../lists
[ "$(head -n 1 ../lists)" = Done ] && [ "$(wc -l < ../lists)" -gt 9 ] || exit 1
strace -o /dev/null true 2> /dev/null || exit 77
cp all_fs_airports.dat skerrand_config.cfg ../before_setup # of a setup that was given up
cp -r . ../before_keys && cd ../before_keys || exit 1
printf B | dd of=skerrand_config.cfg bs=1 seek=$(($(stat -c %s skerrand_config.cfg) - 4)) \
    conv=notrunc status=none # another key for the pause
cp -r . ../before_rebuild
truncate -s -1 ../before_rebuild/world_airspaces.lst # the databases are damaged

for job in setup rebuild keys; do
    cp -r "../before_$job" "../after_$job" && cd "../after_$job" || exit 1
    run "$job" -e trace=openat,flock,write,fsync,rename,unlink > /dev/null
    calls=$(awk '{ sub(/\(.*/, "", $2); print $2, ++number[$2] }' "$PWD.trace")
    for fault in signal=KILL error=EIO error=ENOSPC; do
        sed "s/.*/$job & $fault/" <<< "$calls" >> ../points
    done
    # Locked, so that a start meanwhile does not take the temporary file for one that was left.
    order=$(tr -d ' 0-9' <<< "$calls" | tr '\n' ' ')
    [[ ${order//flock write fsync rename openat fsync/} =~ write|fsync|rename ]] &&
        echo "not locked or not brought to the disk: $job: $order"
done > ../verdicts
xargs -P 2 -L 1 bash -c 'try "$@"' try < ../points >> ../verdicts

grep -v '^good: ' ../verdicts
echo "$(wc -l < ../points) points tried"
! grep -qv '^good: ' ../verdicts && [ "$(wc -l < ../verdicts)" -eq "$(wc -l < ../points)" ]
