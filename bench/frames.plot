# Frame cost against live ink: the library's as points on a line, the bare calls' as a dashed line of the same colour.
set terminal svg size 800,520 dynamic background "white"
set output folder."/frames.svg"
set logscale xy
set key outside right
set xlabel "live samples (engine), live segments (back-ends)"
set ylabel "a frame, microseconds"
file = folder."/frames.dat"
stats file using 1 nooutput
plot for [i=0:STATS_blocks-1] file index i using 1:2 with linespoints linecolor i+1 pointtype 7 title columnheader(1), \
    for [i=0:STATS_blocks-1] file index i using 1:3 with lines linecolor i+1 dashtype 2 title (i == 0 ? "bare" : "")
