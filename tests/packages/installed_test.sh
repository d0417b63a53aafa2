#!/bin/sh
# installed_test.sh <source folder>: in the folder /work of a fresh system, which packages_test.sh has
# filled, installs the packages of both architectures side by side, looks at their files, does what
# the README says, and purges them. Nothing may be left, and nothing tell where they were built.
set -eu
built=$1
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
[ -z "$(dpkg --verify $installed | tee /dev/stderr)" ] || complain "That was packed otherwise."

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

v3=
! /lib64/ld-linux-x86-64.so.2 --help | grep -q 'x86-64-v3 (supported' ||
    v3=glibc-hwcaps/x86-64-v3
mkdir home
# programs <multiarch name> <variant> [<compiler flag>]: what the README says, with a folder of
# commands before the others: compilers of the target, and a make that has nothing to do.
programs() {
    mkdir -p "$1/bin"
    printf '#!/bin/sh\n' > "$1/bin/make"
    for compiler in cc c++; do
        printf '#!/bin/sh\nexec /usr/bin/%s %s "$@"\n' "$compiler" "${3:-}" > "$1/bin/$compiler"
    done
    chmod +x "$1"/bin/*
    cd "$1"
    PATH=$PWD/bin:$PATH PKG_CONFIG_LIBDIR=/usr/lib/$1/pkgconfig quietly sh -eux ../readme.sh
    quietly cmake -D multiarch="$1" -D variant="$2" -D program="$PWD/build/example" \
        -P ../taken.cmake
    cd ..
}
programs x86_64-linux-gnu "$v3"
programs i386-linux-gnu "" -m32
printf '%s\n' 1 0 0 0 0 0 0 0 > impulse.txt
[ "$(kfmgen transform --length 8 impulse.txt | grep -c ',1,0$')" -eq 8 ] ||
    complain "The spectrum of an impulse is not flat."

quietly apt-get purge -y --autoremove $installed
files > after
diff before after || complain "Installed and purged again, the packages change the system."
! ldconfig -p | grep libkfm || complain "The loader still knows the libraries."
exit "$status"
