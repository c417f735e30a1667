# shellcheck shell=bash
# Configure and build by the presets of CMakePresets.json. The tests run on all_presets; linux-bench,
# linux-coverage and linux-fuzz have build folders of their own, so that measuring and fuzzing disturb no tests.

all_presets=(linux linux-asan linux-tsan windows-x64 windows-x86)

export CCACHE_DIR=${CCACHE_DIR:-$lvx_cache/ccache}
# Work trees of the same repository share what they compile.
export CCACHE_BASEDIR=$lvx_root CCACHE_NOHASHDIR=1

# Where the shared pictures and documents lie: beside the repository, for its further work trees too.
shared_data() {
    local beside=$lvx_root/../shared/data repository
    if [[ ! -d $beside ]] && repository=$(git -C "$lvx_root" rev-parse --path-format=absolute --git-common-dir 2>/dev/null); then
        beside=$repository/../../shared/data
    fi
    realpath -m "$beside"
}

# Test programs find them by this, under Wine too.
export LVX_SHARED_DATA=${LVX_SHARED_DATA:-$(shared_data)}

is_preset() {
    [[ " ${all_presets[*]} " == *" $1 "* ]]
}

is_windows() {
    [[ $1 == windows-* ]]
}

# The packages to build and test a preset.
need_packages_of_preset() {
    case $1 in
        windows-x64) need_packages "${packages_windows_x64[@]}" ;;
        windows-x86) need_packages "${packages_windows_x86[@]}" ;;
        linux-bench) need_packages "${packages_bench[@]}" ;;
        linux-coverage) need_packages "${packages_coverage[@]}" ;;
        linux-fuzz) need_packages "${packages_fuzz[@]}" ;;
        *) need_packages "${packages_linux[@]}" ;;
    esac
}

# need_deps PRESET: the libraries that are made for Windows here; nothing for the others.
need_deps() {
    ! is_windows "$1" || run_child "$lvx_root/scripts/cross-deps" "$1" >/dev/null
}

# configure_preset PRESET [OPTION...]: only if it was not, or not by the presets and options of now.
configure_preset() {
    local preset=$1 build=$lvx_root/build/$1 deps=''
    shift
    ! is_windows "$preset" || deps=$("$lvx_root/scripts/cross-deps" "$preset" --print)
    local wanted="$preset $deps $*"
    if [[ -f $build/build.ninja && ! $lvx_root/CMakePresets.json -nt $build/configured &&
        $(cat "$build/configured" 2>/dev/null) == "$wanted" ]]; then
        return 0
    fi
    say "configuring $preset …"
    # A toolchain and its libraries are read once per cache.
    rm -rf "$build/CMakeCache.txt" "$build/CMakeFiles"
    (cd "$lvx_root" && run_logged "$preset-configure" cmake --preset "$preset" \
        -DCMAKE_CXX_COMPILER_LAUNCHER=ccache ${deps:+"-DLVX_DEPS=$deps"} "$@") || return 1
    echo "$wanted" >"$build/configured"
}

# build_preset PRESET [TARGET...]: all of it, or the targets.
build_preset() {
    local preset=$1
    shift
    local -a targets=()
    [[ $# -eq 0 ]] || targets=(--target "$@")
    say "building $preset …"
    run_logged "$preset-build" cmake --build "$lvx_root/build/$preset" -j "$(nproc)" "${targets[@]}"
}

# need_preset PRESET [OPTION...]: packages, dependencies, configured and built.
need_preset() {
    need_packages_of_preset "$1"
    need_deps "$1"
    configure_preset "$@"
    build_preset "$1"
}
