# SPDX-License-Identifier: MIT
"""Tests that the lint reads every file, fails when it cannot, and remembers what passed. A script that fails on the
word BAD stands for clang-tidy."""

import contextlib
import io
import json
import os
import tempfile
import unittest
from pathlib import Path

import tidy

FAKE = """#!/bin/sh
for argument; do
    case $argument in --config-file=*) config=$argument ;; esac
    file=$argument
done
echo "$file $config" >>"$(dirname "$0")/log"
cat "$file" $(sed -n 's/^#include "\\(.*\\)"  .*/\\1/p' "$file") >"$(dirname "$0")/read"
! grep -q BAD "$(dirname "$0")/read"
"""


class Lint(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name).resolve()
        self.write("clang-tidy", FAKE).chmod(0o755)
        self.addCleanup(setattr, tidy, "CLANG_TIDY", tidy.CLANG_TIDY)
        tidy.CLANG_TIDY = str(self.root / "clang-tidy")
        self.addCleanup(setattr, os, "cpu_count", os.cpu_count)
        os.cpu_count = lambda: 1
        self.write(".clang-tidy", "")
        self.write("tests/.clang-tidy", "")
        self.write("src/calc/swale.h", "")
        self.write("src/calc/swale.cpp", '#include "calc/swale.h"\n')
        self.write("tests/calc/samples.h", '#include "calc/swale.h"\n')
        self.write("tests/calc/swale_test.cpp", '#include "samples.h"\n')
        self.write("bench/calc/bench.cpp", "")
        self.commands("dev", "src/calc/swale.cpp", "tests/calc/swale_test.cpp")
        self.commands("bench", "src/calc/swale.cpp", "bench/calc/bench.cpp")

    def write(self, name: str, text: str) -> Path:
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")
        return path

    def commands(self, preset: str, *names: str):
        entries = [
            {"directory": "/", "file": str(self.root / name), "command": f"c++ -c {name} # {preset}"} for name in names
        ]
        self.write(f"build/{preset}/compile_commands.json", json.dumps(entries))

    def lint(self) -> tuple[int, list[str], str]:
        """(exit status, files in the order in which they were checked, output)"""
        log = self.write("log", "")
        output = io.StringIO()
        with contextlib.redirect_stdout(output):
            status = tidy.check(self.root, ["dev", "bench"])
        lines = log.read_text(encoding="utf-8").splitlines()
        self.configs = {Path(line.split()[0]).name: line.split("=")[1] for line in lines}
        return status, [Path(line.split()[0]).name for line in lines], output.getvalue()

    def test_every_source_is_checked_once(self):
        status, files, _ = self.lint()
        self.assertEqual((status, sorted(files)), (0, ["bench.cpp", "swale.cpp", "swale_test.cpp"]))

    def test_tests_and_benchmarks_have_their_own_checks(self):
        self.lint()
        own, light = str(self.root / ".clang-tidy"), str(self.root / "tests/.clang-tidy")
        self.assertEqual(self.configs, {"swale.cpp": own, "swale_test.cpp": light, "bench.cpp": light})

    def test_the_newest_first(self):
        for age, name in enumerate(("tests/calc/swale_test.cpp", "src/calc/swale.cpp", "bench/calc/bench.cpp")):
            os.utime(self.root / name, (1e9 - age, 1e9 - age))
        self.assertEqual(self.lint()[1], ["swale_test.cpp", "swale.cpp", "bench.cpp"])

    def two_more(self, first: str, second: str):
        self.write("src/calc/tank.cpp", first)
        self.write("src/calc/trench.cpp", second)
        self.commands("dev", "src/calc/tank.cpp", "src/calc/trench.cpp", "tests/calc/swale_test.cpp")

    def test_files_of_a_folder_are_read_together(self):
        self.two_more("int tank() {\n}\n", "int trench() {\n}\n")
        status, files, _ = self.lint()
        self.assertEqual((status, [name for name in files if name.startswith("Unified")]), (0, ["UnifiedSource-0.cpp"]))
        self.assertNotIn("tank.cpp", files)
        self.assertEqual(self.lint()[1], [])

    def test_a_finding_is_that_of_its_file(self):
        self.two_more("int tank() {\n}\n", "int trench() {\n}\n// BAD\n")
        status, files, output = self.lint()
        self.assertEqual(status, 1)
        self.assertIn("src/calc/trench.cpp:", output)
        self.assertNotIn("src/calc/tank.cpp:", output)
        self.assertIn("1 failed", output)

    def test_files_that_define_the_same_name_are_read_apart(self):
        self.two_more("constexpr int kMost = 1;\n", "constexpr int kMost = 2;\n")
        self.assertTrue({"tank.cpp", "trench.cpp"} <= set(self.lint()[1]))

    def test_names_of_definitions_are_found(self):
        text = """namespace mero {
using std::vector;
using Rows = vector<int>;
constexpr std::array<int, 2> kSets{{1, 2}};
struct Row {
    int inside = 0;
};
enum class Kind : char { One };
template <typename T> class Reader {
std::optional<double> depthOf(int row, double share) {
    return helper(row);
}
void Reader::read(int row) {
}
"""
        self.assertEqual(tidy.defined_names(text), {"Rows", "kSets", "Row", "Kind", "Reader", "depthOf"})

    def test_what_passed_is_remembered(self):
        self.lint()
        self.assertEqual(self.lint()[:2], (0, []))

    def test_what_failed_is_not(self):
        self.write("src/calc/swale.cpp", "BAD")
        self.assertEqual(self.lint()[0], 1)
        self.assertEqual(self.lint()[:2], (1, ["swale.cpp"]))

    def test_a_header_concerns_all_that_include_it(self):
        self.lint()
        self.write("src/calc/swale.h", "int changed;\n")
        self.assertEqual(sorted(self.lint()[1]), ["swale.cpp", "swale_test.cpp"])

    def test_a_configuration_concerns_its_folders(self):
        self.lint()
        self.write("tests/.clang-tidy", "# changed\n")
        self.assertEqual(sorted(self.lint()[1]), ["bench.cpp", "swale_test.cpp"])

    def test_a_source_without_a_command_fails(self):
        self.write("tests/calc/forgotten_test.cpp", "")
        status, _, output = self.lint()
        self.assertEqual(status, 1)
        self.assertIn("tests/calc/forgotten_test.cpp: no compile command", output)

    def test_a_header_that_nothing_includes_fails(self):
        self.write("src/calc/alone.h", "")
        status, _, output = self.lint()
        self.assertEqual(status, 1)
        self.assertIn("src/calc/alone.h: no source includes it", output)

    def test_no_sources_fail(self):
        for folder in ("src", "tests", "bench"):
            for file in (self.root / folder).rglob("*.*"):
                if file.is_file():
                    file.unlink()
        self.assertEqual(self.lint()[0], 1)

    def test_the_compilers_precompiled_headers_are_left_out(self):
        command = tidy.PRECOMPILED.sub("", "c++ -Winvalid-pch -include /b/cmake_pch.hxx -c a.cpp")
        self.assertEqual(command.split(), ["c++", "-c", "a.cpp"])


if __name__ == "__main__":
    unittest.main()
