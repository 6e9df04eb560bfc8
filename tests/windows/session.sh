#!/bin/bash
# session.sh begin PROGRAM | session.sh end PROGRAM: Wine's services for the tests beside that
# program. They start apart from any test, whose end would otherwise wait for theirs.
export WINEPREFIX=$(dirname "$(dirname "$(readlink -f "$2")")")/wine
exec > /dev/null 2>&1 < /dev/null
case $1 in
    begin)
        "$(dirname "$0")/../../scripts/wine" "$2" --help
        setsid wineserver -p
        "$(dirname "$0")/../../scripts/wine" "$2" --help
        ;;
    end) wineserver -k ;;
esac
exit 0
