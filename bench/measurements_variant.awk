# Turns the CSV of kfmbench into the table of docs/measurements.md that has a row for every family:
#   awk -F, -f bench/measurements_variant.awk build/x86-64/bench.csv
# Ratios to the strongest peer and to the base build; beyond 1.03 of the base build's time counts as
# slower. Orders below 5 of the Walsh-Hadamard transform have a row of their own.
function add(kind, ratio) {
    if (ratio == "") return
    logs[row, kind] += log(ratio); ++count[row, kind]
    if (ratio > worst[row, kind]) { worst[row, kind] = ratio; at[row, kind] = n }
    if (ratio > (kind == "peer" ? 1 : 1.03)) ++behind[row, kind]
}
$1 ~ /^kfmg/ {
    fields = split(substr($1, 5), part, "_")
    n = part[fields - 1]; element = part[fields]; family = part[1]
    for (i = 2; i < fields - 1; ++i) family = family "_" part[i]
    if (family == "WHT") family = "WHT, orders " (n < 5 ? "1 to 4" : "5 to 13")
    row = family " " element
    if (!(row in seen)) { seen[row] = 1; order[++rows] = row }
    add("peer", $5); add("apart", $13); add("in place", $16)
}
function columns(row, kind) {
    if (!count[row, kind]) return " | | |"
    return sprintf(" %.2f | %.2f at %d | %d |", exp(logs[row, kind] / count[row, kind]),
                   worst[row, kind], at[row, kind], behind[row, kind])
}
END {
    if (rows == 0) exit 1
    print "| | / peer | worst | behind | / base | worst | beyond 1.03 | / base, in place | worst" \
          " | beyond 1.03 |"
    print "|---|--:|--:|--:|--:|--:|--:|--:|--:|--:|"
    for (i = 1; i <= rows; ++i)
        print "| " order[i] " |" columns(order[i], "peer") columns(order[i], "apart") \
              columns(order[i], "in place")
}
