# shellcheck shell=bash
# What is costly to make is made once, under a key of its versions and recipe, for all work trees together.

lvx_cache=${LVX_CACHE:-${XDG_CACHE_HOME:-${HOME:-/root}/.cache}/lvx}
[[ $lvx_cache == /* ]] || lvx_cache=$PWD/$lvx_cache
export LVX_CACHE=$lvx_cache
mkdir -p "$lvx_cache"

# version_key FILE... -- PACKAGE...: one short key of recipes and installed packages.
version_key() {
    local -a files=()
    while [[ $1 != -- ]]; do
        files+=("$1")
        shift
    done
    shift
    {
        # Comments make no difference.
        grep -hvE '^[[:space:]]*(#|$)' "${files[@]}"
        dpkg-query -W -f '${Package} ${Version}\n' "$@"
    } | sha256sum | cut -c 1-12
}

# make_once FOLDER COMMAND...: makes FOLDER by running COMMAND with the path of an empty folder beside it as
# its last argument, which then takes the name. An interrupted run leaves nothing under that name; a second
# process waits for the first.
make_once() {
    local folder=$1
    shift
    [[ ! -d $folder ]] || return 0
    mkdir -p "$(dirname "$folder")"
    (
        flock 9
        [[ ! -d $folder ]] || exit 0
        remove_tree "$folder.part"
        mkdir "$folder.part"
        # What the command leaves running must not keep the lock.
        if "$@" "$folder.part" 9>&-; then
            mv "$folder.part" "$folder"
        else
            remove_tree "$folder.part"
            exit 1
        fi
    ) 9>"$folder.lock"
}

# remove_tree FOLDER: also one that was made as root.
remove_tree() {
    rm -rf "$1" 2>/dev/null || as_root rm -rf "$1"
}
