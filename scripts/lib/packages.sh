# shellcheck shell=bash
# Debian packages, by what needs them. Installed only when they are missing.
# shellcheck disable=SC2034  # the lists are for the scripts

packages_build=(ca-certificates ccache cmake g++ make ninja-build python3 util-linux)
packages_linux=("${packages_build[@]}" fonts-liberation libfontconfig-dev libgmock-dev libgsf-1-dev libgtest-dev
    libjpeg-dev libpng-dev libre2-dev pkg-config)
# The development packages tell which versions the Windows libraries are made from.
# Ghostscript renders what the tests print.
packages_windows=("${packages_build[@]}" dpkg-dev fonts-liberation fonts-wine ghostscript googletest libjpeg-dev
    libre2-dev nasm openbox unicode-data wine wine64 xauth xvfb)
packages_windows_x64=("${packages_windows[@]}" g++-mingw-w64-x86-64-posix)
packages_windows_x86=("${packages_windows[@]}" debootstrap g++-mingw-w64-i686-posix)
packages_gallery=("${packages_windows_x64[@]}" imagemagick)
packages_gates=("${packages_linux[@]}" clang-format-14 clang-tidy-14 git shellcheck)
packages_bench=("${packages_linux[@]}" flex libbenchmark-dev libboost-serialization-dev libcereal-dev libglib2.0-dev
    libleptonica-dev libopencv-imgproc-dev libpcre2-dev libsdl2-dev libsimpleini-dev libstb-dev)
packages_coverage=("${packages_linux[@]}" clang-14 libclang-rt-14-dev llvm-14)
packages_fuzz=("${packages_linux[@]}" clang-14 libclang-rt-14-dev)

# as_root COMMAND...: runs it as root, by sudo if need be; fails without asking for a password.
as_root() {
    if [[ $(id -u) -eq 0 ]]; then
        "$@"
    else
        sudo -n "$@"
    fi
}

can_be_root() {
    [[ $(id -u) -eq 0 ]] || sudo -n true 2>/dev/null
}

missing_packages() {
    local -A installed=()
    local status name
    while read -r status name; do
        [[ $status != installed ]] || installed[$name]=1
    done < <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null)
    for name in "$@"; do
        [[ -n ${installed[$name]:-} ]] || echo "$name"
    done | sort -u
}

# need_packages NAME...: installs those that are missing.
need_packages() {
    command -v dpkg-query >/dev/null || die "this is no Debian system; the scripts install by apt only"
    local -a missing
    mapfile -t missing < <(missing_packages "$@")
    [[ ${#missing[@]} -gt 0 ]] || return 0
    can_be_root || die "packages are missing; install them as root: apt-get install ${missing[*]}"
    say "installing ${missing[*]} …"
    run_logged apt as_root env DEBIAN_FRONTEND=noninteractive bash -c '
        set -e
        apt-get -q -o DPkg::Lock::Timeout=300 update
        apt-get -q -y -o DPkg::Lock::Timeout=300 install --no-install-recommends "$@"' apt "${missing[@]}" ||
        die "packages could not be installed; the machine's own apt must reach its Debian mirror"
}
