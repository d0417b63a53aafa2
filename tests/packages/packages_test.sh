#!/bin/sh
# packages_test.sh <folder>: the packages that are there are checked by lintian, installed on a fresh
# Debian 12 of their own, used as the README says and purged (installed_test.sh); the sources beside
# them are unpacked and the library is built, without a network.
#
# The fresh system comes from where this machine has its packages, and is kept for the next time.
set -eu
packages=$(realpath "$1")
here=$(dirname "$(realpath "$0")")
source=$(realpath "$here/../..")
scratch=$packages/test
fail() { echo "$*" >&2; exit 1; }

[ "$(id -u)" -eq 0 ] || fail "Packages are installed by root only: sudo make test-packages"
ls "$packages"/*.deb "$packages"/*.tar.xz > /dev/null || fail "There are none: make packages"
mkdir -p "$scratch"

echo "Looked at by lintian"
lintian --fail-on error,warning "$packages"/*.deb

# No updates: they may be of different age for the two architectures, which then exclude each other.
apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' \
    'Origin: Debian' 'Codename: bookworm' | sort -u > "$scratch/sources.list"
[ -s "$scratch/sources.list" ] || fail "This machine's apt knows no place that has Debian 12."
apt-config dump Acquire | grep -v ::IndexTargets > "$scratch/apt.conf"
wanted=cmake,g++,g++-multilib,gnuplot-nox,make,pkg-config,python3-scipy,libc6:i386
system=$scratch/debian-$(echo "$wanted" | cat - "$scratch/sources.list" | cksum | tr ' ' -).tar
if [ ! -e "$system" ]; then
    echo "A fresh Debian 12, into $system"
    rm -f "$scratch"/debian-*.tar
    mmdebstrap --variant=minbase --architectures=amd64,i386 --include="$wanted" \
        --aptopt="$scratch/apt.conf" bookworm "$system.part.tar" "$scratch/sources.list" \
        > "$scratch/system.log" 2>&1 || { tail -20 "$scratch/system.log"; fail "It cannot be had."; }
    mv "$system.part.tar" "$system"
fi

echo "Installed, used and purged"
root=$scratch/root
rm -rf --one-file-system "$root"
mkdir -p "$root"
tar -C "$root" -xf "$system"
mkdir "$root/work"
cp "$packages"/*.deb "$here/installed_test.sh" "$here/taken.cmake" \
    "$source/tests/install/taken_libraries.cmake" "$root/work"
awk -f "$source/tests/install/readme_blocks.awk" "$source/README.md" "$source/docs/guide.md" \
    > "$root/work/readme.sh"
cp /etc/resolv.conf "$root/etc/resolv.conf"
# Mounts and processes of it end with it.
unshare --mount --pid --fork --kill-child sh -euc '
    mount -t proc proc "$1/proc"
    mount --rbind /dev "$1/dev"
    exec env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 HOME=/work/home \
        DEBIAN_FRONTEND=noninteractive chroot "$1" /work/installed_test.sh "$2"
    ' sh "$root" "$source"
rm -rf --one-file-system "$root"

echo "Built from the sources"
sources=$scratch/sources
rm -rf "$sources"
mkdir "$sources"
tar -C "$sources" -xf "$packages"/*.tar.xz
TARGETS=x86-64 GOAL=kfmgenw7 BUILD=build \
    unshare --net "$sources"/kfmgen-*/tools/build.sh "${JOBS:-1}" > "$scratch/sources.log" 2>&1 ||
    { tail -20 "$scratch/sources.log"; fail "The sources do not build."; }
rm -rf "$sources"
echo "All packages are fit to be installed."
