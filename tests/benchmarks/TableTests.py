"""The verdicts and figures of the table that ./bench prints."""

import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "benchmarks" / "runner"))

import table  # noqa: E402
from rows import WORKS, calls, load, query, screen, starts  # noqa: E402, F401  Each theme registers its rows.


class Figures(unittest.TestCase):
    def test_numbers_show_three_digits_that_count(self):
        self.assertEqual([table.number(value) for value in (0, 0.01234, 0.1234, 1.234, 12.34, 123.4, 1234.5)],
                         ["0", "0.0123", "0.123", "1.23", "12.3", "123", "1,234"])

    def test_times_show_the_unit_in_which_they_are_one_or_more(self):
        self.assertEqual([table.seconds(value) for value in (2.5, 0.0025, 2.5e-6, 2.5e-9, 2.5e-10)],
                         ["2.50 s", "2.50 ms", "2.50 µs", "2.50 ns", "0.250 ns"])


class Verdicts(unittest.TestCase):
    def test_a_ratio_at_its_bar_holds_and_one_above_falls_short(self):
        self.assertTrue(table.against("load", [1.2], [1.0], "peer", 1.2).holds)
        self.assertFalse(table.against("load", [1.21], [1.0], "peer", 1.2).holds)

    def test_a_ratio_is_of_the_medians(self):
        line = table.against("load", [1, 2, 90], [4, 4, 80], "peer", 1.2)
        self.assertEqual((line.ours, line.peer, line.ratio), ("2.00 s", "4.00 s peer", 0.5))

    def test_without_a_bar_there_is_no_verdict(self):
        line = table.against("load", [9], [1], "peer")
        self.assertEqual((line.holds, line.cells()[4:]), (None, ("", "")))

    def test_a_figure_at_its_bar_holds_and_one_above_falls_short(self):
        self.assertTrue(table.below("read", [4e-8], 4e-8).holds)
        self.assertFalse(table.below("read", [4.1e-8], 4e-8).holds)

    def test_sizes_are_the_same_within_a_tenth_whichever_is_larger(self):
        self.assertTrue(table.same("load", [1.1], [1.0], "at 10").holds)
        self.assertTrue(table.same("load", [1.0], [1.1], "at 10").holds)
        self.assertFalse(table.same("load", [1.11], [1.0], "at 10").holds)
        self.assertFalse(table.same("load", [1.0], [1.11], "at 10").holds)

    def test_a_line_shows_what_was_measured_and_the_verdict(self):
        line = table.against("load", [3.0], [1.0], "peer", 2)
        self.assertEqual(table.shown(line, markdown=True),
                         "| load | 3.00 s | 1.00 s peer | 3.00 | ratio at most 2.00 | falls short |")


class Documents(unittest.TestCase):
    def test_every_row_is_explained_and_no_other(self):
        text = (ROOT / "docs" / "performance.md").read_text()
        section = text[text.index("## The rows"):text.index("## Where the speed")]
        first_cells = re.findall(r"^\| (`[^|]*) \|", section, re.M)
        named = {name for cell in first_cells for name in re.findall(r"`([^`]+)`", cell)}
        self.assertEqual(named, set(WORKS))


if __name__ == "__main__":
    unittest.main()
