#!/bin/sh
# scripts_test.sh <tools folder> <scratch folder>: the scripts behind `make`, on a machine of fakes.
# The words in "installed" are its packages, apt-get finds those that are not in "unavailable", and
# "log" tells what was done to the machine.
set -eu
tools=$1
machine=$2/machine
rm -rf "$machine"
mkdir -p "$machine/bin" "$machine/sudo"
cd "$machine"

# fake <file>: a program from standard input, which works in the machine's folder.
fake() {
    { printf '#!/bin/sh\ncd "%s"\n' "$machine"; cat; } > "$1"
    chmod +x "$1"
}
fake bin/id <<'END'
cat uid
END
fake bin/dpkg-query <<'END'
for package; do :; done
if grep -qx "$package" installed; then echo installed; else echo config-files; fi
END
fake bin/apt-get <<'END'
echo "apt-get $1" >> log
[ "$1" = install ] || exit "$(cat stale)"
for word; do
    case $word in install | -*) continue ;; esac
    if grep -qx "$word" unavailable; then exit 100; fi
    echo "$word" >> installed
done
END
fake sudo/sudo <<'END'
echo sudo >> log
exec "$@"
END
fake bin/cmake <<'END'
mkdir -p prefix/lib prefix/include/kfmgen
touch prefix/lib/libkfmcore.so.6.1 prefix/include/kfmcore.h prefix/include/kfmgen/dct4.hpp
ln -sf libkfmcore.so.6.1 prefix/lib/libkfmcore.so
# CMake ends the list without a new line.
printf '%s\n%s\n%s\n%s' "$PWD/prefix/include/kfmcore.h" "$PWD/prefix/include/kfmgen/dct4.hpp" \
    "$PWD/prefix/lib/libkfmcore.so.6.1" "$PWD/prefix/lib/libkfmcore.so" > install_manifest.txt
END
fake bin/ldconfig <<'END'
if [ "${1:-}" = -p ]; then cat cache; else echo ldconfig >> log; fi
END
for command in cat dirname env find grep ln mkdir realpath rm rmdir sed sh sort touch tr uname xargs; do
    ln -s "$(command -v "$command")" bin/
done

# fresh <uid> <status of apt-get update> <installed> <unavailable>
fresh() {
    echo "$1" > uid
    echo "$2" > stale
    echo "$3" | tr ' ' '\n' > installed
    echo "$4" > unavailable
    : > log
    : > cache
}

failures=0
# expect <case> <status> <log> <words> <command...>: the words, a pattern, are among what it prints;
# no words: it prints nothing.
expect() {
    case=$1 status=0 expected="$2: $3" words=$4
    shift 4
    env PATH="$path" "$@" > output 2>&1 || status=$?
    actual="$status: $(tr '\n' ' ' < log)"
    if [ -n "$words" ]; then said=$(grep -e "$words" output || true)
    else said=$([ -s output ] || echo nothing); fi
    if [ "$actual" != "$expected" ] || [ -z "$said" ]; then
        failures=$((failures + 1))
        printf '%s: expected "%s" and "%s", was "%s" and\n' "$case" "$expected" "$words" "$actual"
        cat output
    fi
}

path=$machine/bin
dependencies=$tools/install-dependencies.sh
both="libcli11-dev libsndfile1-dev"
fresh 1000 0 "$both" ""
expect "all there" 0 "" "" "$dependencies" install
fresh 0 0 libcli11-dev ""
expect "one missing" 0 "apt-get update apt-get install " "^Installing libsndfile1-dev with" \
    "$dependencies" install
fresh 0 100 "" ""
expect "a stale list" 0 "apt-get update apt-get install " "trying with those" \
    "$dependencies" install
fresh 0 0 "" libsndfile1-dev
expect "not to be had" 1 "apt-get update apt-get install " "not be installed: libsndfile1-dev (" \
    "$dependencies" install
fresh 1000 0 libcli11-dev ""
expect "a user without sudo" 1 "" "as root.*: apt-get install libsndfile1-dev$" \
    "$dependencies" install
path=$path:$machine/sudo
expect "a user with sudo" 0 "sudo apt-get update sudo apt-get install " "with sudo apt-get" \
    "$dependencies" install
rm bin/apt-get
fresh 0 0 "" ""
expect "another system" 0 "" "equivalents of $both" "$dependencies" install

fresh 0 0 "" ""
printf '\tlibkfmcore.so.6.1 (libc6,x86-64) => %s\n' "$machine/prefix/lib/libkfmcore.so.6.1" > cache
expect "into a folder of the loader" 0 "ldconfig " "" "$tools/install.sh" prefix .
fresh 1000 0 "" ""
lib=$machine/prefix/lib
expect "into another" 0 "" "export PKG_CONFIG_PATH=.$lib/pkgconfig. LD_LIBRARY_PATH=.$lib.\$" \
    "$tools/install.sh" prefix .
fresh 0 0 "" ""
expect "for a package" 0 "" "" env DESTDIR=stage "$tools/install.sh" prefix .

fresh 1000 0 "" ""
touch prefix/lib/of_others
"$machine/bin/cmake"
expect "what was installed elsewhere" 1 "" "nothing was last installed into $machine/other" \
    "$tools/uninstall.sh" other .
expect "removed again" 0 "" "" "$tools/uninstall.sh" prefix/../prefix .
expect "what is left" 0 "" "^prefix prefix/include prefix/lib prefix/lib/of_others $" \
    sh -c 'find prefix | sort | tr "\n" " "'
expect "not once more" 1 "" "nothing was last installed" "$tools/uninstall.sh" prefix .
exit "$failures"
