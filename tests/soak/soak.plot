# A long run over its minutes: the process's memory, the system's objects, and the time of a frame.
set terminal svg size 800,640 dynamic background "white"
set output folder."/soak.svg"
set datafile separator ","
file = folder."/soak.csv"
set key outside right width 4
set lmargin 12
set rmargin 26
set multiplot layout 3,1
set ylabel "private memory, MiB"
set yrange [0:*]
plot file using ($1/60):($12/1024) every ::1 with lines title "committed"
set ylabel "objects"
plot file using ($1/60):2 every ::1 with lines title "GDI", file using ($1/60):3 every ::1 with lines title "USER", \
    file using ($1/60):4 every ::1 with lines title "kernel handles", file using ($1/60):7 every ::1 with lines title "memory blocks"
set ylabel "a frame, ms"
set xlabel "minutes"
set logscale y
set yrange [*:*]
plot file using ($1/60):($23/1000) every ::1 with lines linecolor 1 title "GDI, median", \
    file using ($1/60):($24/1000) every ::1 with lines linecolor 3 title "GDI, 99th percentile", \
    file using ($1/60):($25/1000) every ::1 with points linecolor 2 pointtype 7 pointsize 0.5 title "Direct2D, median", \
    file using ($1/60):($26/1000) every ::1 with points linecolor 4 pointtype 7 pointsize 0.5 title "Direct2D, 99th"
