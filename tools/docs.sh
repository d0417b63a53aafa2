#!/bin/sh
# docs.sh [folder]: writes the site of the documentation into <folder>/docs, build/docs by default. Every
# warning is an error: what is public and has no words is one. 77: doxygen or dot is not here.
set -eu
cd "$(dirname "$0")/.."
for program in doxygen dot; do
    if ! command -v "$program" >/dev/null; then
        echo "$program is not installed (Debian: doxygen graphviz)." >&2
        exit 77
    fi
done
OUTPUT=${1:-build}
LAYOUT=$OUTPUT/docs-layout.xml
VERSION=$(sed -n 's/^#define KFMGEN_VERSION_M[A-Z]* \([0-9]*\).*/\1/p' include/kfmgen.h | paste -sd.)
export OUTPUT LAYOUT VERSION
mkdir -p "$OUTPUT"

# Doxygen's own order of a page, but with what a family does before the list of its functions.
doxygen -l "$LAYOUT"
sed -i '/<detaileddescription/d; s/<briefdescription[^>]*>/<detaileddescription title=""\/>/' "$LAYOUT"
rm -rf "$OUTPUT/docs"   # pages of what there is no more
doxygen docs/site/Doxyfile
# Pictures are where README and the pages beside it say.
mkdir "$OUTPUT/docs/docs"
cp -R docs/pictures "$OUTPUT/docs"
cp -R docs/pictures "$OUTPUT/docs/docs"
