#!/bin/sh
# docs.sh [folder]: writes the site of the documentation into <folder>/docs, build/docs by default. Every
# warning is an error: what is public and has no words is one. 77: doxygen, dot or Python is not here.
set -eu
cd "$(dirname "$0")/.."
for program in doxygen dot python3; do
    if ! command -v "$program" >/dev/null; then
        echo "$program is not installed (Debian: doxygen graphviz python3)." >&2
        exit 77
    fi
done
mkdir -p "${1:-build}"
OUTPUT=$(realpath "${1:-build}")
# Doxygen finds no page by a path with a space, so it reads copies.
inputs=$(mktemp -d)
trap 'rm -rf "$inputs"' EXIT
cp -R README.md CHANGELOG.md CONTRIBUTING.md docs examples include "$inputs"
python3 docs/site/python_page.py python/src/kfmgen > "$inputs/docs/python.md"
# Doxygen takes every README for the main page.
mv "$inputs/examples/README.md" "$inputs/examples/examples.md"
sed -i 's,examples/README\.md,examples/examples.md,' "$inputs/README.md" "$inputs/docs/guide.md"
cd "$inputs"
LAYOUT=$inputs/layout.xml
VERSION=$(sed -n 's/^#define KFMGEN_VERSION_M[A-Z]* \([0-9]*\).*/\1/p' include/kfmgen.h | paste -sd.)
export OUTPUT LAYOUT VERSION

# Doxygen's own order of a page, but with what a family does before the list of its functions.
doxygen -l "$LAYOUT"
sed -i '/<detaileddescription/d; s/<briefdescription[^>]*>/<detaileddescription title=""\/>/' "$LAYOUT"
rm -rf "$OUTPUT/docs"   # pages of what there is no more
doxygen docs/site/Doxyfile
# Pictures are where README and the pages beside it say.
mkdir "$OUTPUT/docs/docs"
cp -R docs/pictures "$OUTPUT/docs"
cp -R docs/pictures "$OUTPUT/docs/docs"
