# SPDX-License-Identifier: MIT
"""Tests the comparison of the fronts: what counts as a difference, and that a short script is found for it."""

import tempfile
import unittest
from pathlib import Path

from window_agrees import Fronts, kind_of, left_behind, shortest


class FaultySelf:
    """Differs on scripts with the lines "b" and "d"; without "a" a script is unusable."""

    def __init__(self):
        self.trials = 0

    def difference(self, script: Path) -> list[str]:
        self.trials += 1
        lines = script.read_text(encoding="utf-8").split()
        if "a" not in lines:
            return ["exit status 2"]
        return ["--- one", "+++ other", "-x", "+y"] if "b" in lines and "d" in lines else []


class Program:
    """An executable that prints given text and writes given files."""

    def __init__(self, folder: Path, name: str, commands: str):
        self.path = folder / name
        self.path.write_text(f'#!/bin/sh\nwhile [ "$1" != --folder ]; do shift; done\ncd "$2"\n{commands}\n')
        self.path.chmod(0o755)


class WindowAgrees(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.scratch = Path(scratch.name)

    def difference(self, window: str, batch: str) -> list[str]:
        fronts = Fronts(Program(self.scratch, "window", window).path, Program(self.scratch, "batch", batch).path,
                        self.scratch)
        return fronts.difference(self.scratch / "script")

    def test_a_short_script_is_of_the_same_kind(self):
        fronts = FaultySelf()
        lines = [f"{word}\n" for word in "x x a x x x b x x x x c x x d x x".split()]
        path = self.scratch / "short"
        self.assertEqual(shortest(fronts, lines, path, "the fronts differ"), ["a\n", "b\n", "d\n"])
        self.assertEqual(path.read_text(), "a\nb\nd\n")
        self.assertLess(fronts.trials, 60)

    def test_trace_exit_status_and_files_count(self):
        self.assertEqual(self.difference("echo 1; echo x >f", "echo 1; echo x >f"), [])
        self.assertIn("+2", self.difference("echo 2", "echo 1"))
        self.assertIn("+exit status 1", self.difference("exit 1", "exit 0"))
        self.assertEqual(kind_of(self.difference("echo x >f", "echo y >f")), "the fronts differ")
        self.assertEqual(kind_of(self.difference("", "echo x >f")), "the fronts differ")
        self.assertEqual(kind_of(self.difference("rm mero.mdb", "")), "the fronts differ")

    def test_a_script_that_both_refuse_is_a_fault_too(self):
        self.assertEqual(self.difference("exit 2", "exit 2"), ["exit status 2"])

    def test_a_pdf_counts_by_its_name_only(self):
        for name, same in (("a.pdf", True), ("a.html", False)):
            one, other = self.scratch / "one", self.scratch / "other"
            for folder in (one, other):
                folder.mkdir(exist_ok=True)
                (folder / name).write_text(folder.name)
            self.assertEqual(left_behind(one) == left_behind(other), same)


if __name__ == "__main__":
    unittest.main()
