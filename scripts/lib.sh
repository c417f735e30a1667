# shellcheck shell=bash
# What the scripts share. Source it after `set -euo pipefail`; it sets lvx_root and changes into no folder.
#
#   say, die, run_child, run_logged         lib/progress.sh    what a person sees; signals reach the child
#   need_packages, as_root, packages_…      lib/packages.sh    Debian packages, when they are missing
#   lvx_cache, make_once, version_key       lib/cache.sh       what is made once, outside the tree
#   configure_preset, build_preset, …       lib/presets.sh     the builds
#   source_files                            lib/sources.sh     what the gates look at
#   in_wine_session                         lib/wine.sh        commands among Windows programs

lvx_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# shellcheck source=lib/progress.sh
source "$lvx_root/scripts/lib/progress.sh"
# shellcheck source=lib/packages.sh
source "$lvx_root/scripts/lib/packages.sh"
# shellcheck source=lib/cache.sh
source "$lvx_root/scripts/lib/cache.sh"
# shellcheck source=lib/presets.sh
source "$lvx_root/scripts/lib/presets.sh"
# shellcheck source=lib/sources.sh
source "$lvx_root/scripts/lib/sources.sh"
# shellcheck source=lib/wine.sh
source "$lvx_root/scripts/lib/wine.sh"
