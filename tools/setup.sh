# Shared by ./run, ./test and the longer commands: the packages that a fresh Debian 12 needs, and the
# build. Sourced by bash in the project's folder.

# What a build needs.
build_packages=(
    g++ cmake ninja-build pkg-config git ca-certificates
    qt6-base-dev qt6-tools-dev qt6-translations-l10n libqt6opengl6-dev libqt6svg6 qt6-image-formats-plugins fonts-inter
    libplist-dev nlohmann-json3-dev libcli11-dev libdeflate-dev libutf8proc-dev libisal-dev uuid-dev
    libsodium-dev libzstd-dev libdivsufsort-dev libssl-dev
    libgtest-dev libgmock-dev
)
# What the tests compare with and run in.
test_packages=(python3 zip unzip libarchive-tools attr e2fsprogs xvfb xauth xdotool x11-utils sudo procps)
# What the compile and link check for macOS needs besides; npm may have come in another way.
macos_check_packages=(clang-19 lld-19 llvm-19 libc++-19-dev python3)
command -v npm >/dev/null || macos_check_packages+=(npm)
# A display where there is none, and pictures of it.
virtual_display_packages=(xvfb xauth xdotool x11-utils imagemagick fonts-noto-cjk)

say() { printf '%s\n' "== $*"; }

# Installs the packages that are missing; does nothing, and needs no network, when none is.
need_packages() {
    command -v dpkg-query >/dev/null || return 0 # another system: its packages are its user's care
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "These packages are missing: ${missing[*]}. Install them as root, then start again." >&2
            exit 1
        }
        as_root=(sudo)
    fi
    say "Installing packages: ${missing[*]}"
    "${as_root[@]}" apt-get update -q
    DEBIAN_FRONTEND=noninteractive "${as_root[@]}" \
        apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# build PRESET [SETTINGS...] [-- TARGETS...]: configures it and builds all, or the targets; the release
# preset's folder is build/.
build() {
    local preset=$1 settings=()
    while [ $# -gt 0 ] && [ "$1" != -- ]; do settings+=("$1"); shift; done
    [ $# -eq 0 ] || shift
    say "Building (preset $preset)"
    cmake --preset "${settings[@]}" >"${TMPDIR:-/tmp}/scrivel-configure.$$" 2>&1 || {
        cat "${TMPDIR:-/tmp}/scrivel-configure.$$" >&2
        rm -f "${TMPDIR:-/tmp}/scrivel-configure.$$"
        exit 1
    }
    rm -f "${TMPDIR:-/tmp}/scrivel-configure.$$"
    cmake --build --preset "$preset" ${1+--target "$@"}
}
