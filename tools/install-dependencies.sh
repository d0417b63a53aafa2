#!/bin/sh
# install-dependencies.sh <goal of the Makefile>: installs the Debian packages that it needs and this
# machine lacks. Does nothing when all are there, fails when some cannot be had.
set -eu

multilib=g++-multilib
cross="clang binutils-aarch64-linux-gnu libc6-dev-arm64-cross libstdc++-12-dev-arm64-cross qemu-user"
if [ "$("$(dirname "$0")/own_target.sh")" = aarch64 ]; then
    multilib= cross=libgtest-dev
fi
tool="libcli11-dev libsndfile1-dev"
python="python3-dev python3-numpy"
case ${1:-} in
    install) wanted=$tool
             why="to build the command-line tool" ;;
    demo)    wanted="$tool alsa-utils"
             why="to build the command-line tool and to have a recording to show" ;;
    test)    wanted="$tool gnuplot-nox libgtest-dev googletest $multilib pkg-config valgrind
                     clang-format $python python3-scipy python3-pytest python3-hypothesis
                     python3-dask python3-distributed python3-zarr python3-soundfile
                     python3-matplotlib alsa-utils libfftw3-dev"
             why="to build the tests, also for 32 bits" ;;
    test-aarch64)
             wanted="$cross googletest"
             why="to build the tests for 64-bit ARM and to run them" ;;
    bench)   wanted="$tool libfftw3-dev $multilib gnuplot-nox"
             why="to measure beside other libraries, also for 32 bits" ;;
    format)  wanted="clang-format"
             why="to lay out the sources" ;;
    tidy)    wanted="$tool $python libgtest-dev libfftw3-dev clang clang-tidy"
             why="to look for mistakes in the sources" ;;
    docs)    wanted="doxygen graphviz python3"
             why="to write the pages of the documentation" ;;
    packages)
             wanted="$tool $python dpkg-dev $multilib file"
             why="to build packages, also for i386" ;;
    packages-aarch64)
             wanted="$cross dpkg-dev file"
             why="to build packages for 64-bit ARM" ;;
    test-packages)
             wanted="lintian mmdebstrap"
             why="to check packages and to install them on a system of their own" ;;
    *) echo "usage: $0 install|demo|test|test-aarch64|bench|format|tidy|docs|packages|packages-aarch64|test-packages" >&2
       exit 2 ;;
esac

installed() {
    dpkg-query -W -f '${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

find_missing() {
    missing=
    for package in $wanted; do
        installed "$package" || missing="$missing $package"
    done
}

find_missing
[ -n "$missing" ] || exit 0
if ! command -v apt-get >/dev/null; then
    echo "Not a Debian machine: please install the equivalents of$missing ($why)." >&2
    exit 0
fi
as_root=
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "Please run this as root, $why: apt-get install$missing" >&2
        exit 1
    fi
    as_root=sudo
fi

echo "Installing$missing with ${as_root:+$as_root }apt-get, $why." >&2
$as_root apt-get update -qq ||
    echo "Not all package lists could be renewed; trying with those that are there." >&2
# shellcheck disable=SC2086
$as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends $missing || true
find_missing   # what counts is what is there now
[ -z "$missing" ] || { echo "Could not be installed:$missing ($why)." >&2; exit 1; }
