# Turns the CSV of kfmbench into the tables of docs/measurements.md, one family at a time:
#   awk -F, -v family=DFTFwd_RToPerm -f bench/measurements.awk build/x86-64/bench.csv
# A variant of the library has a column more for each precision, its time against the base build's.
BEGIN { if (family == "") family = "DFTFwd_CToC" }
$1 ~ "^kfmg" family "_" {
    fields = split($1, part, "_")
    length_ = part[fields - 1]; element = part[fields]; precision = substr(element, 1, 2)
    name[precision] = element
    ns[length_, precision] = $2; ratio[length_, precision] = $5; bound[length_, precision] = $10
    base[length_, precision] = $13
    if (!(length_ in seen)) { seen[length_] = 1; order[++count] = length_ }
    logs[precision] += log($5)
    if ($13) { baseLogs[precision] += log($13); variant = 1 }
}
function heading(precision) {
    return sprintf(" %s ns | %s / FFTW |", name[precision], name[precision]) \
           (variant ? " " name[precision] " / base |" : "")
}
function columns(n, precision) {
    return sprintf(" %.1f | %.2f |", ns[n, precision], ratio[n, precision]) \
           (variant ? sprintf(" %.2f |", base[n, precision]) : "")
}
function means(precision) {
    return sprintf(" | %.2f |", exp(logs[precision] / count)) \
           (variant ? sprintf(" %.2f |", exp(baseLogs[precision] / count)) : "")
}
END {
    if (count == 0) exit 1
    print "| N |" heading("32") heading("64") " " name["64"] " / bound |"
    print "|--:|--:|--:|--:|--:|--:|" (variant ? "--:|--:|" : "")
    for (i = 1; i <= count; ++i)
        printf "| %d |%s%s %.2f |\n", order[i], columns(order[i], "32"), columns(order[i], "64"),
               bound[order[i], "64"]
    print "| geometric mean |" means("32") means("64") " |"
}
