#!/bin/sh
# format.sh [--check]: lays out the hand-written sources with clang-format 14, whose versions differ in
# what they write; with --check it only names the lines that differ and fails. 77: it is not here.
set -eu
cd "$(dirname "$0")/.."

format=
for name in clang-format-14 clang-format; do
    if "$name" --version 2>/dev/null | grep -q 'version 14\.'; then format=$name; break; fi
done
if [ -z "$format" ]; then
    echo "clang-format 14 is not installed (Debian 12: clang-format)." >&2
    exit 77
fi

case ${1:-} in
    "") how=-i ;;
    --check) how="--dry-run --Werror" ;;
    *) echo "usage: $0 [--check]" >&2; exit 2 ;;
esac
# shellcheck disable=SC2086
find bench examples include python src tests tools \
    \( -name '*.c' -o -name '*.cpp' -o -name '*.h' -o -name '*.hpp' \) -print0 |
    xargs -0 "$format" $how
