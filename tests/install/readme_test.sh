#!/bin/sh
# readme_test.sh <source folder> <build folder of x86-64> <scratch folder>: does what the README
# says, block after block. A block of shell runs as it stands. A block of C is saved under the name
# in its first line, built and run by the command beside that name, and once more as C++. One of C++ is
# built and run by its own command alone. A block of CMake becomes CMakeLists.txt.
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
# The loader of this machine is not to know the scratch folder.
printf '#!/bin/sh\n' > "$scratch/bin/ldconfig"
chmod +x "$scratch/bin/make" "$scratch/bin/ldconfig"

awk '
    function refuse(what) { print "line " NR ": " what > "/dev/stderr"; exit refused = 1 }
    function save(name) { printf "cat > %s <<\"END OF BLOCK\"\n%sEND OF BLOCK\n", name, text }
    # Line by line, because "sh -e" goes on where the first of two joined commands fails.
    function run(commands) { gsub(/ && /, "\n", commands); print commands }
    !open && /^    / { refuse("a block without a language") }
    /^```/ && !open { open = 1; language = substr($0, 4); text = ""; first = ""; next }
    /^```/ {
        open = 0
        ++blocks
        if (language == "sh") run(text)
        else if (language == "cmake") save("CMakeLists.txt")
        else if (language == "c" && split(first, words, /^\/\* |: | \*\/$/) == 4) {
            save(words[2])
            run(words[3])
            sub(/^cc/, "c++ -Wall -Wextra -pedantic -Werror -x c++", words[3])
            run(words[3])
        } else if (language == "cpp" && split(first, words, /^\/\/ |: /) == 3) {
            save(words[2])
            run(words[3])
        } else refuse("what to do with a block of \"" language "\"?")
    }
    open { text = text $0 "\n"; if (first == "") first = $0 }
    END { if (!refused && (open || !blocks)) refuse("no end of a block") }
    ' "$source/README.md" > "$scratch/script"
# Goals and files that are named in passing.
grep -oE '`(CXX=[a-z+]+ )?make( [a-z]+)?`' "$source/README.md" | tr -d '`' >> "$scratch/script"
grep -oE '(\]\(|^\| `)[^`)]+' "$source/README.md" | sed 's/^](//; s/^| `//' |
    while read -r path; do echo "test -e \"$source/$path\""; done >> "$scratch/script"

cd "$scratch/work"
HOME=$home PATH=$scratch/bin:$PATH sh -eux "$scratch/script"
