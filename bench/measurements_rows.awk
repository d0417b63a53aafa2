# Turns the CSV of rowsbench into the table of the library of rows in docs/measurements.md; from
# several runs, the quickest of each side:
#   awk -F, -f bench/measurements_rows.awk build/x86-64/rowsbench.csv
function least(times, key, value) {
    if (value != "" && (!(key in times) || value + 0 < times[key])) times[key] = value + 0
}
# The geometric mean of a ratio over the lengths of a group, where it is worst, how often beyond.
function columns(group, times, beyond,    n, ratio, sum, count, worst, at, behind) {
    for (n = 2; n <= 64; ++n) {
        if (!((group, n) in times) || !((group, n) in rows)) continue
        ratio = rows[group, n] / times[group, n]
        sum += log(ratio)
        ++count
        if (ratio > worst) { worst = ratio; at = n }
        behind += ratio > beyond
    }
    return count ? sprintf(" %.2f | %.2f at %d | %d |", exp(sum / count), worst, at, behind) \
                 : " | | |"
}
$1 ~ /^kfmg/ {
    count = split(substr($1, 5), part, "_")
    family = part[1] (count == 4 ? "_" part[2] : "")
    group = family " " part[count] SUBSEP $2 ", " $3
    if (!(group in seen)) { seen[group] = 1; order[++groups] = group }
    key = group SUBSEP part[count - 1]
    least(rows, key, $4)
    least(single, key, $5)
    least(peer, key, $6)
}
END {
    if (!groups) exit 1
    print "| | rows | / peer | worst | behind | / single calls | worst | beyond 1.02 |"
    print "|---|---|--:|--:|--:|--:|--:|--:|"
    for (i = 1; i <= groups; ++i) {
        split(order[i], name, SUBSEP)
        print "| " name[1] " | " name[2] " |" columns(order[i], peer, 1) columns(order[i], single, 1.02)
    }
}
