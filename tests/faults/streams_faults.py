# SPDX-License-Identifier: MIT
"""Standard input and outputs that are closed, full, or read by nobody."""

import json
import os
import signal
import subprocess
import unittest

from program import BATCH, CLOCK, REPORT, ROOT, TIME_LIMIT_S, FaultTest, command, environment, on_each_front

PROJECT = str(ROOT / "examples" / "projekty" / "sachta.json")
SWEEP = ["--vary", "facility.safety_factor=1:2:0.001"]


def closing(*descriptors: int):
    """Closes streams, like a parent that starts a program without them."""
    def close():
        for descriptor in descriptors:
            os.close(descriptor)
    return close


class Streams(FaultTest):
    def script(self) -> str:
        script = self.scratch / "s.mero"
        script.write_text("\n".join(["set txtProjName Test", *REPORT, "answer-save kopie.html", "click cmdSaveResults",
                                     "tab 0", "click cmdEdit(0)", "select frmIntDialog.cboSelStanice 4"]))
        return str(script)

    @on_each_front
    def test_a_script_runs_without_any_of_the_three_streams(self, front):
        script = self.script()
        expected = self.folder("expected")
        lines = (self.scratch / "s.mero").read_text()
        plain = self.run_command(command(front, script, "--folder", str(expected), "--clock", CLOCK))
        self.assertEqual(plain.returncode, 0)
        for descriptors in ((0,), (1,), (2,), (0, 1), (1, 2), (0, 1, 2)):
            with self.subTest(closed=descriptors):
                folder = self.folder("".join(map(str, descriptors)))
                done = self.run_command(command(front, script, "--folder", str(folder), "--clock", CLOCK),
                                        preexec_fn=closing(*descriptors))
                self.assertEqual(done.returncode, 1 if 1 in descriptors else 0)
                if 1 in descriptors and 2 not in descriptors:
                    self.assertIn("the trace cannot be written", done.stderr)
                # Printed text must not get into a file.
                for name in ("Mero_Test", "kopie.html"):
                    self.assertEqual((folder / name).read_bytes(), (expected / name).read_bytes())
                self.assertEqual((folder / "mero.mdb").read_bytes(), (ROOT / "data/mero.mdb").read_bytes())
        self.assertEqual((self.scratch / "s.mero").read_text(), lines)

    @on_each_front
    def test_a_full_trace_is_told(self, front):
        with open("/dev/full", "wb") as full:
            done = self.run_command(command(front, self.script(), "--folder", str(self.folder())), stdout=full)
        self.assertEqual(done.returncode, 1)
        self.assertIn("the trace cannot be written", done.stderr)

    @on_each_front
    def test_a_reader_that_goes_away_ends_it_as_any_filter(self, front):
        script = self.scratch / "s.mero"
        script.write_text("set txtProjName Test\n" + "\n".join(REPORT) + "\n" + "get txtProjName\n" * 20000)
        folder = self.folder()
        process = subprocess.Popen(command(front, str(script), "--folder", str(folder), "--clock", CLOCK),
                                   stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, env=environment(), cwd="/")
        self.assertIn(b"navigated", process.stdout.readline())
        process.stdout.close()
        self.assertIn(process.wait(TIME_LIMIT_S), (-signal.SIGPIPE, 1))
        self.assertTrue((folder / "Mero_Test").read_bytes().endswith(b"</div></body><html>\r\n"))

    @on_each_front
    def test_a_script_from_a_closed_or_empty_input_ends_well(self, front):
        for harm in ({"stdin": subprocess.DEVNULL}, {"preexec_fn": closing(0)}):
            done = self.run_command(command(front, "-", "--folder", str(self.folder(str(len(harm) + id(harm))))), **harm)
            self.assertEqual((done.returncode, done.stdout), (0, ""), done.stderr)

    def test_rows_and_results_get_nothing_that_is_printed(self):
        folder = self.folder()
        table = self.scratch / "rows.csv"
        report = self.scratch / "report.html"
        for name, arguments, file in (
                ("sweep", ["sweep", PROJECT, *SWEEP, "--out", str(table)], table),
                ("plot", ["sweep", PROJECT, *SWEEP, "--plot", str(self.scratch / "p.svg")], self.scratch / "p.svg"),
                ("design", ["design", PROJECT, "--clock", CLOCK, "--report", str(report)], report)):
            expected = None
            for descriptors in ((), (0,), (2,), (0, 2), (0, 1, 2)):
                with self.subTest(command=name, closed=descriptors):
                    file.unlink(missing_ok=True)
                    done = self.run_command([str(BATCH), *arguments, "--folder", str(folder)],
                                            preexec_fn=closing(*descriptors))
                    if name == "design" and 1 in descriptors:
                        self.assertEqual(done.returncode, 1)
                        continue
                    self.assertEqual(done.returncode, 0, done.stderr)
                    expected = expected or file.read_bytes()
                    self.assertEqual(file.read_bytes(), expected)

    def test_rows_results_and_stations_on_a_full_or_closed_output_are_told(self):
        folder = self.folder()
        for arguments in (["sweep", PROJECT, *SWEEP], ["design", PROJECT], ["design", "--json", PROJECT],
                          ["stations"], ["stations", "Brno"]):
            options = [] if arguments == ["stations"] else ["--folder", str(folder)]
            with self.subTest(command=arguments):
                with open("/dev/full", "wb") as full:
                    done = self.run_command([str(BATCH), *arguments, *options], stdout=full)
                self.assertEqual(done.returncode, 1)
                self.assertIn("cannot be written", done.stderr)
                done = self.run_command([str(BATCH), *arguments, *options], preexec_fn=closing(1))
                self.assertEqual(done.returncode, 1)
                self.assertIn("cannot be written", done.stderr)

    def test_a_pipe_that_is_closed_ends_a_sweep(self):
        process = subprocess.Popen([str(BATCH), "sweep", PROJECT, "--folder", str(self.folder()), "--vary",
                                    "facility.safety_factor=1:2:0.0001"], stdout=subprocess.PIPE,
                                   stderr=subprocess.DEVNULL, cwd="/")
        process.stdout.read(10000)
        process.stdout.close()
        self.assertEqual(process.wait(TIME_LIMIT_S), -signal.SIGPIPE)

    def test_the_trace_is_whole_lines_when_the_output_is_slow(self):
        script = self.scratch / "s.mero"
        script.write_text("get cboSelType\n" * 3000)
        process = subprocess.Popen(command("batch", str(script), "--folder", str(self.folder())),
                                   stdout=subprocess.PIPE, cwd="/")
        lines = process.stdout.read().splitlines()
        process.stdout.close()
        self.assertEqual((process.wait(TIME_LIMIT_S), len(lines)), (0, 3000))
        for line in lines:
            json.loads(line)


if __name__ == "__main__":
    unittest.main()
