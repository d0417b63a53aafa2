#!/bin/sh
# count_instructions.sh <folder of builds>: the instructions of each function of fixed length on x86-64,
# as any processor of it runs them, and on AArch64, as CSV: family,length,element,x86-64,aarch64. Of a
# function with a copy for other addresses the copy is left out, and so is what only fills up code.
set -eu
cd "$1"
library=lib/libkfmgenw7.so.6.1
# counts <objdump> <target>
counts() {
    "$1" -d --no-show-raw-insn "$2/$library" | awk -v target="$2" '
        /^[0-9a-f]+ <.*>:$/ { name = substr($2, 2, length($2) - 3); next }
        name ~ /^kfmg.*_[0-9]+_[0-9]+fc?$/ && /^ / && $2 !~ /^(nop|xchg|data16|cs|udf)/ { ++count[name] }
        END { for (name in count) print name, target, count[name] }'
}
{
    counts objdump x86-64
    counts aarch64-linux-gnu-objdump aarch64
} | awk '
    { count[$1, $2] = $3; names[$1] }
    END {
        for (name in names) {
            parts = split(substr(name, 5), part, "_")
            family = part[1] (parts > 3 ? "_" part[2] : "")
            print family "," part[parts - 1] "," part[parts] \
                "," count[name, "x86-64"] "," count[name, "aarch64"]
        }
    }' | sort -t, -k1,1 -k3,3 -k2,2n
