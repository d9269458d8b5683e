# SPDX-License-Identifier: MIT
"""Tests of the rules: each breach is found, and what looks like one is let through."""

import tempfile
import unittest
from pathlib import Path

import rules
from rooms import Rooms, commands
from sources import code_only, includes

SCRIPT_HEAD = "# SPDX-License-Identifier: MIT\n"
HEAD = "// SPDX-License-Identifier: MIT\n// What it is for.\n"


# The rooms of the small tree: folder, target, what it links; from bottom to top.
ROOMS = (
    ("platform/numbers", "numbers", ""),
    ("platform", "platform", "numbers"),
    ("calc", "calc", "numbers"),
    ("qt", "qt", "platform Qt6::Widgets"),
    ("data", "data", "platform"),
    ("forms/dialogs", "dialogs", "data"),
    ("forms/dialogs/layout", "dialogs_layout", "dialogs qt"),
    ("forms/calc", "forms", "dialogs"),
    ("forms/calc/layout", "layout", "forms dialogs_layout qt"),
)


class Tree(unittest.TestCase):
    """A small source tree in a folder of its own. Each room holds one header with the name of its target."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        self.folder_of = {name: folder for folder, name, _ in ROOMS}
        self.write("src/CMakeLists.txt", SCRIPT_HEAD + "".join(f"add_subdirectory({room})\n" for room, _, _ in ROOMS))
        for room, name, links in ROOMS:
            self.write_room(room, name, links)
            below = [link for link in links.split() if link in self.folder_of]
            self.write(f"src/{room}/{name}.h", HEAD + "#pragma once\n" + "".join(map(self.include_of, below)))

    def include_of(self, target: str) -> str:
        return f'#include "{self.folder_of[target]}/{target}.h"\n'

    def write(self, name: str, text: str):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def write_room(self, room: str, name: str, links: str):
        self.write(f"src/{room}/CMakeLists.txt",
                   SCRIPT_HEAD + f"mero_library({name} SOURCES a.cpp b.cpp LINKS {links})\n")

    def breaches(self, name: str, text: str) -> list[str]:
        self.write(name, text)
        return rules.check_tree(self.root)

    def assert_breach(self, name: str, text: str, line: int, words: str):
        found = self.breaches(name, text)
        self.assertEqual(len(found), 1, found)
        self.assertTrue(found[0].startswith(f"{name}:{line}: "), found[0])
        self.assertIn(words, found[0])


class Layers(Tree):
    def include(self, name: str, target: str) -> list[str]:
        found = self.breaches(f"src/{name}", HEAD + self.include_of(target))
        (self.root / "src" / name).unlink()
        return found

    def test_the_tree_itself_is_clean(self):
        self.assertEqual(rules.check_tree(self.root), [])

    def test_what_is_linked_may_be_included(self):
        for name, target in (
            ("calc/a.cpp", "calc"),
            ("calc/b.cpp", "numbers"),
            ("data/a.cpp", "platform"),
            ("data/b.cpp", "numbers"),
            ("forms/calc/a.cpp", "data"),
            ("qt/a.cpp", "platform"),
            ("forms/calc/layout/a.cpp", "dialogs_layout"),
            ("forms/calc/layout/b.cpp", "platform"),
        ):
            self.assertEqual(self.include(name, target), [], (name, target))

    def test_what_is_not_linked_may_not(self):
        for name, target in (
            ("platform/numbers/a.cpp", "platform"),
            ("platform/a.cpp", "data"),
            ("calc/a.cpp", "platform"),
            ("data/a.cpp", "calc"),
            ("forms/dialogs/a.cpp", "forms"),
            ("forms/dialogs/layout/a.cpp", "forms"),
            ("forms/dialogs/layout/b.cpp", "layout"),
            ("forms/calc/b.cpp", "qt"),
        ):
            found = self.include(name, target)
            self.assertEqual(len(found), 1, (name, target, found))
            self.assertTrue(found[0].startswith(f"src/{name}:3: "), found)
            self.assertIn(f"belongs to {target}, which", found[0])

    def test_private_links_do_not_pass_on(self):
        self.write("src/data/CMakeLists.txt", SCRIPT_HEAD + "add_library(data a.cpp)\n"
                   "target_link_libraries(data PRIVATE platform)\n")
        self.assertEqual(self.include("data/a.cpp", "platform"), [])
        self.assertEqual(len(self.include("forms/dialogs/a.cpp", "platform")), 1)

    def test_nested_folders_belong_to_the_room_above(self):
        self.write("src/platform/controls/box.h", HEAD + "#pragma once\n")
        self.assertEqual(self.breaches("src/data/a.cpp", HEAD + '#include "platform/controls/box.h"\n'), [])
        self.assert_breach("src/calc/a.cpp", HEAD + '#include "platform/controls/box.h"\n', 3, "belongs to platform")

    def test_headers_of_a_room_with_two_targets(self):
        self.write("src/calc/CMakeLists.txt", SCRIPT_HEAD + "mero_library(calc SOURCES a.cpp)\n"
                   "add_executable(program b.cpp listed.h)\n")
        rooms = Rooms(self.root)
        owners = {name: rooms.owner(f"calc/{name}.h").name for name in ("a", "b", "listed", "calc")}
        self.assertEqual(owners, {"a": "calc", "b": "program", "listed": "program", "calc": "calc"})

    def test_paths_begin_at_src(self):
        self.assert_breach("src/calc/a.cpp", HEAD + '\n#include "calc.h"\n', 4, "no path from src/")
        self.assert_breach("src/calc/a.cpp", HEAD + '#include "../calc/../data/data.h"\n', 3, "")
        self.assert_breach("src/calc/a.cpp", HEAD + "#include <calc/calc.h>\n", 3, "in quotes")

    def test_files_that_nothing_builds(self):
        self.assert_breach("src/misc/a.cpp", HEAD, 1, "no room")
        (self.root / "src/misc/a.cpp").unlink()
        self.assert_breach("src/calc/forgotten.cpp", HEAD, 1, "no target")


class Links(Tree):
    def assert_links(self, target: str, links: str, includes: str, words: str):
        room = self.folder_of[target]
        self.write_room(room, target, links)
        text = HEAD + "#pragma once\n" + "".join(map(self.include_of, includes.split()))
        self.assert_breach_at(f"src/{room}/CMakeLists.txt", self.breaches(f"src/{room}/{target}.h", text), words)

    def assert_breach_at(self, file: str, found: list[str], words: str):
        self.assertEqual(len(found), 1, found)
        self.assertTrue(found[0].startswith(f"{file}:2: "), found[0])
        self.assertIn(words, found[0])

    def test_no_link_goes_up(self):
        self.assert_links("platform", "numbers calc", "numbers calc", "links calc, which is added later")

    def test_no_cycle(self):
        self.assert_links("platform", "numbers data", "numbers data", "links data, which is added later")

    def test_layouts_of_the_dialogs_do_not_see_the_main_form(self):
        self.assert_links("dialogs_layout", "dialogs qt forms", "dialogs qt forms", "forms, which is added later")

    def test_no_superfluous_link(self):
        self.assert_links("data", "platform calc", "platform", "links calc, but includes no header of it")

    def test_programs_stand_beside_each_other(self):
        self.write("src/app/one/CMakeLists.txt", SCRIPT_HEAD + "mero_library(one SOURCES one.cpp)\n"
                   "add_executable(one-program main.cpp)\ntarget_link_libraries(one-program PRIVATE one)\n")
        self.write("src/app/one/one.h", HEAD + "#pragma once\n")
        self.write("src/app/one/main.cpp", HEAD + '#include "app/one/one.h"\n')
        rooms = (self.root / "src/CMakeLists.txt").read_text(encoding="utf-8")
        rooms += "add_subdirectory(app/one)\n"
        self.assertEqual(self.breaches("src/CMakeLists.txt", rooms), [])
        self.write("src/app/two/CMakeLists.txt", SCRIPT_HEAD + "mero_library(two SOURCES two.cpp LINKS one)\n")
        self.write("src/app/two/two.cpp", HEAD + '#include "app/one/one.h"\n')
        found = self.breaches("src/CMakeLists.txt", rooms + "add_subdirectory(app/two)\n")
        self.assert_breach_at("src/app/two/CMakeLists.txt", found, "part of the program in src/app/one")


class Qt(Tree):
    def test_headers_only_where_qt_is_linked(self):
        text = HEAD + "#include <QLineEdit>\n#include <QtCore/qglobal.h>\n"
        for name in ("qt/a.cpp", "forms/calc/layout/a.cpp", "forms/dialogs/layout/a.cpp"):
            self.assertEqual(self.breaches(f"src/{name}", text), [])
        self.assertEqual(len(self.breaches("src/forms/calc/a.cpp", text)), 2)

    def test_linked_only_in_its_rooms(self):
        self.write_room("forms/calc", "forms", "dialogs Qt6::Core")
        self.assertEqual(rules.check_tree(self.root), [
            "src/forms/calc/CMakeLists.txt:2: forms links Qt6::Core: only qt, forms/**/layout and app/mero may link Qt"
        ])

    def test_nor_through_another_room(self):
        self.write_room("forms/calc", "forms", "dialogs qt")
        found = self.breaches("src/forms/calc/a.cpp", HEAD + self.include_of("qt"))
        self.assertEqual(len(found), 1, found)
        self.assertIn("forms links qt: only", found[0])


class Project(unittest.TestCase):
    """What the links of this project must keep apart, whatever else they say."""

    def setUp(self):
        self.rooms = Rooms(Path(__file__).resolve().parents[2])

    def seen_from(self, folder: str) -> set[str]:
        """The folders of all that the targets of a folder see, without the folder itself."""
        targets = self.rooms.targets_in(folder)
        self.assertTrue(targets, f"src/{folder} has no target")
        seen = set().union(*map(self.rooms.sees, targets))
        return {other.folder for name in seen if (other := self.rooms.target(name))} - {folder}

    def test_nothing_goes_up(self):
        for target in self.rooms.targets.values():
            for name in self.rooms.sees(target):
                if other := self.rooms.target(name):
                    self.assertLessEqual(self.rooms.position[other.name], self.rooms.position[target.name], target.name)

    def test_the_programs_do_not_see_each_other(self):
        self.assertNotIn("app/mero", self.seen_from("app/batch"))
        self.assertNotIn("app/batch", self.seen_from("app/mero"))

    def test_the_dialogs_see_neither_the_main_form_nor_its_layout(self):
        for folder in ("forms/dialogs", "forms/dialogs/layout"):
            self.assertFalse({"forms/calc", "forms/calc/layout"} & self.seen_from(folder), folder)

    def test_widgets_and_qt_are_seen_only_by_the_layouts_and_the_window(self):
        users = {target.folder for target in self.rooms.targets.values() if self.rooms.sees_qt(target)}
        self.assertEqual(users, {"qt", "forms/dialogs/layout", "forms/calc/layout", "app/mero"})
        for folder in {target.folder for target in self.rooms.targets.values()} - users:
            self.assertNotIn("qt", self.seen_from(folder))

    def test_numbers_stand_at_the_bottom(self):
        self.assertEqual(self.seen_from("platform/numbers"), set())
        self.assertIn("platform/numbers", self.seen_from("platform"))

    def test_every_room_is_read(self):
        files = {file.parent.relative_to(self.rooms.src).as_posix() for file in self.rooms.src.rglob("CMakeLists.txt")}
        self.assertEqual(files, {folder or "." for folder in self.rooms.folders})


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

    def test_commands_of_cmake(self):
        text = '# a(b)\nlink(x # y)\n  "a b"\n  $<$<BOOL:z>:w>)\nif(NOT (A AND B))\nendif()\n'
        self.assertEqual(list(commands(text)), [
            ("link", [("x", 2), ("a b", 3), ("$<$<BOOL:z>:w>", 4)]),
            ("if", [("NOT", 5), ("A", 5), ("AND", 5), ("B", 5)]),
            ("endif", []),
        ])


class UsedNames(Tree):
    def test_a_name_that_is_brought_in_and_not_used_is_found(self):
        self.assert_breach("src/data/a.cpp", HEAD + "using std::vector;\nint data();\n", 3, "vector is brought in")

    def test_names_in_use_and_whole_namespaces_are_let_through(self):
        self.assertEqual(self.breaches("src/data/a.cpp", HEAD + "using std::vector;\nusing namespace mero;\nusing enum Kind;\n"
                                       "vector<int> data();\n"), [])


if __name__ == "__main__":
    unittest.main()
