# Turns the CSV of count_instructions.sh into the tables of instructions in docs/measurements.md, one of
# the families or with -v by=length one of the lengths:
#   awk -F, -f bench/measurements_instructions.awk build/instructions.csv
{
    column = $1 " " $3
    ratio = $5 / $4
    if (!(column in lengths)) order[++columns] = column
    ++lengths[column]
    logs[column] += log(ratio)
    if (ratio > worst[column]) { worst[column] = ratio; at[column] = $2 }
    cell[column, $2] = sprintf("%d, %.2f", $5, ratio)
}
# Families whose functions differ by more than a layout or a sign, of lengths.
function isShown(column) {
    return column !~ /^WHT|^DFTInv_CToC|CCS|Pack/
}
END {
    if (!columns) exit 1
    if (by != "length") {
        print "| family | geometric mean | worst |"
        print "|:--|--:|--:|"
        for (c = 1; c <= columns; ++c) {
            column = order[c]
            printf "| %s | %.2f | %.2f at %d |\n", column, exp(logs[column] / lengths[column]),
                worst[column], at[column]
        }
        exit
    }
    heading = "| N |"
    rule = "|--:|"
    for (c = 1; c <= columns; ++c)
        if (isShown(order[c])) {
            heading = heading " " order[c] " |"
            rule = rule "--:|"
        }
    print heading
    print rule
    for (n = 2; n <= 64; ++n) {
        line = "| " n " |"
        for (c = 1; c <= columns; ++c)
            if (isShown(order[c])) line = line " " cell[order[c], n] " |"
        print line
    }
}
