#!/bin/sh
# Unpacks the distribution's 32-bit FFTW libraries into the folder given. They are not installed:
# that would make i386 a foreign architecture of the whole system for the sake of one benchmark.
# So apt works on package lists of its own, and both lists and packages stay in a scratch folder.
set -eu

destination=$1
if [ -e "$destination/libfftw3.so.3" ] && [ -e "$destination/libfftw3f.so.3" ]; then exit 0; fi

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
mkdir -p "$scratch/lists/partial" "$scratch/cache/archives/partial"
cd "$scratch"

apt() {
    apt-get -q -o APT::Architectures::=amd64 -o APT::Architectures::=i386 \
        -o Dir::State::lists="$scratch/lists" -o Dir::Cache="$scratch/cache" \
        -o APT::Sandbox::User="" "$@"
}

# A third-party source without i386 packages fails to update; the download decides.
apt update >update.log 2>&1 || true
if ! apt download libfftw3-double3:i386 libfftw3-single3:i386 >download.log 2>&1; then
    cat update.log download.log >&2
    exit 1
fi
for package in *.deb; do dpkg -x "$package" unpacked; done
mkdir -p "$destination"
cp -P unpacked/usr/lib/i386-linux-gnu/libfftw3.so.3* unpacked/usr/lib/i386-linux-gnu/libfftw3f.so.3* \
    "$destination"
