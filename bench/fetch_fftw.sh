#!/bin/sh
# fetch_fftw.sh <i386|avx2> <folder>: puts FFTW's libraries for the benchmarks into the folder,
# unless they are there already.
#   i386   Debian's packages, unpacked: to install them would make i386 a foreign architecture of
#          the whole system for the sake of one benchmark.
#   avx2   built from Debian's source package, as a user does who wants the most of it: Debian's
#          own build has SSE2 and AVX only. Takes minutes.
# apt works with a source, lists and a cache of its own in a scratch folder; of the system it needs
# Debian's keys and changes nothing.
set -eu

kind=$1
destination=$2
if [ -e "$destination/libfftw3.so.3" ] && [ -e "$destination/libfftw3f.so.3" ]; then exit 0; fi

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir -p "$destination" "$scratch/lists/partial" "$scratch/cache/archives/partial"
destination=$(cd "$destination" && pwd)
cd "$scratch"

quietly() {
    "$@" >>"$scratch/log" 2>&1 || { tail -n 30 "$scratch/log" >&2; exit 1; }
}

# from_debian <deb|deb-src> <architecture> <apt-get command ...>
from_debian() {
    keys=/usr/share/keyrings/debian-archive-keyring.gpg
    echo "$1 [arch=$2 signed-by=$keys] http://deb.debian.org/debian bookworm main" >sources.list
    shift 2
    for command in update "$*"; do
        # shellcheck disable=SC2086
        quietly apt-get -q -o Dir::Etc::SourceList="$scratch/sources.list" \
            -o Dir::Etc::SourceParts=- -o Dir::State::Lists="$scratch/lists" \
            -o Dir::Cache="$scratch/cache" -o APT::Architectures::=i386 \
            -o APT::Sandbox::User="" $command
    done
}

# build <letter of the precision in FFTW's names>: only the library, without its tests and tools.
# With --enable-fma its vector code is in the form for FMA, and so is its scalar code, which needs
# the compiler's leave to use it.
build() {
    rm -rf build
    mkdir build
    cd build
    quietly ../fftw-3.3.10/configure --disable-static --enable-shared --disable-fortran \
        --disable-doc --enable-avx2 --enable-fma ${1:+--enable-single} \
        CFLAGS="-O3 -march=x86-64-v3 -mtune=native -fomit-frame-pointer -fno-schedule-insns"
    for part in support kernel simd-support dft rdft reodft api; do
        quietly nice make -C "$part" -j "$(nproc)"
    done
    quietly make "libfftw3$1.la"
    cp -P .libs/libfftw3*.so.3* "$destination"
    cd ..
}

case $kind in
i386)
    from_debian deb i386 download libfftw3-double3:i386 libfftw3-single3:i386
    for package in *.deb; do dpkg -x "$package" unpacked; done
    cp -P unpacked/usr/lib/i386-linux-gnu/libfftw3.so.3* \
        unpacked/usr/lib/i386-linux-gnu/libfftw3f.so.3* "$destination" ;;
avx2)
    if ! grep -qw avx2 /proc/cpuinfo || ! grep -qw fma /proc/cpuinfo; then
        echo "this processor has no AVX2 and FMA" >&2
        exit 1
    fi
    echo "Building FFTW with AVX2 and FMA, in both precisions: this takes minutes." >&2
    from_debian deb-src amd64 source --download-only fftw3
    tar -xf fftw3_3.3.10.orig.tar.gz
    build ""
    build f ;;
*)
    echo "usage: $0 i386|avx2 <folder>" >&2
    exit 2 ;;
esac
