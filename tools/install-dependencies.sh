#!/bin/sh
# install-dependencies.sh <demo|test|bench>: installs the Debian packages that a goal needs and
# this machine lacks. Does nothing when all are there.
set -eu

tool="libcli11-dev libsndfile1-dev"
case ${1:-} in
    demo)  wanted="$tool alsa-utils"
           why="to build the command-line tool and to have a recording to show" ;;
    test)  wanted="$tool libgtest-dev googletest g++-multilib pkg-config valgrind"
           why="to build the tests, also for 32 bits" ;;
    bench) wanted="libfftw3-dev libcli11-dev g++-multilib"
           why="to measure beside other libraries, also for 32 bits" ;;
    *) echo "usage: $0 demo|test|bench" >&2; exit 2 ;;
esac

installed() {
    dpkg-query -W -f '${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

missing=
for package in $wanted; do
    installed "$package" || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

if ! command -v apt-get >/dev/null; then
    echo "Not a Debian machine: please install the equivalents of$missing ($why)." >&2
    exit 0
fi
as_root=
[ "$(id -u)" -eq 0 ] || as_root=sudo
echo "Installing$missing with ${as_root:+$as_root }apt-get, $why." >&2
$as_root apt-get update -qq
# shellcheck disable=SC2086
$as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $missing
