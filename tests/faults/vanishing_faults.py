# SPDX-License-Identifier: MIT
"""Files and folders that disappear or become unusable while the program is open."""

import shutil
import threading
import unittest
from pathlib import Path

from program import (REPORT, TYPE, FaultTest, Running, messages, on_each_front, ordinary_user, saved)

RAIN = ["tab 0", "click cmdEdit(0)", "select frmIntDialog.cboSelPeriod 4",
        "select frmIntDialog.cboSelStanice 4"]


class WhileOpen(FaultTest):
    @on_each_front
    def test_the_rain_database_goes_and_the_next_station_ends_the_program_after_its_report(self, front):
        folder = self.folder()
        with Running(front, folder) as program:
            self.assertEqual(messages(program.do(*RAIN)), [])
            (folder / "mero.mdb").unlink()
            events = program.do("select frmIntDialog.cboSelStanice 5")
            errors = [event for event in events if "error" in event]
            self.assertEqual([(error["error"], error["ends"]) for error in errors], [(53, True)])
            self.assertIn(f"{folder}/mero.mdb", errors[0]["description"].replace("\\", "/"))
            self.assertEqual(program.end(), 1)

    @on_each_front
    def test_the_database_goes_but_what_was_read_stays(self, front):
        folder = self.folder()
        with Running(front, folder) as program:
            program.do(*RAIN, "cell frmIntDialog.fgIntDeste 3 2", "click frmIntDialog.cmdOK")
            (folder / "mero.mdb").unlink()
            events = program.do(*REPORT, "value VybranaIntenzita")
            self.assertEqual(messages(events), [])
            self.assertGreater(events[-1]["is"], 0)
            self.assertEqual(program.end(), 0)

    @on_each_front
    def test_the_pages_and_the_logo_go(self, front):
        folder = self.folder()
        with Running(front, folder) as program:
            program.do(*REPORT)
            shutil.rmtree(folder / "Webs")
            events = program.do("answer-save kopie.html", "click cmdSaveResults", "tab 2", "tab 3", "tab 2")
            self.assertEqual((messages(events), saved(events)), ([], [f"{folder}/kopie.html"]))
            self.assertEqual(program.end(), 0)
        copy = (folder / "kopie.html").read_text(encoding="utf-8")
        self.assertNotIn("src=", copy)
        self.assertIn("Návrhový déšť", copy)

    @on_each_front
    def test_the_report_goes_or_is_cut_and_its_copies_are_the_same(self, front):
        folder = self.folder()
        harms = {
            "none": lambda report: None,
            "gone": lambda report: report.unlink(),
            "cut": lambda report: report.write_bytes(report.read_bytes()[:100]),
            "another's": lambda report: report.write_text("<html>another program's</html>"),
            "a folder": lambda report: (report.unlink(), report.mkdir()),
        }
        copies = {}
        with Running(front, folder) as program:
            program.do(*TYPE)
            for name, harm in harms.items():
                program.do("tab 3")
                harm(folder / "Mero_")
                events = program.do("answer-save kopie.html", "click cmdSaveResults", "click cmdPrint")
                self.assertEqual((messages(events), saved(events)), ([], [f"{folder}/kopie.html"]), name)
                copies[name] = (folder / "kopie.html").read_bytes()
                program.do("tab 1")
        self.assertEqual({copies[name] == copies["none"] for name in harms}, {True})

    @on_each_front
    def test_a_pdf_is_of_the_shown_report(self, front):
        folder = self.folder()
        with Running(front, folder) as program:
            program.do("set txtProjName Test", *REPORT)
            (folder / "Mero_Test").unlink()
            events = program.do("answer-save kopie.pdf", "click cmdSaveResults")
        if front == "window":
            self.assertEqual(saved(events), [f"{folder}/kopie.pdf"])
            # The page shown for a missing report is almost empty.
            self.assertGreater((folder / "kopie.pdf").stat().st_size, 20000)

    @on_each_front
    def test_the_whole_folder_goes(self, front):
        folder = self.folder()
        elsewhere = self.scratch / "kopie.html"
        with Running(front, folder) as program:
            program.do(*REPORT)
            shutil.rmtree(folder)
            events = program.do(f'answer-save "{elsewhere}"', "click cmdSaveResults",
                                f'answer-save "{elsewhere}.pdf"', "click cmdSaveResults", "click cmdPrint")
            self.assertEqual(saved(events), [str(elsewhere)])
            self.assertEqual(messages(events), [f"Zprávu se nepodařilo uložit do souboru {elsewhere}.pdf."])
            events = program.do("tab 1", "tab 2", "tab 3", f'answer-save "{elsewhere}2"', "click cmdSaveResults", "tick")
            self.assertEqual(messages(events), [f"Zprávu se nepodařilo uložit do souboru {elsewhere}2."])
            self.assertEqual(program.end(), 0)
        self.assertFalse(folder.exists())
        self.assertIn("Návrhový déšť", elsewhere.read_text(encoding="utf-8"))

    @on_each_front
    def test_the_folder_turns_read_only_and_the_copy_is_saved_elsewhere(self, front):
        folder = self.folder()
        folder.chmod(0o777)
        elsewhere = self.scratch / "elsewhere"
        elsewhere.mkdir()
        elsewhere.chmod(0o777)
        with Running(front, folder, user=ordinary_user()) as program:
            program.do(*REPORT)
            folder.chmod(0o555)
            events = program.do(f'answer-save "{elsewhere}/a.html"', "click cmdSaveResults", "tab 1", "tab 3")
            self.assertEqual(saved(events), [f"{elsewhere}/a.html"])
            self.assertEqual(messages(events), [])
            self.assertEqual(program.end(), 0)


class TwoPrograms(FaultTest):
    def areas(self, entries: str) -> list[str]:
        return ["tab 0", "click cmdEdit(1)", "set frmDialog.txtSoucinitel 1", f"set frmDialog.txtPlocha {entries}",
                "click frmDialog.cmdZapsat", "click frmDialog.OKButton", *REPORT]

    @staticmethod
    def read_until(done: threading.Event, file: Path, read: list[bytes]):
        while not done.is_set():
            if file.exists():
                read.append(file.read_bytes())

    @on_each_front
    def test_each_saves_what_it_shows_under_the_same_projects_name(self, front):
        folder = self.folder()
        with Running(front, folder) as one, Running("batch", folder) as other:
            one.do("set txtProjName Test", *self.areas("111"))
            other.do("set txtProjName Test", *self.areas("222"))
            events = one.do("answer-save one.html", "click cmdSaveResults")
            events += other.do("answer-save other.html", "click cmdSaveResults")
            self.assertEqual(messages(events), [])
            other.end()  # removes the report
            events = one.do("answer-save again.html", "click cmdSaveResults", "click cmdPrint")
            self.assertEqual(messages(events), [])
            self.assertEqual(one.end(), 0)
        for copy, area in (("one", ">111<"), ("other", ">222<"), ("again", ">111<")):
            self.assertIn(area, (folder / f"{copy}.html").read_text(encoding="utf-8"), copy)

    @on_each_front
    def test_both_at_once_leave_no_half_file(self, front):
        folder = self.folder()
        rounds = 30
        with Running(front, folder) as one, Running("batch", folder) as other:
            for program, area in ((one, "111"), (other, "222")):
                program.do("set txtProjName Test", *self.areas(area))
            # Both get all their work before the test waits for either.
            work = ["tab 1", "tab 3", "answer-save kopie.html", "click cmdSaveResults"] * rounds
            for program in (one, other):
                program.process.stdin.write(("\n".join(work) + "\n").encode())
                program.process.stdin.flush()
            read = []
            done = threading.Event()
            reading = threading.Thread(target=lambda: self.read_until(done, folder / "kopie.html", read))
            reading.start()
            events = one.do("tick") + other.do("tick")
            done.set()
            reading.join()
            self.assertEqual(messages(events), [])
            self.assertEqual(len(saved(events)), 2 * rounds)
        self.assertGreater(len(read), 20)
        halves = [copy[-40:] for copy in read if not copy.endswith(b"</div></body><html>\r\n")]
        self.assertEqual(halves, [])
        self.assertEqual({b">111<" in copy for copy in read} | {b">222<" in copy for copy in read}, {True, False})
        self.assertEqual(sorted(path.name for path in folder.iterdir() if path.name.startswith(".mero")), [])


if __name__ == "__main__":
    unittest.main()
