#!/bin/sh
# readme_test.sh <source folder> <build folder of x86-64> <scratch folder> <python>: does
# what README and guide say, block after block (readme_blocks.awk tells how).
#
# Only make is another: of its goals, which all have to exist, it does "install PREFIX=..." alone,
# with what is built already.
set -eu
source=$1
build=$2
scratch=$3
unset DESTDIR CXX MAKEFLAGS MFLAGS MAKELEVEL PKG_CONFIG_PATH LD_LIBRARY_PATH
rm -rf "$scratch"
mkdir -p "$scratch/bin" "$scratch/work"
# The flags that pkg-config prints are words of a command: no space can be in where they point to.
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT

cat > "$scratch/bin/make" <<MAKE
#!/bin/sh
case \$* in
    "install PREFIX="*) exec "$source/tools/install.sh" "\${2#PREFIX=}" "$build" ;;
    *) exec $(command -v make) --dry-run -C "$source" "\$@" > /dev/null ;;
esac
MAKE
# The interpreter of the Python package, where that is built.
cat > "$scratch/bin/python3" <<PYTHON
#!/bin/sh
[ -d "$build/python" ] || exit 0
PYTHONPATH="$build/python" exec $4 "\$@"
PYTHON
# The loader of this machine is not to know the scratch folder.
printf '#!/bin/sh\n' > "$scratch/bin/ldconfig"
chmod +x "$scratch"/bin/*

awk -f "$(dirname "$(realpath "$0")")/readme_blocks.awk" "$source/README.md" "$source/docs/guide.md" \
    > "$scratch/script"
# Goals and files that are named in passing.
for page in README.md docs/guide.md; do
    grep -oE '`([A-Z]+=[a-z0-9+-]+ )?make( [a-z]+)?`' "$source/$page" | tr -d '`'
    grep -oE '\]\([^)]+' "$source/$page" | sed 's/^](//; s/#.*//' |
        while read -r path; do echo "test -e \"$source/$(dirname "$page")/$path\""; done
done >> "$scratch/script"

cd "$scratch/work"
HOME=$home PATH=$scratch/bin:$PATH sh -eux "$scratch/script"
