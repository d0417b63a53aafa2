# Turns the rows of `kfmgen accuracy --format csv` into the table of mean errors in
# docs/measurements.md.
BEGIN {
    columns = split("DFTFwd_CToC 32fc,DFTFwd_CToC 64fc,DFTFwd_RToCCS 32f,DFTFwd_RToCCS 64f," \
                    "DFTInv_CCSToR 32f,DFTInv_CCSToR 64f,Hartley 32f,Hartley 64f", column, ",")
    for (i = 1; i <= columns; ++i) wanted[column[i]] = 1
}
wanted[$2 " " $3] {
    key = $2 " " $3; n = $4
    cell[n, key] = sprintf("%.2f / %.2f", $5, $7)
    logs[key] += log($8); ++count[key]
    if ($8 > worst[key]) { worst[key] = $8; at[key] = n }
    if (n > last) last = n
}
END {
    if (last == 0) exit 1
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
