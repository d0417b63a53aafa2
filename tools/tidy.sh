#!/bin/sh
# tidy.sh <jobs> [word...]: clang-tidy over the hand-written sources, or those whose path has a word in it,
# as clang compiles them under $BUILD/tidy. What it looks for is in .clang-tidy.
set -eu
cd "$(dirname "$0")/.."
folder=${BUILD:-build}/tidy
jobs=$1
shift
if [ $# -gt 0 ]; then wanted=$(printf '|%s' "$@"); fi

export CC=clang CXX=clang++
cmake -S . -B "$folder" -DKFM_BUILD_TESTS=ON -DKFM_BUILD_TOOL=ON -DKFM_BUILD_BENCHMARKS=ON \
    -DKFM_BUILD_PYTHON=ON -DKFM_VARIANTS=OFF -DCMAKE_EXPORT_COMPILE_COMMANDS=ON -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON \
    > "$folder.log" 2>&1 || { cat "$folder.log"; exit 1; }

# Each source once, though several programs compile it.
mkdir -p "$folder/once"
awk -v root="$PWD/" -v wanted="${wanted:+${wanted#|}}" -v list="$folder/once/sources" '
    BEGIN { printf "[" }
    /^{/ { entry = "" }
    { entry = entry $0 "\n" }
    /^ *"file": / {
        file = $0
        sub(/^ *"file": "/, "", file)
        sub(/",?$/, "", file)
        mine = index(file, root) == 1 ? substr(file, length(root) + 1) : ""
        mine = mine ~ /^(bench|examples|python|src|tests|tools)\// && mine ~ wanted && !seen[mine]++
    }
    /^}/ && mine {
        sub(/,\n$/, "\n", entry)
        printf "%s\n%s", count++ ? "," : "", entry
        print file > list
    }
    END { print "]" }' "$folder/compile_commands.json" > "$folder/once/compile_commands.json"
tr '\n' '\0' < "$folder/once/sources" |
    xargs -0 -P "$jobs" -n 1 clang-tidy --quiet -p "$folder/once"
