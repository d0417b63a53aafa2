#!/bin/sh
# complete.sh <staged> <control> <runtime package> <version> <architecture>: completes the files of
# the packages, which CPack has staged in a folder for each component: debug symbols are taken out
# into a component beside, texts are compressed. Writes the control files that tell of libraries. The
# tools for the architecture's files are $OBJCOPY, $READELF and $STRIP.
set -eu
staged=$1 control=$2 runtime=$3 version=$4
export DEB_HOST_ARCH="$5"
rm -rf "$control"
mkdir -p "$control"
cd "$staged"

find . -type f ! -name '*.gz' \( -name changelog -o -path '*/share/man/*' \) \
    -exec gzip -9n {} +
find . -type f -name '*.a' -exec "$STRIP" --strip-debug --remove-section=.comment \
    --enable-deterministic-archives {} +

# programs <component>: its files that the loader loads.
programs() {
    find "$1" -type f \( -path '*/bin/*' -o -name 'lib*.so.*' -o -name '_*.so' \) | sort
}

components=runtime
for component in tool python; do
    [ ! -d "$component" ] || components="$components $component"
done
for component in $components; do
    # What a package of debug symbols says of itself is what the package itself says.
    package=$(ls "$component/usr/share/doc")
    documents=${component}_dbgsym/usr/share/doc
    mkdir -p "$documents"
    ln -sfn "$package" "$documents/$package-dbgsym"
    for file in $(programs "$component"); do
        id=$("$READELF" -n "$file" | sed -n 's/.*Build ID: //p')
        [ -n "$id" ] || { echo "$file has no build ID for its debug symbols." >&2; exit 1; }
        rest=${id#??}
        symbols=${component}_dbgsym/usr/lib/debug/.build-id/${id%"$rest"}/$rest.debug
        mkdir -p "${symbols%/*}"
        "$OBJCOPY" --only-keep-debug --compress-debug-sections "$file" "$symbols"
        chmod 644 "$symbols"
        "$STRIP" --strip-unneeded --remove-section=.comment --remove-section=.note "$file"
        chmod "$(case $file in */bin/*) echo 755 ;; *) echo 644 ;; esac)" "$file"
    done
done

trap 'rm -rf debian ./*/DEBIAN' EXIT
mkdir debian
printf 'Source: kfmgen\n\nPackage: %s\nArchitecture: any\n' "$runtime" > debian/control
dpkg-gensymbols -q -p"$runtime" -v"$version" -Pruntime -O"$control/symbols"
sed -nE "s/^(lib.*)\.so\.(.*) $runtime .*/\1 \2 $runtime (>= $version)/p" "$control/symbols" \
    > "$control/shlibs"

# dpkg-shlibdeps takes what a package in the making says of its libraries from its folder DEBIAN.
for component in $components; do mkdir "$component/DEBIAN"; done
cp "$control/symbols" "$control/shlibs" runtime/DEBIAN
multiarch=$(dpkg-architecture -a"$DEB_HOST_ARCH" -qDEB_HOST_MULTIARCH 2> /dev/null)
for component in $components; do
    without=
    [ "$component" != runtime ] || without=-x$runtime
    # While building, a package of another name stands in for the C library of another architecture.
    # shellcheck disable=SC2046
    dpkg-shlibdeps -O -l"/usr/$multiarch/lib" ${without:+"$without"} -Sruntime $(programs "$component") |
        sed -E 's/^shlibs:Depends=//; s/\blibc6(-i386|-arm64-cross)?(:[a-z0-9]+)?\b/libc6/' \
            > "$control/$component.depends"
    [ -s "$control/$component.depends" ]
done
