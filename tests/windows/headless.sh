#!/bin/bash
# headless.sh PROGRAM: the headless program under Wine, for scenarios that name files as Linux does:
# the drive that stands for its root goes from the answers.
set -o pipefail
"$(dirname "$0")/../../scripts/wine" "$1" |
    sed -u 's|Z:\\\\tmp\\\\\(skerrand_[^\\]*\)\\\\|/tmp/\1/|g'
