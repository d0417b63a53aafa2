#!/bin/sh
# renew_rows.sh <target of the generator> <table>...: which rows go singly, from tables of rowsbench
# that were measured with all rows in groups (an empty src/rows/singly.def): 64 contiguous ones, 4096
# (far ones) and columns. A length counts as slower where it is so by more than 2 % for any function
# of its kernels, of each side the best of all tables.
set -eu
target=$1
shift
file=$(dirname "$0")/../src/rows/singly.def
{
    grep -v "^KFM_ROWS_SINGLY($target," "$file"
    awk -F, -v target="$target" '
        FNR == 1 { next }
        {
            count = split($1, part, "_")
            source = $1 ~ /CToC/ ? "DFT_CToC" : $1 ~ /RTo/ ? "DFTFwd_RToPacked" \
                   : $1 ~ /ToR_/ ? "DFTInv_PackedToR" : "Hartley"
            spacing = $2 ~ /columns/ ? "spaced" : $3 > 64 ? "far" : "contiguous"
            name = spacing " " $1
            if (!(name in best) || $4 < best[name]) best[name] = $4
            if (!(name in single) || $5 < single[name]) single[name] = $5
            kernel[name] = source ", " part[count] ", " spacing
            length_of[name] = part[count - 1]
        }
        END {
            for (name in best)
                if (best[name] > 1.02 * single[name]) slower[kernel[name], length_of[name]] = 1
            for (name in best) kernels[kernel[name]] = 1
            for (k in kernels) {
                if (target ~ /^sse2/ && k ~ /64fc/) continue   # go singly anyway
                row = ""
                near = k
                sub("far", "contiguous", near)   # said of all, it need not be said of far ones
                for (n = 2; n <= 64; ++n)
                    if ((k, n) in slower && (near == k || !((near, n) in slower))) row = row " " n
                if (row != "") print "KFM_ROWS_SINGLY(" target ", " k "," row ")"
            }
        }' "$@" | sort
} > "$file.new"
mv "$file.new" "$file"
