#!/usr/bin/env python3
"""Whether a long run gathers anything: judge.py CSV MARKDOWN. See scripts/soak.

Counts are exact: from the second row on, which the first interval warms up for, each row has the count of the one before.

Memory and times are fitted by a straight line y = a + b x by least squares, without the first sixth of the rows. With
n rows, Sxx = sum (x - mean x)^2 and s^2 = sum (y - a - b x)^2 / (n - 2), the slope b has the standard error s / sqrt(Sxx),
and its 95 % interval is b -/+ t se, t being the 97.5 % point of Student's distribution with n - 2 degrees of freedom. A series
fails where this whole interval lies above 0 and the line grows over the run by more than what would matter. Neither is
judged in a run of less than half an hour.

Memory counts from the row on behind which Direct2D draws nothing any more: Wine's Direct2D grows with each line, in a program of
bare calls too, and leaves the heap that everything shares in pieces.
"""
import csv
import math
import statistics
import sys

EXACT = ("gdi_objects", "user_objects", "kernel_handles", "windows", "dialogs", "memory_blocks")
TIMES = ("gdi_p50_us", "gdi_p99_us", "direct2d_p50_us", "direct2d_p99_us")
SHORTEST_JUDGED_S = 1800
MEMORY_THAT_MATTERS_KB = 256  # Wine commits by 64 KiB: one such step is no growth
TIME_THAT_MATTERS = 0.25  # of the series' mean


def student_975(freedom):
    """By Fisher's expansion: right to three decimals from ten degrees of freedom on."""
    z = statistics.NormalDist().inv_cdf(0.975)
    return (z + (z**3 + z) / (4 * freedom) + (5 * z**5 + 16 * z**3 + 3 * z) / (96 * freedom**2) +
            (3 * z**7 + 19 * z**5 + 17 * z**3 - 15 * z) / (384 * freedom**3))


def fit(points):
    """The slope of the line, and the lower and upper end of its interval."""
    xs, ys = zip(*points)
    mean_x, mean_y = statistics.fmean(xs), statistics.fmean(ys)
    sxx = sum((x - mean_x)**2 for x in xs)
    slope = sum((x - mean_x) * (y - mean_y) for x, y in points) / sxx
    rest = sum((y - mean_y - slope * (x - mean_x))**2 for x, y in points)
    reach = student_975(len(points) - 2) * math.sqrt(rest / (len(points) - 2) / sxx)
    return slope, slope - reach, slope + reach


def memory_points(rows):
    """The memory from the last row with Direct2D on."""
    with_direct2d = [place for place, row in enumerate(rows) if row["direct2d_frames"]]
    return [(row["seconds"] / 3600, row["private_kb"]) for row in rows[max(with_direct2d, default=0):]]


class Verdict:
    def __init__(self):
        self.rows = []
        self.failures = []

    def say(self, series, first, last, slope, interval, failure):
        self.rows.append((series, first, last, slope, interval, failure or "passed"))
        if failure:
            self.failures.append(f"{series}: {failure}")

    def exact(self, name, rows):
        counts = [int(row[name]) for row in rows[1:]]
        moved = sum(1 for before, count in zip(counts, counts[1:]) if count != before)
        self.say(name, counts[0], counts[-1], "", "", f"FAILED: moves {moved} times" if moved else "")

    def line(self, name, points, matters, judged):
        points = points[len(points) // 6:]
        if len(points) < 3:
            self.rows.append((name, "", "", "", "", "too few rows"))
            return
        slope, low, high = fit(points)
        growth = slope * (points[-1][0] - points[0][0])
        failure = f"FAILED: grows by {growth:.1f}" if judged and low > 0 and growth > matters(points) else ""
        self.say(name, f"{points[0][1]:.1f}", f"{points[-1][1]:.1f}", f"{slope:.1f}", f"{low:.1f} to {high:.1f}", failure)
        if not judged:
            self.rows[-1] = (*self.rows[-1][:-1], "not judged: too short a run")

    def same(self, what, one, other):
        self.say(what, one, other, "", "", "" if one == other else "FAILED: not the same")

    def none(self, what, count):
        self.say(what, 0, int(count), "", "", "" if count == 0 else "FAILED: there are some")

    def some(self, what, count):
        self.say(what, "", int(count), "", "", "" if count > 0 else "FAILED: there is none")


def judge(rows):
    verdict = Verdict()
    if len(rows) < 3:
        verdict.failures.append(f"only {len(rows)} rows")
        return verdict
    judged = rows[-1]["seconds"] >= SHORTEST_JUDGED_S
    for name in EXACT:
        verdict.exact(name, rows)
    verdict.line("private_kb after Direct2D", memory_points(rows), lambda points: MEMORY_THAT_MATTERS_KB, judged)
    for name in TIMES:
        points = [(row["seconds"] / 3600, row[name]) for row in rows[1:] if row[name] is not None]
        verdict.line(name, points, lambda points: TIME_THAT_MATTERS * statistics.fmean(y for _, y in points), judged)

    def total(name):
        return sum(row[name] for row in rows)
    verdict.same("left windows, for each rebuild one", total("rebuilds"), total("left_windows"))
    verdict.same("classes, for each window made one", rows[-1]["windows_made"], rows[-1]["classes"])
    verdict.none("ink that outlives its life", total("ghosts"))
    verdict.some("looks for such ink", total("looks"))
    verdict.some("ink seen while written, GDI", total("gdi_seen"))
    verdict.some("ink seen while written, Direct2D", total("direct2d_seen"))
    return verdict


def main():
    with open(sys.argv[1], newline="", encoding="utf-8") as file:
        rows = [{name: float(value) if value else None for name, value in row.items()} for row in csv.DictReader(file)]
    verdict = judge(rows)
    head = ("Series", "First", "Last", "Slope an hour", "95 % interval", "Verdict")
    lines = [head, ["---"] * len(head), *verdict.rows]
    with open(sys.argv[2], "w", encoding="utf-8") as file:
        file.writelines(f"| {' | '.join(str(cell) for cell in line)} |\n" for line in lines)
    for failure in verdict.failures:
        print(f"soak: {failure}")
    sys.exit(1 if verdict.failures else 0)


if __name__ == "__main__":
    main()
