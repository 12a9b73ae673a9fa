#!/usr/bin/env python3
"""The judge of a long run finds each thing that must not be, and nothing where all is well."""
import math
import random
import unittest

import judge


def rows_of(minutes, **changes):
    """A run of so many minutes in which all is well; a change is a function of the row's number."""
    noise = random.Random(1)
    rows = []
    for number in range(minutes + 1):
        row = dict.fromkeys(judge.EXACT, 7)
        row |= dict.fromkeys(judge.TIMES, 1000 * (1 + noise.random()))
        row |= {"seconds": 60.0 * number, "private_kb": 60000 + 64 * (number > 40), "direct2d_frames": number % 2 * (number < 30),
                "rebuilds": 2, "left_windows": 2, "windows_made": 3 * number, "classes": 3 * number, "looks": 1, "ghosts": 0,
                "gdi_seen": 1, "direct2d_seen": 1}
        rows.append(row | {name: change(number) for name, change in changes.items()})
    return rows


class Judge(unittest.TestCase):
    def failures(self, minutes=60, **changes):
        return judge.judge(rows_of(minutes, **changes)).failures

    def test_finds_nothing_where_all_is_well(self):
        self.assertEqual(self.failures(), [])

    def test_a_single_object_is_too_many(self):
        for name in judge.EXACT:
            found = self.failures(**{name: lambda number: 8 if number == 60 else 7})
            self.assertEqual(len(found), 1)
            self.assertIn(name, found[0])

    def test_the_first_interval_may_still_make_objects(self):
        self.assertEqual(self.failures(gdi_objects=lambda number: 6 if number == 0 else 7), [])

    def test_finds_memory_that_grows_after_direct2d(self):
        found = self.failures(private_kb=lambda number: 60000 + 64 * max(number - 30, 0))
        self.assertEqual(len(found), 1)
        self.assertIn("private_kb", found[0])

    def test_memory_that_grows_only_with_direct2d_is_not_the_librarys(self):
        self.assertEqual(self.failures(private_kb=lambda number: 60000 + 64 * min(number, 29)), [])

    def test_without_direct2d_all_memory_counts(self):
        found = self.failures(direct2d_frames=lambda number: 0, private_kb=lambda number: 60000 + 64 * min(number, 29))
        self.assertEqual(len(found), 1)

    def test_finds_frames_that_take_longer_and_longer(self):
        found = self.failures(gdi_p50_us=lambda number: 1000 + 20 * number + 50 * math.sin(number))
        self.assertEqual(len(found), 1)
        self.assertIn("gdi_p50_us", found[0])

    def test_a_short_run_is_not_judged_by_lines(self):
        self.assertEqual(self.failures(20, private_kb=lambda number: 64 * number, gdi_p50_us=lambda number: number), [])

    def test_finds_ink_that_stays_and_looks_that_saw_nothing(self):
        for name, value in (("ghosts", 1), ("looks", 0), ("gdi_seen", 0), ("direct2d_seen", 0)):
            self.assertEqual(len(self.failures(**{name: lambda number, value=value: value})), 1, name)

    def test_finds_windows_and_classes_that_nobody_expects(self):
        self.assertEqual(len(self.failures(left_windows=lambda number: 3)), 1)
        self.assertEqual(len(self.failures(classes=lambda number: 3 * number + 1)), 1)

    def test_finds_a_run_without_rows(self):
        self.assertEqual(len(judge.judge([]).failures), 1)

    def test_has_students_distribution(self):
        for freedom, point in ((10, 2.228), (30, 2.042), (60, 2.000)):
            self.assertAlmostEqual(judge.student_975(freedom), point, places=3)

    def test_the_interval_of_a_line_is_the_books(self):
        slope, low, high = judge.fit([(x, y) for x, y in enumerate((1, 3, 2, 5, 4, 6, 8, 7, 9, 11, 10, 12))])
        self.assertAlmostEqual(slope, 0.9720, places=4)
        self.assertAlmostEqual(high - slope, 2.228 * 0.0743, places=3)
        self.assertAlmostEqual(slope - low, high - slope)


if __name__ == "__main__":
    unittest.main()
