# Shared by the project's commands, which source it.

say() {
    printf '%s\n' "$*" >&2
}

fail() {
    say "$*"
    exit 1
}

# quietly STEP COMMAND...: tells the step and runs the command; its output is shown if it fails.
quietly() {
    local step=$1 log status=0
    shift
    log=$(mktemp)
    say "$step"
    "$@" >"$log" 2>&1 </dev/null || status=$?
    if [ "$status" -ne 0 ]; then
        tail -n 200 "$log" >&2
        say "Failed with status $status: $*"
    fi
    rm -f "$log"
    return "$status"
}

# build PRESET [TARGET...]: configures and builds in build/PRESET.
build() {
    local preset=$1 target targets=()
    shift
    for target in "$@"; do targets+=(--target "$target"); done
    quietly "Configuring build/$preset" cmake --preset "$preset"
    quietly "Building build/$preset" cmake --build --preset "$preset" "${targets[@]}"
}
