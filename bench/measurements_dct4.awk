# Turns the CSV of dct4bench into the table of the DCT-IV in docs/measurements.md:
#   awk -F, -f bench/measurements_dct4.awk build/x86-64/dct4bench.csv
# A variant of the library has a column more for each precision, its time against the base build's.
$2 ~ /^[0-9]+$/ {
    if (!($2 in seen)) { seen[$2] = 1; order[++count] = $2 }
    ns[$2, $1] = $3; cost[$2, $1] = $4; fftw[$2, $1] = $6; half[$2, $1] = $8; base[$2, $1] = $10
    planning[$2, $1] = $11
    if ($10) variant = 1
    # From where the stages are at work to where the caches end.
    if ($2 >= 64 && $2 <= 65536) {
        ++n[$1]
        logs["fftw", $1] += log($6); logs["half", $1] += log($8)
        if ($10) logs["base", $1] += log($10)
    }
}
function heading(element) {
    return " " element " ns | / (N log2 N) | / REDFT11 | / half length |" \
           (variant ? " / base |" : "")
}
function columns(length_, element) {
    return sprintf(" %.4g | %.3f | %.2f | %.2f |", ns[length_, element], cost[length_, element],
                   fftw[length_, element], half[length_, element]) \
           (variant ? sprintf(" %.2f |", base[length_, element]) : "")
}
function mean(kind, element) { return sprintf(" %.2f |", exp(logs[kind, element] / n[element])) }
function means(element) {
    return " | |" mean("fftw", element) mean("half", element) (variant ? mean("base", element) : "")
}
END {
    if (count == 0) exit 1
    print "| length |" heading("32f") heading("64f") " planning 32f, us |"
    print "|--:|--:|--:|--:|--:|--:|--:|--:|--:|--:|" (variant ? "--:|--:|" : "")
    for (i = 1; i <= count; ++i)
        print "| " order[i] " |" columns(order[i], "32f") columns(order[i], "64f") \
              sprintf(" %.4g |", planning[order[i], "32f"])
    if (n["32f"] && n["64f"])
        print "| geometric mean, 64 to 65536 |" means("32f") means("64f") " |"
}
