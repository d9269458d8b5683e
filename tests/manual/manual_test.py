# SPDX-License-Identifier: MIT
"""Compares the user manual with the program: examples, tables, messages, commands, links and pictures.

Use: manual_test.py --program MERO-BATCH --tables MERO-TABLES [unittest's arguments]
A number, message or caption that differs from the program's fails with the line of the manual.
"""

import argparse
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from captions import Person, script_of
from manual_text import MANUAL, ROOT, Example, Message, Result, commands, examples, input_tables, results_told
from program_texts import caption_texts, message_texts, sentences
from tables import Tables

sys.path.insert(0, str(ROOT / "tests" / "forms" / "design"))
import expected  # noqa: E402

TEXT = MANUAL.read_text(encoding="utf-8")
TIME_LIMIT_S = 60
LARGEST_PICTURE_BYTES = 60_000
program = "mero-batch"
tables: Tables


class Folder:
    """A new program's folder, as after installation."""

    def __enter__(self) -> Path:
        self.work = tempfile.TemporaryDirectory()
        folder = Path(self.work.name) / "program"
        folder.mkdir()
        shutil.copy(ROOT / "data" / "mero.mdb", folder)
        shutil.copytree(ROOT / "Webs", folder / "Webs")
        return folder

    def __exit__(self, *_) -> None:
        self.work.cleanup()


def trace_of(script: list[str]) -> list[dict]:
    with Folder() as folder:
        run = subprocess.run([program, "run", "--folder", str(folder), "--clock", "2026-11-20T14:05:09", "-"],
                             input="\n".join(script) + "\n", capture_output=True, encoding="utf-8",
                             check=False, timeout=TIME_LIMIT_S)
    if run.returncode != 0:
        raise AssertionError(f"exit status {run.returncode}: {run.stderr}")
    return [json.loads(line) for line in run.stdout.splitlines()]


def differences(example: Example, trace: list[dict]) -> list[str]:
    """The differences between manual and program, with the manual's lines."""
    wrong = []
    shown: dict[int, str] = {}
    boxes = []
    place = example.line
    for event in trace:
        if "echo" in event:
            place = int(event["echo"])
        elif "get" in event:
            shown[place] = event["text"]
        elif "refused" in event or "error" in event or "ended" in event:
            wrong.append(f"{place}: {event}")
        elif "message" in event:
            boxes.append((place, event["icon"], event["message"].strip().replace("\r\n", " ")))
    for step in example.steps:
        if isinstance(step, Result) and shown.get(step.line) != step.text:
            wrong.append(f"{step.line}: {step.caption}: the manual says {step.text}, the program {shown.get(step.line)}")
    told = [(step.line, step.icon, step.text) for step in example.steps if isinstance(step, Message)]
    for (line, *said), (place, *seen) in zip(told, boxes):
        if said != seen or line < place:
            wrong.append(f"{line}: the manual says {said}, the program said {seen} at line {place}")
    if len(told) != len(boxes):
        wrong.append(f"{example.line}: {len(told)} messages in the manual, {len(boxes)} in the program: {boxes}")
    return wrong


TRACES: dict[str, list[dict]] = {}


def trace_of_example(example: Example) -> list[dict]:
    if example.name not in TRACES:
        TRACES[example.name] = trace_of(script_of(example, tables))
    return TRACES[example.name]


class Examples(unittest.TestCase):
    def test_there_is_one_for_each_type(self):
        chosen = set()
        for example in examples(TEXT):
            person = Person(tables)
            for step in example.steps:
                person.script(step)
            chosen.add(person.type_number)
        self.assertEqual(chosen, {1, 2, 3, 4, 5, 6})

    def test_each_gives_the_numbers_and_the_messages_printed_in_it(self):
        for example in examples(TEXT):
            with self.subTest(example.name):
                self.assertEqual(differences(example, trace_of_example(example)), [])

    def test_a_number_that_differs_by_its_last_digit_is_found(self):
        for example in examples(TEXT):
            trace = trace_of_example(example)
            for step in (step for step in example.steps if isinstance(step, Result)):
                right = step.text
                step.text = right[:-1] + ("1" if right[-1] != "1" else "2")
                with self.subTest(example.name, line=step.line):
                    self.assertTrue(differences(example, trace))
                step.text = right

    def test_a_message_that_differs_is_found(self):
        for example in examples(TEXT):
            for step in (step for step in example.steps if isinstance(step, Message)):
                right = step.text
                step.text = right.rstrip(".")[:-1]
                self.assertTrue(differences(example, trace_of_example(example)))
                step.text = right

    def test_a_forgotten_message_is_found(self):
        for example in examples(TEXT):
            if boxes := [step for step in example.steps if isinstance(step, Message)]:
                trace = trace_of_example(example)
                example.steps.remove(boxes[-1])
                self.assertTrue(differences(example, trace))

    def test_the_main_result_agrees_with_an_evaluation_apart_from_the_program(self):
        for name, caption, text in worked_out_apart():
            with self.subTest(name, caption=caption):
                example = next(example for example in examples(TEXT) if example.name == name)
                last = [step for step in example.steps if isinstance(step, Result) and step.caption == caption][-1]
                self.assertEqual(last.text, text)


def worked_out_apart():
    """The last value of an example's main result: its name, the caption, the text."""
    e = expected
    brno, budejovice, praha, zlin = (e.station(x) for x in ("Brno", "České Budějovice", "Praha - Hostivař", "Zlín"))
    parking = e.Site(e.reduced((800, 0.9), (300, 0.9)), 1e-4, brno, picked=(15, 253.2))
    yield "plosne-vsakovani", "Plocha potřebná pro vsakování", e.surface(parking)["area"]
    swale = e.swale(e.Site(e.reduced((600, 0.9), (400, 0.75)), 2e-5, brno), 1)
    yield "prulehy", "Objem akumulace průlehu", swale["volume"]
    yield "prulehy", "Doba prázdnění průlehu", swale["emptying"]
    school = e.Site(e.reduced((420, 0.9), (180, 0.95)), 1e-5, budejovice)
    combined = e.combined(school, 0, 1e-4, 2, 0.4)
    yield "kombinovany-objekt", "Délka vsakovací rýhy", combined["length"]
    silted = e.Site(e.reduced((420, 0.9), (180, 0.95)), 1e-6, budejovice)
    throttled = e.combined(silted, 0, 1e-4, 2, 0.4, s_rr=e.storage_coefficient(0.35, 100, 110, 1, 2, 0.4),
                           q_dr=e.throttled(silted, 5))
    yield "kombinovany-objekt-skrceny-odtok", "Délka vsakovací rýhy", throttled["length"]
    house = e.Site(e.reduced((350, 0.95), (200, 0.75)), 5e-5, brno)
    coefficient = e.storage_coefficient(0.35, 200, 225, 1, 0.8, 1.2)
    drained = e.trench(house, 0.8, 1.2, s_rr=coefficient, drain=(50, 1, 0.05))
    yield "ryha-s-drenem", "Délka vsakovací rýhy", drained["length"]
    yield "ryha-s-drenem", "Objem akumulace", drained["volume"]
    ring = e.round_shaft(1.5, 0.15)
    shaft = e.shaft(e.Site(e.reduced((180, 0.9)), 1e-4, praha), ring, z_f=0.8, h_f=0.4, h_p=0.5, hpv=9)
    yield "sachty", "Potřebná hloubka šachty", shaft["depth"]
    yield "sachty", "Součinitel filtrace náplně filtru", shaft["k_req"]
    park = e.Site(e.reduced((8000, 0.9), (3000, 0.95), (5000, 0.1)), 1e-4, zlin)
    tank = e.tank(park, 10, 30, 15, 1, 2, settled=True)
    yield "nadrz", "Potřebný objem akumulace", tank["required"]
    yield "nadrz", "Objem dle rozměrů nádrže", tank["volume"]


class Inputs(unittest.TestCase):
    def test_each_field_holds_the_default_that_is_printed(self):
        for table in input_tables(TEXT):
            person = Person(tables)
            person.type_number = table.type_number
            wanted, script = [], []
            for line, row in table.rows:
                if match := re.fullmatch(r"`([^`]*)`|prázdné", row[2]):
                    wanted.append((line, match.group(1) or ""))
                    script.append(f"get {person.field(row[0]).box}")
            self.assertTrue(wanted, table.line)
            shown = [event["text"] for event in trace_of(script)]
            self.assertEqual([(line, text) for (line, _), text in zip(wanted, shown)], wanted)

    def test_there_is_a_table_for_the_first_tab_and_each_type(self):
        self.assertEqual({table.type_number for table in input_tables(TEXT)}, {0, 2, 3, 4, 5, 6})

    def test_the_tables_are_those_of_the_program(self):
        for table in input_tables(TEXT):
            printed = [tuple(row[:4]) for _, row in table.rows]
            fields = [field.row() for field in tables.inputs[table.type_number]]
            # The first tab mixes inputs and results; a panel shows its inputs in the table's order.
            order = sorted if table.type_number == 0 else list
            with self.subTest(type_number=table.type_number, line=table.line):
                self.assertEqual(order(printed), order(fields))

    def test_the_results_of_each_table_are_those_of_the_program(self):
        for table in input_tables(TEXT):
            if table.type_number:
                told = results_told(TEXT, table.line)
                shown = [(field.caption, field.unit) for field in tables.results[table.type_number]]
                with self.subTest(type_number=table.type_number, line=table.line):
                    self.assertEqual(sorted(told), sorted(shown))

    def test_each_caption_of_the_window_stands_in_the_manual(self):
        captions = tables.captions() + [caption.rstrip(":") for _, caption in caption_texts()]
        self.assertGreater(len(set(captions)), 55)
        self.assertEqual([caption for caption in captions if caption not in TEXT], [])


class Messages(unittest.TestCase):
    def test_each_stands_in_the_manual_word_for_word(self):
        missing = [f"{file}: {text!r}" for file, text in message_texts(tables.verdicts) + sentences() if text not in TEXT]
        self.assertEqual(missing, [])

    def test_the_list_is_not_empty(self):
        texts = {text for _, text in message_texts(tables.verdicts)}
        self.assertGreater(len(texts), 60)
        self.assertIn("Zadejte dílčí plochu", texts)
        self.assertIn("Potřebná propustnost filtru je příliš vysoká. Zvolte větší průměr šachty či jejich počet a "
                      "opakujte výpočet.", texts)


class Commands(unittest.TestCase):
    def test_each_prints_what_is_printed(self):
        found = commands(TEXT)
        self.assertTrue(found)
        for command in found:
            with self.subTest(command.arguments), Folder() as folder:
                (folder / "examples").symlink_to(ROOT / "examples")
                programs = {**os.environ, "PATH": f"{Path(program).parent}:{os.environ['PATH']}"}
                run = subprocess.run(command.arguments, shell=True, cwd=folder, env=programs, capture_output=True,
                                     encoding="utf-8", check=False, timeout=TIME_LIMIT_S)
                self.assertEqual(run.returncode, 0, run.stderr)
                shown = (run.stdout + run.stderr).rstrip("\n").split("\n")
                wanted = "\n".join(command.output)
                pattern = ".*".join(re.escape(part) for part in re.split(r"^\.\.\.$", wanted, flags=re.MULTILINE))
                self.assertRegex("\n".join(line.rstrip() for line in shown), re.compile(f"^{pattern}$", re.DOTALL))


class Links(unittest.TestCase):
    LINK = re.compile(r"(!?)\[([^\]]*)\]\(([^)\s]+)\)")

    @staticmethod
    def documents() -> list[Path]:
        return [*ROOT.glob("*.md"), *(ROOT / "docs").glob("*.md"), ROOT / "data" / "README.md"]

    @staticmethod
    def anchors(document: Path) -> set[str]:
        headings = re.findall(r"^#+ (.*)$", document.read_text(encoding="utf-8"), flags=re.MULTILINE)
        return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in headings}

    def test_each_leads_somewhere(self):
        broken = []
        for document in self.documents():
            for _, _, target in self.LINK.findall(document.read_text(encoding="utf-8")):
                path, _, anchor = target.partition("#")
                if "://" in path or path.startswith("mailto:"):
                    continue
                file = (document.parent / path).resolve() if path else document
                if not file.exists() or (anchor and anchor not in self.anchors(file)):
                    broken.append(f"{document.relative_to(ROOT)}: {target}")
        self.assertEqual(broken, [])

    def test_each_picture_is_small_described_and_used(self):
        used = set()
        for mark, alternative, target in self.LINK.findall(TEXT):
            if mark:
                self.assertTrue(alternative, target)
                used.add((MANUAL.parent / target).resolve())
        there = set((ROOT / "docs" / "pictures").glob("*.png"))
        self.assertEqual(there, used)
        large = [path.name for path in there if path.stat().st_size > LARGEST_PICTURE_BYTES]
        self.assertEqual(large, [])


if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    parser.add_argument("--program", required=True)
    parser.add_argument("--tables", required=True)
    options, rest = parser.parse_known_args()
    program = os.path.abspath(options.program)
    tables = Tables(os.path.abspath(options.tables))
    unittest.main(argv=[sys.argv[0], *rest])
