# Turns the CSV of kfmbench into the table of docs/measurements.md, forward transforms:
#   awk -F, -f bench/measurements.awk build/x86-64/bench.csv
$1 ~ /^kfmgDFTFwd_CToC_/ {
    split($1, part, "_")
    length_ = part[3]; element = part[4]
    ns[length_, element] = $2; ratio[length_, element] = $5; bound[length_, element] = $10
    if (!(length_ in seen)) { seen[length_] = 1; order[++count] = length_ }
    logs[element] += log($5)
}
END {
    print "| N | 32fc ns | 32fc / FFTW | 64fc ns | 64fc / FFTW | 64fc / bound |"
    print "|--:|--:|--:|--:|--:|--:|"
    for (i = 1; i <= count; ++i) {
        n = order[i]
        printf "| %d | %.1f | %.2f | %.1f | %.2f | %.2f |\n", n, ns[n, "32fc"], ratio[n, "32fc"],
               ns[n, "64fc"], ratio[n, "64fc"], bound[n, "64fc"]
    }
    printf "| geometric mean | | %.2f | | %.2f | |\n", exp(logs["32fc"] / count),
           exp(logs["64fc"] / count)
}
