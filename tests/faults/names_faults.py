# SPDX-License-Identifier: MIT
"""Project names of arbitrary bytes, pasted and typed: in the report's file name, in the report, in its copies."""

import html
import re
import unittest

from program import REPORT, FaultTest, fronts, messages, on_each_front, saved

LONG = "d" * 10240
# Name as a word of the script, and the name of the report's file; None if no file can have it.
NAMES = {
    "a zero byte": (b'"a\x00b"', None),
    "10 kB": (LONG.encode(), None),
    "as long as a name may be": (b"n" * 250, "Mero_" + "n" * 250),
    "line breaks": (rb'"a\r\nb\nc\rd"', "Mero_abcd"),
    "control characters": (b'"\x01a\x1b[31mb\x07\x7f"', None),
    "mark-up": (b'"<script>alert(1)</script><img src=x> & \\"q\\" </TH>"', None),
    "mark-up without a slash": (b'"<b>&amp;<!-- %s%n \\"q\\""', 'Mero_<b>&amp;<!-- %s%n "q"'),
    "a way out": (b'"/../../../../tmp/out"', None),
    "dots": (b'".."', "Mero_.."),
    "backslashes": (rb'"a\\b\\..\\c"', "Mero_a\\b\\..\\c"),
    "foreign scripts": ("日本語🚰e\u0301\u202eabc".encode(), "Mero_日本語🚰e\u0301\u202eabc"),
    "an option": (b'"--help"', "Mero_--help"),
    "only blanks": (b'"   "', "Mero_   "),
}


class ProjectNames(FaultTest):
    def results(self, front: str, action: bytes, name: bytes):
        """Events, the report's files, and the copy's bytes (empty if it was not saved)."""
        self.new_scratch()
        folder = self.folder()
        before = set(self.scratch.rglob("*"))
        lines = [action + b" txtProjName " + name, b"get txtProjName",
                 *(line.encode() for line in REPORT), b"get wbShowResults", b"answer-save kopie.html",
                 b"click cmdSaveResults", b"click cmdPrint"]
        events = self.run_script(front, lines, folder)
        new = {str(path.relative_to(folder)) for path in set(self.scratch.rglob("*")) - before
               if path.suffix != ".mero"}
        copy = folder / "kopie.html"
        return events, new - {"kopie.html"}, copy.read_bytes() if copy.exists() else b"", folder

    def test_any_name_gives_a_report_under_it_or_none_and_nothing_else(self):
        for kind, (name, file) in NAMES.items():
            seen = set()
            for front, action in [(front, b"set") for front in fronts()] + [("batch", b"type")][:len(name) < 300]:
                with self.subTest(kind=kind, front=front, action=action):
                    events, files, copy, folder = self.results(front, action, name)
                    if file is not None:
                        self.assertEqual(files, {file})
                    self.assertLessEqual(len(files), 1)
                    self.assertEqual({path for path in files if not path.startswith("Mero_")}, set())
                    told = [] if files else [f"Zprávu se nepodařilo uložit do souboru {folder}/kopie.html."]
                    self.assertEqual(messages(events), told)
                    self.assertEqual(len(saved(events)), len(files))
                    self.assertEqual(copy.endswith(b"</div></body><html>\r\n"), bool(files))
                    seen.add((str(events).replace(str(folder), "<folder>"), tuple(files), copy))
            with self.subTest(kind=kind):
                self.assertEqual(len(seen), 1, "pasted, typed and in both programs it is the same")

    @on_each_front
    def test_a_name_that_is_no_text_is_refused(self, front):
        folder = self.folder()
        self.assertEqual(self.run_script(front, [b'set txtProjName "a\xff\xc3b\xed\xa0\x80"', *REPORT], folder, status=2),
                         [])
        self.assertEqual(sorted(path.name for path in folder.iterdir()), ["Webs", "mero.mdb"])

    @on_each_front
    def test_the_copy_runs_nothing_of_it(self, front):
        _, files, copy, _ = self.results(front, b"set", b'"<script>alert(1)<script><img src=x>"')
        self.assertEqual(len(files), 1)
        text = copy.decode("utf-8")
        head = re.search("<meta http-equiv=\"Content-Security-Policy\" content=\"([^\"]*)\">", text)
        self.assertIn("default-src 'none'", html.unescape(head.group(1)))
        self.assertLess(head.start(), text.index("&lt;script>"))


if __name__ == "__main__":
    unittest.main()
