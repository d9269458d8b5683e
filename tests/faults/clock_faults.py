# SPDX-License-Identifier: MIT
"""The machine's clock jumps while the program is open; odd years and time zones.

MERO_CLOCK_JUMP is the library that sets a program's clock.
"""

import calendar
import os
import re
import time
import unittest
from datetime import datetime, timezone

from program import REPORT, FaultTest, Running, messages, on_each_front

JUMP = os.environ["MERO_CLOCK_JUMP"]
DAY_S = 86400


def seconds(year: int, *rest: int) -> int:
    """Seconds since 1970 in UTC, also for years that datetime does not support."""
    month, day, hour, minute, second = (*rest, *(1, 1, 0, 0, 0)[len(rest):])
    # The calendar repeats itself every 400 years.
    cycles = (year - 2000) // 400
    return calendar.timegm((year - 400 * cycles, month, day, hour, minute, second)) + cycles * 146097 * DAY_S


class Clock(FaultTest):
    def report(self, folder) -> str:
        return (folder / "Mero_").read_bytes().decode("cp1250")

    @on_each_front
    def test_it_jumps_back_and_forth_while_the_program_is_open(self, front):
        folder = self.folder()
        jump = self.scratch / "clock"
        jump.write_text(str(seconds(2026, 11, 20, 14, 5, 9)))
        # A sanitizer must not check that its runtime is loaded first.
        with Running(front, folder, "--folder", str(folder), LD_PRELOAD=JUMP, CLOCK_JUMP_FILE=str(jump), TZ="UTC",
                     ASAN_OPTIONS="verify_asan_link_order=0") as program:
            self.assertEqual(program.do("tick", "get lblTime")[-1]["text"], "14:05:09")
            for moment, date, clock in (
                    ((2026, 11, 20, 14, 5, 8), "20.11.2026", "14:05:08"),
                    ((1969, 12, 31, 23, 59, 59), "31.12.1969", "23:59:59"),
                    ((1601, 1, 1, 0, 0, 0), "1.1.1601", "00:00:00"),
                    ((2038, 1, 19, 3, 14, 8), "19.1.2038", "03:14:08"),
                    ((9999, 12, 31, 23, 59, 59), "31.12.9999", "23:59:59"),
                    ((10000, 1, 1, 0, 0, 0), "1.1.10000", "00:00:00"),
                    ((200000, 2, 29, 12, 0, 0), "29.2.200000", "12:00:00"),
                    ((2024, 2, 29, 12, 0, 0), "29.2.2024", "12:00:00")):
                jump.write_text(str(seconds(*moment)))
                events = program.do("tick", "get lblTime", *REPORT)
                self.assertEqual(events[0]["text"], clock)
                self.assertEqual(messages(events), [])
                self.assertIn(f"{date},  {clock}<", self.report(folder))
            # The last second of the machine's clock is beyond the calendar.
            jump.write_text(str(2**63 - 1))
            self.assertEqual(program.do("tick", "get lblTime", *REPORT)[0]["text"], "00:00:00")
            self.assertIn("1.1.1970,  00:00:00<", self.report(folder))
            jump.write_text(str(seconds(2026, 11, 20, 14, 5, 9)))
            self.assertEqual(program.do("tick", "get lblTime")[-1]["text"], "14:05:09")
            self.assertEqual(program.end(), 0)

    @on_each_front
    def test_the_rain_is_read_while_the_clock_stands_or_runs_back(self, front):
        folder = self.folder()
        jump = self.scratch / "clock"
        with Running(front, folder, "--folder", str(folder), LD_PRELOAD=JUMP, CLOCK_JUMP_FILE=str(jump),
                     ASAN_OPTIONS="verify_asan_link_order=0") as program:
            program.do("click cmdEdit(0)", "select frmIntDialog.cboSelPeriod 4")
            for moment in (seconds(2026), seconds(1990), 0, -1):
                jump.write_text(str(moment))
                events = program.do("select frmIntDialog.cboSelStanice 4", "value IntenzitaStanice")
                self.assertEqual([event for event in events if "error" in event], [])
                self.assertIn("253.2", str(events[-1]["is"]))

    @on_each_front
    def test_summer_time_begins_and_ends(self, front):
        folder = self.folder()
        jump = self.scratch / "clock"
        # 29 March 2026: from 2 to 3 o'clock; 25 October 2026: the hour from 2 o'clock comes twice.
        zone = "CET-1CEST,M3.5.0,M10.5.0/3"
        with Running(front, folder, "--folder", str(folder), LD_PRELOAD=JUMP, CLOCK_JUMP_FILE=str(jump), TZ=zone,
                     ASAN_OPTIONS="verify_asan_link_order=0") as program:
            for moment, clock in (((2026, 3, 29, 0, 59, 59), "01:59:59"), ((2026, 3, 29, 1, 0, 0), "03:00:00"),
                                  ((2026, 10, 25, 0, 59, 59), "02:59:59"), ((2026, 10, 25, 1, 0, 0), "02:00:00")):
                jump.write_text(str(seconds(*moment)))
                self.assertEqual(program.do("tick", "get lblTime")[-1]["text"], clock)

    @on_each_front
    def test_any_time_zone_gives_a_moment(self, front):
        for zone in ("", ":", ":/nonexistent", "/etc/passwd", "../../../../etc/passwd", "/dev/null", "QQQ", "<+14>-14",
                     "<-12>12", "AAA167:59:59", "CET-1CEST,M13.9.9/999,M0.0.0", "Žluť", "x" * 5000, "<" * 300):
            with self.subTest(zone=zone[:30]):
                self.new_scratch()
                folder = self.folder()
                before = time.time()
                with Running(front, folder, "--folder", str(folder), TZ=zone) as program:
                    events = program.do("tick", "get lblTime", *REPORT)
                    self.assertEqual(messages(events), [])
                    self.assertRegex(events[0]["text"], r"^\d\d:\d\d:\d\d$")
                    shown = re.search(r"(\d+)\.(\d+)\.(\d+),  (\d\d):(\d\d):(\d\d)<", self.report(folder))
                    self.assertEqual(program.end(), 0)
                day, month, year, *clock = map(int, shown.groups())
                moment = datetime(year, month, day, *clock, tzinfo=timezone.utc).timestamp()
                self.assertLess(abs(moment - before), 8 * DAY_S, "a zone is at most a week away")


if __name__ == "__main__":
    unittest.main()
