# SPDX-License-Identifier: MIT
"""Tests of the coverage table: which folder belongs to which part, and when a part is below its limit."""

import unittest

from coverage_table import table


def file(name: str, lines: int, of_lines: int, branches: int = 0, of_branches: int = 0) -> dict:
    return {"filename": name, "line_covered": lines, "line_total": of_lines, "branch_covered": branches,
            "branch_total": of_branches}


class Table(unittest.TestCase):
    def test_widgets_and_layouts_are_counted_on_their_own(self):
        shown, good = table([
            file("src/calc/a.cpp", 100, 100), file("src/qt/b.cpp", 85, 100),
            file("src/forms/calc/layout/c.cpp", 170, 200), file("src/forms/calc/d.cpp", 90, 100),
            file("src/platform/e.cpp", 95, 100), file("src/app/mero/f.cpp", 95, 100),
        ])
        self.assertTrue(good, shown)
        self.assertIn("380 of    400 lines   95.0 %", shown[-2])
        self.assertIn("255 of    300 lines   85.0 %", shown[-1])

    def test_folders_are_summed_up(self):
        shown, _ = table([file("src/calc/a.h", 1, 2, 3, 4), file("src/calc/b.h", 10, 20, 30, 40)])
        self.assertIn("11 of     22 lines   50.0 %      33 of     44 branches   75.0 %", shown[0])

    def test_each_mark_counts(self):
        for entry, good in (
            (file("src/calc/a.cpp", 95, 100, 90, 100), True),
            (file("src/calc/a.cpp", 949, 1000, 90, 100), False),
            (file("src/calc/a.cpp", 95, 100, 899, 1000), False),
            (file("src/qt/a.cpp", 85, 100, 0, 100), True),
            (file("src/qt/a.cpp", 849, 1000, 100, 100), False),
        ):
            shown, verdict = table([entry])
            self.assertEqual(verdict, good, shown)
            self.assertEqual("IS BELOW" in "\n".join(shown), not good)


if __name__ == "__main__":
    unittest.main()
