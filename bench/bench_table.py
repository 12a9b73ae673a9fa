#!/usr/bin/env python3
"""One table of what the benchmarks have printed, and what is to be plotted of it: see scripts/bench.

  bench_table.py FOLDER TEXT...

Each text has rows "| pair | library | bare | unit | ratio |". Writes bench.md, bench.csv and frames.dat into the folder.
"""
import csv
import pathlib
import re
import sys

ROW = re.compile(r"^\| (.+?) \| (-?[\d.]+) \| (-?[\d.]+) \| (ns|us|KiB) \| (\S+) \|$")
FRAME = re.compile(r"^(?:(\w+) )?frame/(\d+)$")
HEAD = ("pair", "library", "bare", "unit", "ratio")


def rows_of(texts):
    rows = []
    for text in texts:
        found = [match.groups() for match in map(ROW.match, pathlib.Path(text).read_text().splitlines()) if match]
        if not found:
            sys.exit(f"bench: {text} has no row of a table")
        rows += found
    return rows


def growth(rows):
    """Ten times the live ink should cost little more than ten times as much."""
    library = {row[0]: float(row[1]) for row in rows}
    small, large = library["frame/100"], library["frame/1000"]
    return ("frame/1000 to frame/100", f"{large:.1f}", f"{small:.1f}", "ns", f"{large / small:.2f}")


def microseconds(value, unit):
    return float(value) / (1000 if unit == "ns" else 1)


def plotted(rows):
    """Blocks for gnuplot, one for each subject: size, library, bare."""
    blocks = {}
    for pair, library, bare, unit, _ in rows:
        found = FRAME.match(pair)
        if found:
            line = f"{found[2]} {microseconds(library, unit):.4f} {microseconds(bare, unit):.4f}"
            blocks.setdefault(found[1] or "engine", []).append(line)
    return "\n\n\n".join(f'"{name}"\n' + "\n".join(lines) for name, lines in blocks.items()) + "\n"


def main():
    folder = pathlib.Path(sys.argv[1])
    rows = rows_of(sys.argv[2:])
    rows.append(growth(rows))
    with open(folder / "bench.csv", "w", newline="", encoding="utf-8") as file:
        csv.writer(file, lineterminator="\n").writerows([HEAD, *rows])
    lines = [HEAD, ["---"] * len(HEAD), *rows]
    (folder / "bench.md").write_text("".join(f"| {' | '.join(line)} |\n" for line in lines), encoding="utf-8")
    (folder / "frames.dat").write_text(plotted(rows), encoding="utf-8")


main()
