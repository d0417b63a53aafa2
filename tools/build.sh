#!/bin/sh
# build.sh <jobs> [cmake option ...]: configures and builds each target that this machine can
# build and run, under $BUILD/<target>. Leaves the list of targets in $BUILD/targets and a test file
# that joins their tests, so that one ctest run reports on all of them.
#
# BUILD is the folder for all of it, "build" by default; TARGETS names the targets, "own" for that of
# this machine's programs, GOAL something other than everything to build. A target that only a cross
# compiler builds here, aarch64, is built alone and enters no list.
set -eu
cd "$(dirname "$0")/.."
build=${BUILD:-build}
jobs=$1
shift
unset MAKEFLAGS MFLAGS MAKELEVEL   # the builds below are no part of a make that called

# Tests and tools are programs of the target, so compiling is not enough.
runs_32_bit_programs() {
    probe=$build/probe-i386
    echo 'int main() {}' | ${CXX:-g++} -m32 -x c++ - -o "$probe" 2>/dev/null && "./$probe"
}

mkdir -p "$build"
own=$(tools/own_target.sh)
skipped=
if [ -n "${TARGETS:-}" ]; then
    targets=$(echo "$TARGETS" | sed "s/\bown\b/$own/")
elif [ "$own" != x86-64 ]; then
    targets=$own
elif runs_32_bit_programs; then
    targets="x86-64 i386"
else
    targets="x86-64"
    skipped="i386 was skipped: no 32-bit programs on this machine (Debian: g++-multilib)"
fi
generator=
crossed=
if [ "$targets" = aarch64 ] && [ "$own" != aarch64 ]; then   # an emulator would run it for long
    crossed=yes
    cmake --preset "$own" -B "$build/$own" > "$build/configure-$own.log"
    cmake --build "$build/$own" --parallel "$jobs" --target kernelgen
    generator=$PWD/$build/$own/bin/kernelgen
fi
for target in $targets; do
    cmake --preset "$target" -B "$build/$target" ${generator:+"-DKFM_KERNELGEN=$generator"} \
        "$@" > "$build/configure-$target.log" || { cat "$build/configure-$target.log"; exit 1; }
    cmake --build "$build/$target" --parallel "$jobs" ${GOAL:+--target "$GOAL"}
    generator=$PWD/$build/$target/bin/kernelgen   # serves the targets that follow
done
[ -z "$crossed" ] || exit 0
# One goal of one target leaves what was built of others.
if [ -n "${GOAL:-}" ] && [ -e "$build/targets" ]; then
    for target in $(cat "$build/targets"); do
        case " $targets " in *" $target "*) ;; *) targets="$targets $target" ;; esac
    done
fi
echo "$targets" > "$build/targets"
for target in $targets; do echo "subdirs($target)"; done > "$build/CTestTestfile.cmake"
[ -z "$skipped" ] || echo "$skipped"
