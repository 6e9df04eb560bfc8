#!/bin/bash
# Runs a scenario: a text that tells what to say to the program and what it has to answer.
#
#     run_scenario.sh SKERRAND_HEADLESS FILE.scenario
#
# Each scenario gets a fresh folder of its own, with a working folder for the program in it.
#
#     # a remark
#     ! make_world ${world}         a shell command that has to succeed, with the build's programs
#     > restart; items Form3.Combo1 commands to the program or functions below
#     ADAK (PADK)                   the lines of the last one's answer; its "ok" is left out
#     = Form2.left 0; Form2.top 0   properties and their values
#     = running yes                 the same of a question of one word
#
# In an answer "..." stands for any number of lines, a line that ends with "..." for every line
# that starts so, and two quotation marks for an empty line. ${work} is the program's working folder,
# ${world} a folder beside it that does not exist yet. The program has to end with status 0, also at
# the end of the scenario.
set -u
trap '' PIPE # from a program that is gone
program=$(realpath "$1") scenario=$(realpath "$2")
PATH=$(dirname "$program"):$PATH
# In lower case, as the program's list of files is.
scratch=$(realpath "${TMPDIR:-/tmp}")/skerrand_$$
work=$scratch/work world=$scratch/world pid='' failed=0 last=()
rm -rf "$scratch" # of one that was killed
mkdir -p "$work" && cd "$work" && mkfifo ../commands ../answers || exit 1

report() {
    echo "$place: $1"
    failed=1
}

# Ends the program; the next command starts a new one.
restart() {
    exec 3>&- 4<&-
    [ -z "$pid" ] || wait "$pid" || report 'the program failed'
    pid=
}

# Whether the lines of the answer from number $2 on are those expected from number $1 on.
matches() {
    local line=${expected[$1]-} answered=${answer[$2]-}
    [ "$1" -lt ${#expected[@]} ] || return $(($2 < ${#answer[@]}))
    [ "$line" = ... ] && matches $(($1 + 1)) "$2" && return
    [ "$2" -lt ${#answer[@]} ] || return
    case $line in
        ...) matches "$1" $(($2 + 1)) && return ;;
        *...) [[ $answered == "${line%...}"* ]] ;;
        *) [[ $answered == "${line#'""'}" ]] ;;
    esac && matches $(($1 + 1)) $(($2 + 1))
}

# tell COMMAND LINE...: says a command, and the lines are what it has to answer.
tell() {
    local line='' expected=("${@:2}") answer=()
    last=("$@")
    [[ ${2-} == 'error '* ]] || expected+=(ok)
    if [ -z "$pid" ]; then
        "$program" < ../commands > ../answers &
        pid=$!
        exec 3> ../commands 4< ../answers
    fi
    echo "$1" >&3
    until [[ $line == ok || $line == 'error '* ]]; do
        IFS= read -r line <&4 || break
        answer+=("$line")
    done
    matches 0 0 || report "> $1
$(diff <(printf '%s\n' "${expected[@]}") <(printf '%s\n' "${answer[@]}"))"
    [[ $1 != quit && $line == [oe]* ]] || restart
}

# again TIMES: says the last command so many times more, each with its answer.
again() {
    local times
    for ((times = $1; times > 0; --times)); do tell "${last[@]}"; done
}

# From the start of the program to that of the scan.
set_up() {
    do_step "> advance 3000; folder Form2.Dir1 $world; click Form2.Command1"
}

# The demonstration world, and the program with its databases built.
install() {
    make_world "$world"
    do_step '> set_up; advance 3000; messages' ...
}

# From the lists to the chart of Key West and Adak.
to_chart() {
    do_step '> advance 1000; pick Form3.Combo1 13; pick Form3.Combo2 0; click Form3.Command3'
}

# From a chart to a fresh one.
to_new_chart() {
    do_step '> click Form4.load_airpts_lst; to_chart'
}

# press CODE...: keys go down in that order, all at once, and up again.
press() {
    local code
    for code; do tell "key $code down"; done
    tell 'advance 1'
    for code; do tell "key $code up"; done
}

# capture LINE CODE: picks a line of the list of keys and presses a key in the dialog for it.
capture() {
    do_step "> pick Form7.List1 $1; double_click Form7.List1; press $2"
}

# do_step FIRST OTHERS...: what the lines of a scenario tell.
do_step() {
    local rest=${1:2}
    while [[ $1 == '> '*'; '* || $1 == '= Form'*'; '* ]] && [[ $rest == *'; '* ]]; do
        do_step "${1:0:2}${rest%%; *}"
        rest=${rest#*; }
    done
    case ${1:0:2}$rest in
        '> '*) if declare -F "${rest%% *}" > /dev/null; then $rest; else tell "$rest" "${@:2}"; fi ;;
        '= Form'*) tell "get ${rest%% *}" "${rest#* }" "${@:2}" ;;
        '= '*) tell "${rest%% *}" "${rest#* }" "${@:2}" ;;
        *) eval "$rest" && [ $# -eq 1 ] || report "it is not so: $*" ;;
    esac
}

mapfile -t lines < "$scenario"
step=('! true')
for number in "${!lines[@]}"; do
    line=${lines[number]//'${work}'/$work}
    line=${line//'${world}'/$world}
    if [[ $line == [=!\>]' '* ]]; then
        do_step "${step[@]}"
        step=("$line") place=$(basename "$2"):$((number + 1))
    elif [[ $line != '' && $line != '#'* ]]; then
        step+=("$line")
    fi
done
do_step "${step[@]}"
restart
cd / && rm -r "$scratch"
exit $failed
