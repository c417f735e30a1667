# shellcheck shell=bash
# The files that the gates look at: those of the repository and the new ones that are not ignored.

# source_files PATTERN...: paths relative to the root, one a line.
source_files() {
    local file
    git -C "$lvx_root" ls-files --cached --others --exclude-standard -- "$@" | sort -u | while read -r file; do
        [[ ! -f $lvx_root/$file ]] || echo "$file"
    done
}
