#!/bin/bash
# in_folder.sh BIN FOLDER: the test of FOLDER's name out of BIN, in a fresh FOLDER with a world.
rm -rf "$2" && mkdir -p "$2" && cd "$2" && "$1/make_world" fs2002 && exec "$1/$(basename "$2")"
