# SPDX-License-Identifier: MIT
"""The program is asked to end from outside: it leaves nothing behind and ends by that signal."""

import json
import signal
import time
import unittest

from program import REPORT, TIME_LIMIT_S, FaultTest, Running, on_each_front

RENAMED = [*REPORT, "tab 0", "set txtProjName hala", "tab 3"]


def names(folder) -> list[str]:
    return sorted(path.name for path in folder.iterdir())


class Signals(FaultTest):
    @on_each_front
    def test_every_report_of_the_run_is_removed(self, front):
        for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
            with self.subTest(signal=number.name):
                folder = self.folder(number.name)
                with Running(front, folder) as program:
                    program.do(*RENAMED)
                    self.assertEqual(names(folder), ["Mero_", "Mero_hala", "Webs", "mero.mdb"])
                    program.process.send_signal(number)
                    self.assertEqual(program.process.wait(TIME_LIMIT_S), -number)
                    rest = [json.loads(line) for line in program.process.stdout]
                self.assertEqual(rest, [{"closed": "frmCalc"}, {"ended": True}], "as after closing the window")
                self.assertEqual(names(folder), ["Webs", "mero.mdb"])

    @on_each_front
    def test_an_ignored_hangup_stays_ignored(self, front):
        folder = self.folder()
        ignore = {"preexec_fn": lambda: signal.signal(signal.SIGHUP, signal.SIG_IGN)}
        with Running(front, folder, user=ignore) as program:
            program.do(*REPORT)
            program.process.send_signal(signal.SIGHUP)
            time.sleep(0.2)
            self.assertEqual(program.do("value ResultsFilePath")[-1]["is"], f"{folder}/Mero_")
            self.assertEqual(program.end(), 0)


if __name__ == "__main__":
    unittest.main()
