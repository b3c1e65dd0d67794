#!/usr/bin/env python3
"""Proves the table of the benchmarks on runs made up here."""

import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "benchmarks"))
import table  # noqa: E402


def timed(name, cpu_time, **more):
    return {"name": name, "cpu_time": cpu_time, "time_unit": "us", "run_type": "iteration", **more}


LAYOUT = "measure and lay out"
RUN = {"benchmarks": [
    timed(f"{LAYOUT}/scribe/1000/0", 300, lines=20),
    timed(f"{LAYOUT}/scribe/1000/0", 200, lines=20),
    timed(f"{LAYOUT}/scribe/1000/0_mean", 1, run_type="aggregate"),
    timed(f"{LAYOUT}/QTextDocument/1000/0", 800, lines=20),
    timed(f"{LAYOUT}/Pango/1000/0", 400, lines=21),
    timed("copy bytes/memcpy/1000/0", 0.05),
    timed("read/scribe/1000/0", 10),
    timed("memory/scribe/1000/0/iterations:1", 10, bytes=250_000),
]}


class Table(unittest.TestCase):
    def setUp(self):
        self.figures, self.lines = table.measured(RUN)
        self.rows = {row[0]: row for row in table.table(self.figures)}

    def test_takes_the_fastest_of_several_runs_and_no_aggregate(self):
        self.assertEqual(self.rows[LAYOUT][3], "200 µs")

    def test_compares_with_the_nearest_peer(self):
        self.assertEqual(self.rows[LAYOUT][8], "0.50")

    def test_leaves_the_comparison_open_where_there_is_no_peer(self):
        self.assertEqual(self.rows["read"][5:], ["-", "-", "50.0 ns", "-"])

    def test_tells_the_figure_of_one_letter(self):
        self.assertEqual(self.rows[LAYOUT][4], "200 ns")
        self.assertEqual(self.rows["memory"][3:5], ["244 KiB", "250 B"])

    def test_is_one_table_with_as_many_cells_in_each_row(self):
        lines = table.markdown(table.table(self.figures)).splitlines()
        self.assertEqual({line.count("|") for line in lines}, {10})
        self.assertEqual(len({len(line) for line in lines}), 1)

    def test_finds_a_peer_that_was_not_measured(self):
        self.assertEqual(table.faults(self.figures, self.lines), ["memory of 1000 letters, plain: nothing of QTextDocument",
                                                                  "memory of 1000 letters, plain: nothing of Pango"])

    def test_finds_a_peer_that_broke_other_lines(self):
        lines = {**self.lines, (LAYOUT, "Pango", 1000, 0): 23}
        self.assertIn(f"{LAYOUT} of 1000 letters, plain: 20 lines, but 23 of Pango", table.faults(self.figures, lines))


if __name__ == "__main__":
    unittest.main()
