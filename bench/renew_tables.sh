#!/bin/sh
# renew_tables.sh [folder of builds]: writes the tables of docs/measurements.md, its picture and that of
# the README again from what `make bench` measured. Above each table stands the script and the CSV that it
# comes from:
#   <!-- table: measurements.awk x86-64/bench.csv family=DFTFwd_CToC -->
# and above the line that names a processor the file with its name.
# Where that CSV is not there the table stays; figures within the text are for its author.
set -eu
cd "$(dirname "$0")/.."
document=docs/measurements.md
renewed=$(mktemp)
trap 'rm -f "$renewed"' EXIT
awk -v build="${1:-build}" '
    /^<!-- table: / {
        option = $5 == "-->" ? "" : "-v " $5
        command = "awk -F, " option " -f bench/" $3 " \047" build "\047/" $4 " 2>/dev/null"
        table = ""
        while ((command | getline row) > 0) table = table row "\n"
        missing = close(command)
        print
        print ""
        if (!missing) printf "%s", table
        skipping = !missing
        blank = 1
        next
    }
    /^<!-- processor: / {
        name = ""
        file = build "/" $3
        split($3, part, "/")
        named = (getline name < file) > 0
        close(file)
        print
        if (named) {
            getline   # the one before
            print "Measured on, " part[1] ": " name
        }
        next
    }
    blank && /^$/ { blank = 0; next }   # between the marker and its table
    { blank = 0 }
    skipping && /^\|/ { next }
    { skipping = 0; print }
' "$document" >"$renewed"
cp "$renewed" "$document"

measured=${1:-build}/x86-64
[ ! -e "$measured/accuracy.svg" ] || cp "$measured/accuracy.svg" docs/pictures
if [ -e "$measured/bench.csv" ] && [ -e "$measured/rowsbench.csv" ]; then
    if command -v gnuplot >/dev/null; then
        gnuplot -e "folder='$measured'" bench/speed.gnuplot > docs/pictures/speed.svg
    else
        echo "The picture stays: gnuplot is not installed (Debian: gnuplot-nox)." >&2
    fi
fi
