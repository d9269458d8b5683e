# SPDX-License-Identifier: MIT
"""Tests of the rules: each breach is found, and what looks like one is let through."""

import tempfile
import unittest
from pathlib import Path

import rules
from sources import code_only, includes

SCRIPT_HEAD = "# SPDX-License-Identifier: MIT\n"
HEAD = "// SPDX-License-Identifier: MIT\n// What it is for.\n"


class Tree(unittest.TestCase):
    """A small source tree in a folder of its own."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        for header in (
            "platform/numbers/texts.h", "platform/controls.h", "qt/widgets.h", "calc/swale.h",
            "data/tables.h", "report/writer.h", "forms/calc/frm_calc.h", "automation/trace.h",
        ):
            self.write(f"src/{header}", HEAD + "#pragma once\n")

    def write(self, name: str, text: str):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def breaches(self, name: str, text: str) -> list[str]:
        self.write(name, text)
        return rules.check_tree(self.root)

    def assert_breach(self, name: str, text: str, line: int, words: str):
        found = self.breaches(name, text)
        self.assertEqual(len(found), 1, found)
        self.assertTrue(found[0].startswith(f"{name}:{line}: "), found[0])
        self.assertIn(words, found[0])


class Layers(Tree):
    def include(self, name: str, header: str) -> list[str]:
        return self.breaches(f"src/{name}", HEAD + f'#include "{header}"\n')

    def test_downwards_is_allowed(self):
        for name, header in (
            ("app/batch/main.cpp", "automation/trace.h"),
            ("automation/trace.cpp", "forms/calc/frm_calc.h"),
            ("forms/calc/a.cpp", "report/writer.h"),
            ("report/a.cpp", "data/tables.h"),
            ("data/a.cpp", "platform/controls.h"),
            ("calc/a.cpp", "calc/swale.h"),
            ("calc/b.cpp", "platform/numbers/texts.h"),
            ("qt/a.cpp", "platform/controls.h"),
            ("forms/calc/layout/a.cpp", "qt/widgets.h"),
            ("app/mero/main.cpp", "qt/widgets.h"),
        ):
            self.assertEqual(self.include(name, header), [], (name, header))

    def test_upwards_is_not(self):
        for name, header in (
            ("platform/numbers/a.cpp", "platform/controls.h"),
            ("platform/a.cpp", "data/tables.h"),
            ("platform/b.cpp", "qt/widgets.h"),
            ("calc/a.cpp", "platform/controls.h"),
            ("calc/b.cpp", "data/tables.h"),
            ("data/a.cpp", "report/writer.h"),
            ("forms/calc/a.cpp", "automation/trace.h"),
            ("forms/calc/b.cpp", "qt/widgets.h"),
            ("app/batch/main.cpp", "qt/widgets.h"),
        ):
            found = self.include(name, header)
            self.assertEqual(len(found), 1, (name, header, found))
            self.assertIn("only downwards", found[0])
            (self.root / "src" / name).unlink()

    def test_paths_begin_at_src(self):
        self.assert_breach("src/calc/a.cpp", HEAD + '\n#include "swale.h"\n', 4, "no path from src/")
        self.assert_breach("src/calc/a.cpp", HEAD + '#include "../calc/../data/tables.h"\n', 3, "")
        self.assert_breach("src/calc/a.cpp", HEAD + "#include <calc/swale.h>\n", 3, "in quotes")

    def test_a_new_room_is_named(self):
        self.assert_breach("src/misc/a.cpp", HEAD, 1, "no room")


class Qt(Tree):
    def test_only_in_its_rooms(self):
        text = HEAD + "#include <QLineEdit>\n#include <QtCore/qglobal.h>\n"
        for name in ("qt/a.cpp", "forms/calc/layout/a.cpp", "forms/dialogs/layout/a.h", "app/mero/main.cpp"):
            self.assertEqual(self.breaches(f"src/{name}", "#pragma once\n".join((HEAD, text))), [])
        self.assertEqual(len(self.breaches("src/forms/calc/a.cpp", text)), 2)

    def test_links_too(self):
        link = SCRIPT_HEAD + "target_link_libraries(x Qt6::Widgets) # why\n"
        self.assertEqual(self.breaches("src/qt/CMakeLists.txt", link), [])
        self.assertEqual(self.breaches("src/data/CMakeLists.txt", SCRIPT_HEAD + "# no Qt6::Core here\n"), [])
        self.assert_breach("src/forms/calc/CMakeLists.txt", link, 2, "Qt6::Widgets")


class NumberTexts(Tree):
    def test_conversions_outside_their_room(self):
        for code in (
            "std::stof(text)", "strtod(p, &q)", "std::to_string(1.5)", 'std::printf("%f", x)', "snprintf(b, n, f)",
            'setlocale(LC_ALL, "")', "std::locale here", "out << std::fixed", "edit.text().toDouble()",
        ):
            self.assert_breach("src/data/a.cpp", HEAD + f"void f() {{\n  {code};\n}}\n", 4, "platform/numbers")

    def test_their_own_room_and_the_tests_may(self):
        text = HEAD + "auto x = strtod(p, &q);\n"
        self.assertEqual(self.breaches("src/platform/numbers/a.cpp", text), [])
        self.assertEqual(self.breaches("tests/data/a_test.cpp", text), [])

    def test_comments_texts_and_other_names_are_no_calls(self):
        text = HEAD + 'auto a = "printf(x)"; // stof(x)\n/* atof(\n) */ int my_printf(int);\nauto b = R"(std::stod(x)\n)";\n'
        self.assertEqual(self.breaches("src/data/a.cpp", text), [])


class Files(Tree):
    def test_opening_comment(self):
        licence = HEAD.splitlines(keepends=True)[0]
        self.assert_breach("tests/a_test.cpp", licence + "#include <vector>\n// late\n", 2, "what the file is for")

    def test_licence(self):
        self.assert_breach("src/data/a.cpp", "// What it is for.\n", 1, "SPDX")
        (self.root / "src/data/a.cpp").unlink()
        self.assertEqual(self.breaches("tools/a.py", "#!/usr/bin/env python3\n" + SCRIPT_HEAD), [])
        self.assert_breach("tools/a.sh", "#!/bin/sh\n# What it is for.\n", 1, "SPDX")

    def test_pragma_once(self):
        self.assert_breach("src/data/b.h", HEAD, 1, "#pragma once")

    def test_length(self):
        longest = HEAD + "\n" * (rules.MAX_LINES - 2)
        self.assertEqual(self.breaches("src/data/a.cpp", longest), [])
        self.assert_breach("src/data/a.cpp", longest + "\n", 451, "451 lines")

    def test_a_tree_without_sources_is_no_error(self):
        with tempfile.TemporaryDirectory() as empty:
            self.assertEqual(rules.check_tree(Path(empty)), [])


class Reading(unittest.TestCase):
    def test_code_only_keeps_lines_and_digit_groups(self):
        self.assertEqual(code_only('a "x\\"y" b // c\nd'), 'a "" b ""\nd')
        self.assertEqual(code_only("/* a\nb */ c"), '""\n c')
        self.assertEqual(code_only("10'000 + f('\\'') + 20'000"), "10'000 + f(\"\") + 20'000")

    def test_includes(self):
        self.assertEqual(includes('\n\n# include <a>\n#include "b/c.h"\n'), [(3, "a", False), (4, "b/c.h", True)])


if __name__ == "__main__":
    unittest.main()
