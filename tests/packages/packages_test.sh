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

# No updates: they may be of different age for two architectures, which then exclude each other.
apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' \
    'Origin: Debian' 'Codename: bookworm' | sort -u > "$scratch/sources.list"
[ -s "$scratch/sources.list" ] || fail "This machine's apt knows no place that has Debian 12."
apt-config dump Acquire | grep -v ::IndexTargets > "$scratch/apt.conf"

# on_fresh_system <architectures> <what it has besides> <those of the packages>: installs, uses and
# purges the packages of these architectures.
on_fresh_system() {
    system=$scratch/debian-$1-$(echo "$2" | cat - "$scratch/sources.list" | cksum | tr ' ' -).tar
    if [ ! -e "$system" ]; then
        echo "A fresh Debian 12, into $system"
        rm -f "$scratch/debian-$1"-*.tar
        mmdebstrap --variant=minbase --architectures="$1" --include="$2" \
            --aptopt="$scratch/apt.conf" bookworm "$system.part.tar" "$scratch/sources.list" \
            > "$scratch/system.log" 2>&1 || { tail -20 "$scratch/system.log"; fail "It cannot be had."; }
        mv "$system.part.tar" "$system"
    fi

    echo "Installed, used and purged: $3"
    root=$scratch/root
    rm -rf --one-file-system "$root"
    mkdir -p "$root"
    tar -C "$root" -xf "$system"
    mkdir "$root/work"
    for architecture in $3; do cp "$packages"/*_"$architecture".deb "$root/work"; done
    cp "$here/installed_test.sh" "$here/taken.cmake" "$source/tests/install/taken_libraries.cmake" \
        "$root/work"
    awk -f "$source/tests/install/readme_blocks.awk" "$source/README.md" "$source/docs/guide.md" \
        > "$root/work/readme.sh"
    cp /etc/resolv.conf "$root/etc/resolv.conf"
    # Mounts and processes of it end with it.
    unshare --mount --pid --fork --kill-child sh -euc '
        mount -t proc proc "$1/proc"
        mount --rbind /dev "$1/dev"
        exec env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 HOME=/work/home \
            DEBIAN_FRONTEND=noninteractive chroot "$1" /work/installed_test.sh "$2" "$3"
        ' sh "$root" "$source" "$3"
    rm -rf --one-file-system "$root"
}

native=cmake,g++,gnuplot-nox,make,pkg-config,python3-scipy
if [ "$(dpkg --print-architecture)" = amd64 ]; then
    ! ls "$packages"/*_amd64.deb > /dev/null 2>&1 ||
        on_fresh_system amd64,i386 "$native,g++-multilib,libc6:i386" "amd64 i386"
    # Here its programs are compiled by another's compiler and run by an emulator.
    cross=binutils-aarch64-linux-gnu,clang,libstdc++-12-dev:arm64,pkg-config,qemu-user
    ! ls "$packages"/*_arm64.deb > /dev/null 2>&1 || on_fresh_system amd64,arm64 "$cross" arm64
else
    on_fresh_system arm64 "$native" arm64
fi

echo "Built from the sources"
sources=$scratch/sources
rm -rf "$sources"
mkdir "$sources"
tar -C "$sources" -xf "$packages"/*.tar.xz
TARGETS=own GOAL=kfmgenw7 BUILD=build \
    unshare --net "$sources"/kfmgen-*/tools/build.sh "${JOBS:-1}" > "$scratch/sources.log" 2>&1 ||
    { tail -20 "$scratch/sources.log"; fail "The sources do not build."; }
rm -rf "$sources"
echo "All packages are fit to be installed."
