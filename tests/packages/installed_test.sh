#!/bin/sh
# installed_test.sh <source folder> <architectures>: in the folder /work of a fresh system, which
# packages_test.sh has filled, installs the packages of the architectures side by side, looks at their
# files, does what the README says, and purges them. Nothing may be left, and nothing tell where they
# were built.
set -eu
built=$1
architectures=$2
cd /work
status=0
complain() { echo "$*" >&2; status=1; }
quietly() { "$@" > log 2>&1 || { cat log; exit 1; }; }

files() {
    find / \( -path /dev -o -path /proc -o -path /work -o -path /tmp -o -path /var/cache \
        -o -path /var/lib/apt -o -path /var/lib/dpkg -o -path /var/log \) -prune -o -print | sort
}

quietly apt-get update
files > before
quietly apt-get install -y --no-install-recommends ./*.deb
installed=$(for deb in *.deb; do
    echo "$(dpkg-deb -f "$deb" Package):$(dpkg-deb -f "$deb" Architecture)"
done)
changed=$(dpkg --verify $installed)
[ -z "$changed" ] || complain "$changed: packed otherwise."

for file in $(dpkg -L $installed | sort -u); do
    [ -f "$file" ] && [ ! -L "$file" ] || continue
    ! grep -qF "$built" "$file" || complain "$file tells where it was built."
    case $file in *.debug | *.a) continue ;; esac
    id=$(readelf -n "$file" 2>/dev/null | sed -n 's/.*Build ID: //p')
    [ -n "$id" ] || continue   # no program
    ! readelf -d "$file" | grep -E 'R(UN)?PATH' || complain "$file has a run path."
    ! readelf -SW "$file" | grep -E '\.(symtab|debug)' || complain "$file is not stripped."
    rest=${id#??}
    readelf -SW "/usr/lib/debug/.build-id/${id%"$rest"}/$rest.debug" 2> log |
        grep -q '\.debug_line' ||
        complain "$file has no debug symbols."
done

mkdir home
# commands <multiarch name> <C compiler> <C++ compiler>: a folder of that name, with commands that go
# before others in its folder bin: compilers of the target, and a make that has nothing to do.
commands() {
    mkdir -p "$1/bin"
    printf '#!/bin/sh\n' > "$1/bin/make"
    printf '#!/bin/sh\nexec /usr/bin/%s "$@"\n' "$2" > "$1/bin/cc"
    printf '#!/bin/sh\nexec /usr/bin/%s "$@"\n' "$3" > "$1/bin/c++"
    chmod +x "$1"/bin/*
    cd "$1"
    export PKG_CONFIG_LIBDIR="/usr/lib/$1/pkgconfig"
}
# programs <multiarch name> <variant> [<compiler flag>]: what the README says.
programs() {
    commands "$1" "cc ${3:-}" "c++ ${3:-}"
    PATH=$PWD/bin:$PATH quietly sh -eux ../readme.sh
    quietly cmake -D multiarch="$1" -D variant="$2" -D program="$PWD/build/example" \
        -P ../taken.cmake
    cd ..
}
# emulated <multiarch name>: its first programs, in C and C++, and the first linked statically.
emulated() {
    commands "$1" "clang --target=$1" "clang++ --target=$1"
    sed '/^kfmgen /,$d; /^python3 /d; s,^\./,qemu-aarch64 ./,' ../readme.sh > first.sh
    echo 'cc -static example.c $(pkg-config --static --cflags --libs kfmgen) && qemu-aarch64 ./a.out' \
        >> first.sh
    [ "$(grep -c qemu-aarch64 first.sh)" -ge 4 ] || complain "The README has other programs."
    PATH=$PWD/bin:$PATH quietly sh -eux first.sh
    cd ..
}
for architecture in $architectures; do
    case $architecture in
    amd64)
        v3=
        ! /lib64/ld-linux-x86-64.so.2 --help | grep -q 'x86-64-v3 (supported' ||
            v3=glibc-hwcaps/x86-64-v3
        programs x86_64-linux-gnu "$v3" ;;
    i386) programs i386-linux-gnu "" -m32 ;;
    "$(dpkg --print-architecture)") programs aarch64-linux-gnu "" ;;
    *) emulated aarch64-linux-gnu ;;
    esac
done
if command -v kfmgen > /dev/null; then
    printf '%s\n' 1 0 0 0 0 0 0 0 > impulse.txt
    [ "$(kfmgen transform --length 8 impulse.txt | grep -c ',1,0$')" -eq 8 ] ||
        complain "The spectrum of an impulse is not flat."
fi

quietly apt-get purge -y --autoremove $installed
files > after
diff before after || complain "Installed and purged again, the packages change the system."
! ldconfig -p | grep libkfm || complain "The loader still knows the libraries."
exit "$status"
