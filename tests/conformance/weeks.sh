#!/bin/bash
# weeks.sh BIN FOLDER BACK_END: the program over weeks, in a fresh FOLDER with a world; on a screen
# of its own (tests/windows/screen.sh) the one of Windows.
rm -rf "$2" && mkdir -p "$2" && cd "$2" && "$1/make_world" fs2002 && exec "$1/weeks_${3/on-screen/windows}"
