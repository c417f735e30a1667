# shellcheck shell=bash
# What a person sees of a long job, and how a signal ends it.

# Scripts that call each other count from the same start.
export LVX_STARTED=${LVX_STARTED:-$(date +%s)}
lvx_logs=$lvx_root/build/logs

say() {
    printf '[%3d s] %s\n' "$(($(date +%s) - LVX_STARTED))" "$*"
}

die() {
    printf 'error: %s\n' "$*" >&2
    exit 1
}

# run_child COMMAND...: runs it in a process group of its own and waits. A signal to this script ends the
# whole group, waits until the group's leader has cleaned up behind itself, then ends this script.
run_child() {
    local child status=0 input=/dev/stdin
    # A group in the background may not read from the terminal.
    [[ ! -t 0 && -e /dev/stdin ]] || input=/dev/null
    set -m
    "$@" <"$input" &
    child=$!
    set +m
    # shellcheck disable=SC2064  # the child of now is meant
    trap "end_child $child 130" INT
    # shellcheck disable=SC2064
    trap "end_child $child 143" TERM HUP
    wait "$child" || status=$?
    trap - INT TERM HUP
    return "$status"
}

end_child() {
    trap '' INT TERM HUP
    kill -TERM -- "-$1" 2>/dev/null || true
    wait "$1" 2>/dev/null || true
    exit "$2"
}

# run_logged NAME COMMAND...: the output goes to build/logs/NAME.log; of a failure the end is shown.
run_logged() {
    local log=$lvx_logs/$1.log
    shift
    mkdir -p "$lvx_logs"
    if run_child "$@" >"$log" 2>&1; then
        return 0
    fi
    {
        echo "failed: $*"
        tail -n 40 "$log"
        echo "the whole log: $log"
    } >&2
    return 1
}
