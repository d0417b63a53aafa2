# The picture of the README: the library's time as a part of FFTW's for every length, one call after the
# other and 64 rows at a time. bench/renew_tables.sh sets `folder`, where the tables of `make bench`
# are.
set terminal svg size 960,430 font "sans-serif,13" background "white"
set datafile separator ","
set multiplot layout 1,2 title "Time beside FFTW's fastest plan: below 1 is faster" font ",16"

set xlabel "length" offset 0,0.4
set xtics 8
set xrange [0:66]
set logscale y
set yrange [0.08:2]
set ytics (0.1, 0.2, 0.5, 1, 2)
set grid ytics lc rgb "#dddddd" lt 1
set border 3 lc rgb "#444444"
set tics nomirror
set key below horizontal samplen 0.5 width 2
set style line 1 lc rgb "#1b6ca8" pt 7 ps 0.55
set style line 2 lc rgb "#d1495b" pt 7 ps 0.55
set style line 3 lc rgb "#66a182" pt 7 ps 0.55
set style line 4 lc rgb "#edae49" pt 7 ps 0.55
set arrow from 0,1 to 66,1 nohead lc rgb "#444444" dt 2

# Of the functions of one family and element in a table, length and quotient of two columns; of several
# runs the least of each.
ratios(table, rows, function, element, ours, theirs) = sprintf("< awk -F, '$1 ~ /^kfmg%s_[0-9]+_%s$/ && %s { count = split($1, part, \"_\"); n = part[count - 1]; if (!(n in a) || $%d + 0 < a[n]) a[n] = $%d; if (!(n in b) || $%d + 0 < b[n]) b[n] = $%d } END { for (n in a) print n \",\" a[n] / b[n] }' '%s/%s'", function, element, rows, ours, ours, theirs, theirs, folder, table)
single(function, element) = ratios("bench.csv", "1", function, element, 2, 4)
together(function, element) = ratios("rowsbench.csv", "$2 == \"contiguous\" && $3 == 64", function, element, 4, 6)

set title "one call after the other"
plot single("DFTFwd_CToC", "32fc") with points ls 1 title "complex, single", \
     single("DFTFwd_CToC", "64fc") with points ls 2 title "complex, double", \
     single("DFTFwd_RToCCS", "32f") with points ls 3 title "real, single", \
     single("DFTFwd_RToCCS", "64f") with points ls 4 title "real, double"
set title "64 contiguous rows in one call"
plot together("DFTFwd_CToC", "32fc") with points ls 1 title "complex, single", \
     together("DFTFwd_CToC", "64fc") with points ls 2 title "complex, double", \
     together("DFTFwd_RToCCS", "32f") with points ls 3 title "real, single", \
     together("DFTFwd_RToCCS", "64f") with points ls 4 title "real, double"
unset multiplot
