#!/bin/sh
# uninstall.sh <prefix> <build folder>...: removes what the last installation from there has put into
# the prefix, and the folders that this leaves empty, but not those right below the prefix.
set -eu
prefix=$(realpath -ms "$1")
shift
PATH=$PATH:/usr/sbin:/sbin   # not everyone's PATH has ldconfig
there=${DESTDIR:-}

status=0
for folder; do
    manifest=$folder/install_manifest.txt
    first=
    [ ! -e "$manifest" ] || read -r first < "$manifest" || true
    case $first in
        "$prefix"/*) ;;
        *)
            echo "From $folder nothing was last installed into $prefix." >&2
            status=1
            continue
            ;;
    esac
    while read -r file || [ -n "$file" ]; do
        rm -f "$there$file"
        inner=${file%/*}
        while [ "${inner%/*}" != "$prefix" ] && rmdir "$there$inner" 2>/dev/null; do
            inner=${inner%/*}
        done
    done < "$manifest"
    rm "$manifest"
done
[ -n "$there" ] || [ "$(id -u)" -ne 0 ] || ! command -v ldconfig >/dev/null || ldconfig
exit "$status"
