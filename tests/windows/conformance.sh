#!/bin/bash
# Runs the conformance test of the layer; see screen.sh.
mkdir -p "$2" && cd "$2" && exec "$1/conformance_windows"
