#!/usr/bin/env bash
# Fails if an include breaks the order of the house: includes.sh FOLDER
set -euo pipefail
cd "$1"
program='app scenery selection chart simlink keys'
own="(${program// /|})"

# "FILE INCLUDED" for each include in these files and folders.
includes() {
    grep -rHE '^ *#include' --include='*.cpp' --include='*.h' "$@" |
        sed -E 's/: *#include [<"]?([^">]*).*/ \1/'
}

broken=$(
    # The program needs nothing but the standard library, itself and platform/*.h.
    includes $program |
        grep -vE " ([a-z_0-9]+|($own|platform)/[a-z_0-9]+\.h)$" || true
    # The platform needs nothing of the program.
    includes platform | grep -E " $own/" || true
    # Data does not know windows.
    includes scenery app/{settings,fields}* selection/{airspace_search,geodesy,picks}* |
        grep -E ' [a-z]+/(form[0-9]+|messages|controls|message_box|timers)\.h$' || true
    # No headers include each other in a circle.
    { includes $program platform --exclude='*.cpp' | tsort >/dev/null; } 2>&1 || true
)
[ -z "$broken" ] || { echo "$broken" && exit 1; }
