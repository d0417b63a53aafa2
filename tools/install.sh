#!/bin/sh
# install.sh <prefix> <build folder>...: installs what was built there, brings the loader's cache up
# to date, and says what a user has to set for libraries in folders that the loader does not search.
#
# With DESTDIR the files are for another place, so nothing is done or said about this machine.
set -eu
prefix=$1
shift
PATH=$PATH:/usr/sbin:/sbin   # not everyone's PATH has ldconfig

for folder; do
    cmake --install "$folder" --prefix "$prefix"
done
[ -z "${DESTDIR:-}" ] || exit 0
command -v ldconfig >/dev/null || exit 0
[ "$(id -u)" -ne 0 ] || ldconfig

# Whether the loader finds this library; it may know the folder by another name.
finds() {
    ldconfig -p | sed -n 's,.* => \(.*/libkfmcore\.so\..*\),\1,p' |
        xargs -r -d '\n' realpath | grep -qxF "$(realpath "$1")"
}
for folder; do
    libdir=$(sed -n 's,/libkfmcore\.so$,,p' "$folder/install_manifest.txt")
    finds "$libdir/libkfmcore.so" && continue
    echo "The loader does not search $libdir. To build and run programs with the libraries there:"
    echo "    export PKG_CONFIG_PATH=\"$libdir/pkgconfig\" LD_LIBRARY_PATH=\"$libdir\""
done
