#!/bin/sh
# build.sh <jobs>: builds each target below $BUILD/packages, those of this machine or $TARGETS, and
# leaves its Debian packages and the sources as an archive in that folder.
set -eu
cd "$(dirname "$0")/.."
export BUILD="${BUILD:-build}/packages"
mkdir -p "$BUILD"
rm -f "$BUILD"/*.tar.xz
tools/build.sh "$1" -DKFM_BUILD_TOOL=ON -DKFM_BUILD_PYTHON=ON -DKFM_PACKAGES=ON
for target in ${TARGETS:-$(cat "$BUILD/targets")}; do
    (cd "$BUILD/$target" && rm -rf packages && cpack -G DEB > cpack.log 2>&1) ||
        { cat "$BUILD/$target/cpack.log"; exit 1; }
    for package in "$BUILD/$target"/packages/*.deb; do architecture=${package##*_}; done
    rm -f "$BUILD"/*"_$architecture"   # of an earlier version
    mv "$BUILD/$target"/packages/*.deb "$BUILD"
done
cd "$BUILD/$target"
cpack --config CPackSourceConfig.cmake > cpack.log 2>&1 ||
    { cat cpack.log; exit 1; }
mv packages/*.tar.xz ..
cd ..
du -h ./*.deb ./*.tar.xz
