# SPDX-License-Identifier: MIT
"""Tests of the mutation check: which mutants it makes, and that it recognises killed and surviving ones."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from mutants import mutants_of

HERE = Path(__file__).resolve().parent


def changes(source: str) -> list[str]:
    return [mutant.change for mutant in mutants_of(source)]


class Mutants(unittest.TestCase):
    def test_each_operator_by_its_boundary_and_its_opposite(self):
        self.assertEqual(changes("bool x = a < b;"), ["< -> <=", "< -> >="])
        self.assertIn("* -> /", changes("x = a * b;"))
        self.assertIn("&& -> ||", changes("x = a && b;"))
        self.assertIn("== -> !=", changes("x = a == b;"))
        self.assertIn("- left out", changes("x = -b;"))
        self.assertIn("! left out", changes("x = !b;"))
        self.assertIn("++ -> --", changes("++at;"))

    def test_templates_pointers_comments_and_texts_are_no_operators(self):
        for source in (
            "std::array<char, 16> buffer{};", "const char* at = text;", "auto x = static_cast<long>(y);",
            "// a < b\nint f(int);", '#include "calc/rain.h"', "/// 2 + 2", "std::string text;",
        ):
            self.assertEqual(changes(source), [], source)
        self.assertEqual([m.line for m in mutants_of('log("a < b + 1");')], [1])

    def test_numbers_move_by_one_vanish_and_double(self):
        self.assertEqual(changes("int n = 3;"), ["3 -> 0", "3 -> 2", "3 -> 4", "3 -> 6"])
        self.assertEqual(changes("double d = 1.5;"),
                         ["1.5 -> (0 * 1.5)", "1.5 -> (1.5 + 1)", "1.5 -> (1.5 - 1)", "1.5 -> (2 * 1.5)"])
        self.assertEqual(changes("float f = 0.0F;"), ["0.0F -> (0.0F + 1)", "0.0F -> (0.0F - 1)"])

    def test_words_and_characters(self):
        self.assertEqual(changes("bool b = true;"), ["true -> false"])
        self.assertIn("std::min -> std::max", changes("x = std::min(a, b);"))
        self.assertIn("'e' -> 'f'", changes("x = c == 'e';"))

    def test_conditions_always_and_never(self):
        self.assertEqual(changes("if (f(a)) {\n    return;\n}")[:2], ["f(a) -> false", "f(a) -> true"])
        self.assertNotIn("f() -> true", changes("while (f()) {\n}"))

    def test_statements_that_declare_nothing_are_left_out(self):
        self.assertIn("x = y; left out", changes("void f() {\n    x = y;\n}"))
        self.assertIn("run(a, b); left out", changes("void f() {\n    run(a, b);\n}"))
        self.assertEqual(changes("void f() {\n    int x = y;\n    std::size_t z(y);\n    return x;\n}"), [])

    def test_only_early_returns_are_left_out(self):
        source = "int f() {\n    if (a) {\n        return b;\n    }\n    return c;\n}\nint g() {\n    return d;\n}"
        self.assertEqual([change for change in changes(source) if "left out" in change], ["return b; left out"])

    def test_equal_changes_of_a_line_are_counted(self):
        self.assertEqual(changes("x = a + b + c;"), ["x = a + b + c; left out", "+ -> - (number 1)", "+ -> - (number 2)"])

    def test_a_mutant_changes_one_place(self):
        source = "x = a + b;\ny = a + b;\n"
        second = [mutant for mutant in mutants_of(source) if mutant.change == "+ -> -"][1]
        self.assertEqual(second.line, 2)
        self.assertEqual(second.applied(source), "x = a + b;\ny = a - b;\n")


TINY = """#pragma once
namespace mero::calc {
inline int larger(int a, int b) {
    if (a > b) {
        return a;
    }
    return b;
}
inline int third() {
    int at{};
    while (at < 3) {
        ++at;
    }
    return at;
}
}  // namespace mero::calc
"""
TINY_TEST = """#include "calc/tiny.h"
#include <gtest/gtest.h>
TEST(Tiny, Larger) {
    EXPECT_EQ(mero::calc::larger(2, 1), 2);
    EXPECT_EQ(mero::calc::larger(1, 2), 2);
}
TEST(Tiny, Third) { EXPECT_EQ(mero::calc::third(), 3); }
"""
EXPLAINED = """# Why nobody can notice these.

file: src/calc/tiny.h
code: if (a > b) {
change: > -> >=
why: of equal numbers either is the larger
"""


class WholeRun(unittest.TestCase):
    """One tree for all steps, because compiling GoogleTest's headers takes most of the time."""

    def run_it(self, *options: str) -> tuple[int, str]:
        done = subprocess.run([sys.executable, "-B", HERE / "mutation.py", "--root", self.root, "--jobs", "2",
                               "--seconds", "1", *options], capture_output=True, text=True, check=False)
        return done.returncode, done.stdout + done.stderr

    def write(self, name: str, text: str):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def test_tells_survivors_from_killed_and_explained(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        self.write("src/calc/tiny.h", TINY)
        self.write("tests/calc/tiny_test.cpp", TINY_TEST)

        status, output = self.run_it("--list")
        self.assertEqual((status, output.splitlines()[-1]), (0, "14 mutants"), output)

        status, output = self.run_it()
        self.assertEqual(status, 1, output)
        self.assertIn("survived: src/calc/tiny.h:4: > -> >=    in: if (a > b) {\n", output)
        self.assertIn(" 1 complaints", output)
        verdicts = (self.root / "build/mutation/verdicts.txt").read_text()
        self.assertEqual(verdicts.count(" killed\n"), 13)  # also those that never end

        self.write("tools/checks/mutants-explained.txt", EXPLAINED)
        status, output = self.run_it()
        self.assertEqual(status, 0, output)
        # No verdict was computed twice.
        self.assertEqual((self.root / "build/mutation/verdicts.txt").read_text(), verdicts)

        self.write("tools/checks/mutants-explained.txt", EXPLAINED.replace(">=", "<=\nchange: > -> ~"))
        status, output = self.run_it("--only", "tiny.h")
        self.assertEqual(status, 1, output)
        self.assertIn("killed, though explained: src/calc/tiny.h:4: > -> <=", output)
        self.assertIn("explained, but there is no such mutant: src/calc/tiny.h: if (a > b) {: > -> ~", output)

        self.write("tests/calc/tiny_test.cpp", TINY_TEST.replace(", 2);\n    E", ", 3);\n    E"))
        status, output = self.run_it()
        self.assertEqual(status, 1, output)
        self.assertIn("the tests in tests/calc fail on the unchanged sources", output)
        self.assertEqual((self.root / "src/calc/tiny.h").read_text(), TINY)


if __name__ == "__main__":
    unittest.main()
