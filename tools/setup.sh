# Sourced by run.sh, test.sh and .ci/run with `root` set to the project's folder: the packages of
# Debian 12 that Tagsmith stands on, and the build.

BUILD_PACKAGES="cmake g++ ninja-build pkg-config libgl-dev qt6-base-dev qt6-svg-dev
    libqscintilla2-qt6-dev libhunspell-dev hunspell-en-us libgtest-dev"

is_installed() {
    dpkg-query -W -f '${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

# install_packages PACKAGE...: installs those that are not there yet.
install_packages() {
    missing=
    for package in "$@"; do
        is_installed "$package" || missing="$missing $package"
    done
    [ -n "$missing" ] || return 0
    as_root=
    [ "$(id -u)" -eq 0 ] || as_root=sudo
    echo "Installing:$missing"
    $as_root apt-get update -q
    $as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -q -y --no-install-recommends $missing
}

# build PRESET [TARGET...]: configures once, then builds what has changed.
build() {
    preset=$1
    shift
    if [ $# -eq 0 ]; then set -- all; fi
    [ -f "$root/build/$preset/build.ninja" ] ||
        (cd "$root" && cmake --preset "$preset" --log-level=NOTICE)
    (cd "$root" && cmake --build --preset "$preset" --target "$@" -- --quiet)
}
