# Turns the CSV of errorbench into the table of mean errors in docs/measurements.md:
#   build/x86-64/bin/errorbench > errors.csv; awk -F, -f bench/measurements_errors.awk errors.csv
BEGIN {
    columns = split("DFTFwd_CToC 32fc,DFTFwd_CToC 64fc,DFTFwd_RToCCS 32f,DFTFwd_RToCCS 64f," \
                    "DFTInv_CCSToR 32f,DFTInv_CCSToR 64f,Hartley 32f,Hartley 64f", column, ",")
}
$1 ~ /^kfmg/ {
    fields = split(substr($1, 5), part, "_")
    n = part[fields - 1]; element = part[fields]; family = part[1]
    for (i = 2; i < fields - 1; ++i) family = family "_" part[i]
    key = family " " element
    cell[n, key] = sprintf("%.2f / %.2f", $2, $3)
    logs[key] += log($4); ++count[key]
    if ($4 > worst[key]) { worst[key] = $4; at[key] = n }
    if (n > last) last = n
}
END {
    print "| N | complex 32fc | complex 64fc | real 32f | real 64f | inverse 32f | inverse 64f" \
          " | Hartley 32f | Hartley 64f |"
    print "|--:|--:|--:|--:|--:|--:|--:|--:|--:|"
    for (n = 2; n <= last; ++n) {
        row = "| " n " |"
        for (i = 1; i <= columns; ++i) row = row " " cell[n, column[i]] " |"
        print row
    }
    mean = "| geometric mean of the ratios |"; most = "| largest ratio |"
    for (i = 1; i <= columns; ++i) {
        key = column[i]
        mean = mean sprintf(" %.3f |", exp(logs[key] / count[key]))
        most = most sprintf(" %.2f at %d |", worst[key], at[key])
    }
    print mean; print most
}
