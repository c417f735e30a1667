# shellcheck shell=bash
# Commands among Windows programs.

# in_wine_session PRESET COMMAND...: runs it in one session, in which scripts/run-windows starts programs at
# once.
in_wine_session() {
    run_child "$lvx_root/scripts/wine-session" "$@"
}
