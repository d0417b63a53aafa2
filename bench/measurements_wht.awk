# Turns the CSV of kfmbench into the table of the Walsh-Hadamard transform in docs/measurements.md;
# from several runs, the quickest of each order:
#   awk -F, -f bench/measurements_wht.awk build/x86-64/bench.csv
# A variant of the library has a column more for each precision, its time against the base build's.
$1 ~ /^kfmgWHT_/ {
    split($1, part, "_")
    order = part[2]; element = part[3]
    if (ns[order, element] && ns[order, element] <= $2) next
    ns[order, element] = $2; ratio[order, element] = $5; additions[order, element] = 2 / $10
    bytes = 2 * 2 ^ order * (element == "32f" ? 4 : 8)   # read and written
    rate[order, element] = bytes / $2
    ++rows
    base[order, element] = $13
    if ($13) variant = 1
}
function columns(order, element) {
    return sprintf(" %.1f | %.2f |", ns[order, element], ratio[order, element]) \
           (variant ? sprintf(" %.2f |", base[order, element]) : "") \
           sprintf(" %.2f | %.1f |", additions[order, element], rate[order, element])
}
END {
    if (!rows) exit 1
    middle = variant ? " | / base" : ""
    print "| order | 32f ns | / plain loop" middle " | additions per cycle | GB/s" \
          " | 64f ns | / plain loop" middle " | additions per cycle | GB/s |"
    print "|--:|--:|--:|--:|--:|--:|--:|--:|--:|" (variant ? "--:|--:|" : "")
    for (order = 1; order <= 13; ++order)
        print "| " order " |" columns(order, "32f") columns(order, "64f")
}
