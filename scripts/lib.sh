# shellcheck shell=bash
# What the scripts share. Source it after `set -euo pipefail`; it sets lvx_root and changes into no folder.
#
#   say, die, run_child, run_logged         lib/progress.sh    what a person sees; signals reach the child
#   need_packages, as_root, packages_…      lib/packages.sh    Debian packages, when they are missing
#   lvx_cache, make_once, version_key       lib/cache.sh       what is made once, outside the tree
#   configure_preset, build_preset, …       lib/presets.sh     the builds
#   in_wine_session                         lib/wine.sh        commands among Windows programs

lvx_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
for lvx_part in progress packages cache presets wine; do
    # shellcheck source=/dev/null
    source "$lvx_root/scripts/lib/$lvx_part.sh"
done
unset lvx_part
