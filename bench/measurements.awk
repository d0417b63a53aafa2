# Turns the CSV of kfmbench into the tables of docs/measurements.md, one family at a time:
#   awk -F, -v family=DFTFwd_RToPerm -f bench/measurements.awk build/x86-64/bench.csv
BEGIN { if (family == "") family = "DFTFwd_CToC" }
$1 ~ "^kfmg" family "_" {
    fields = split($1, part, "_")
    length_ = part[fields - 1]; element = part[fields]; precision = substr(element, 1, 2)
    name[precision] = element
    ns[length_, precision] = $2; ratio[length_, precision] = $5; bound[length_, precision] = $10
    if (!(length_ in seen)) { seen[length_] = 1; order[++count] = length_ }
    logs[precision] += log($5)
}
END {
    printf "| N | %s ns | %s / FFTW | %s ns | %s / FFTW | %s / bound |\n", name["32"], name["32"],
           name["64"], name["64"], name["64"]
    print "|--:|--:|--:|--:|--:|--:|"
    for (i = 1; i <= count; ++i) {
        n = order[i]
        printf "| %d | %.1f | %.2f | %.1f | %.2f | %.2f |\n", n, ns[n, "32"], ratio[n, "32"],
               ns[n, "64"], ratio[n, "64"], bound[n, "64"]
    }
    printf "| geometric mean | | %.2f | | %.2f | |\n", exp(logs["32"] / count),
           exp(logs["64"] / count)
}
