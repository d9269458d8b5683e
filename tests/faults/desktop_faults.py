# SPDX-License-Identifier: MIT
"""The window on a desktop that lacks something: fonts, a printer, the display itself."""

import os
import signal
import subprocess
import time
import unittest

from program import CLOCK, REPORT, TIME_LIMIT_S, WINDOW, FaultTest, Running, command, environment, messages, saved

RESULTS = [*REPORT, "answer-save kopie.html", "click cmdSaveResults", "answer-save kopie.pdf", "click cmdSaveResults"]


class Display:
    """A separate virtual display."""

    def __enter__(self):
        read, write = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
                                       pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read, encoding="ascii") as number:
            self.name = ":" + number.readline().strip()
        return self

    def __exit__(self, *_):
        self.server.terminate()
        self.server.wait()

    def variables(self) -> dict[str, str]:
        return {"DISPLAY": self.name, "QT_QPA_PLATFORM": "xcb"}

    def windows(self, title: str) -> list[str]:
        """The ids of the visible windows with that title."""
        return subprocess.run(["xdotool", "search", "--onlyvisible", "--name", title], capture_output=True, text=True,
                              check=False, env=environment(DISPLAY=self.name)).stdout.split()

    def find_window(self, title: str) -> str:
        deadline = time.monotonic() + TIME_LIMIT_S
        while time.monotonic() < deadline:
            if found := self.windows(title):
                return found[0]
            time.sleep(0.1)
        raise AssertionError(f"no window {title}")


def without_fonts(scratch) -> str:
    """A font configuration with only an empty folder."""
    (scratch / "fonts").mkdir()
    configuration = scratch / "fonts.conf"
    configuration.write_text('<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig>'
                             f"<dir>{scratch}/fonts</dir><cachedir>{scratch}/cache</cachedir></fontconfig>")
    return str(configuration)


class Fonts(FaultTest):
    def test_without_any_font_the_window_works_and_what_it_saves_is_there(self):
        fonts = without_fonts(self.scratch)
        with Display() as display:
            for platform in ({}, display.variables()):
                with self.subTest(platform=platform):
                    folder = self.folder(f"program {len(platform)}")
                    with Running("window", folder, FONTCONFIG_FILE=fonts, **platform) as program:
                        events = program.do(*RESULTS, "tab 2", "tab 0", "click cmdEdit(0)", "close frmIntDialog")
                        self.assertEqual(messages(events), [])
                        self.assertEqual(saved(events), [f"{folder}/kopie.html", f"{folder}/kopie.pdf"])
                        self.assertEqual(program.end(), 0)
                    self.assertTrue((folder / "kopie.pdf").read_bytes().startswith(b"%PDF"))
                    self.assertIn("Návrhový déšť", (folder / "kopie.html").read_text(encoding="utf-8"))

    def test_without_any_font_it_says_so(self):
        fonts = without_fonts(self.scratch)
        script = self.scratch / "s.mero"
        script.write_text("tab 0\n")
        done = self.run_command(command("window", str(script), "--folder", str(self.folder())),
                                env=environment(FONTCONFIG_FILE=fonts))
        self.assertEqual(done.returncode, 0)
        self.assertIn("mero: there is no font on this machine", done.stderr)


class Screen(FaultTest):
    def test_a_display_that_breaks_ends_the_program(self):
        folder = self.folder()
        with Display() as display:
            program = subprocess.Popen([str(WINDOW), "--folder", str(folder), "--clock", CLOCK], cwd="/",
                                       env=environment(**display.variables()), stderr=subprocess.DEVNULL)
            display.find_window("MERO")
            display.server.send_signal(signal.SIGKILL)
            self.assertGreaterEqual(program.wait(TIME_LIMIT_S), 0, "it ends by itself")
        self.assertEqual(sorted(path.name for path in folder.iterdir()), ["Webs", "mero.mdb"])

    def test_a_person_is_told_at_the_start_that_there_is_no_folder(self):
        programs = self.installed()
        with Display() as display:
            program = subprocess.Popen([str(programs / "mero")], cwd="/", stderr=subprocess.PIPE,
                                       env=environment(XDG_DATA_HOME="/proc/nowhere", **display.variables()))
            box = display.find_window("^MERO$")
            display.find_window("^MERO - ")
            # Enter closes the box; the window stays.
            subprocess.run(["xdotool", "windowfocus", "--sync", box, "key", "--clearmodifiers", "Return"], check=True,
                           env=environment(DISPLAY=display.name), timeout=TIME_LIMIT_S)
            deadline = time.monotonic() + TIME_LIMIT_S
            while display.windows("^MERO$") and time.monotonic() < deadline:
                time.sleep(0.05)
            self.assertEqual(display.windows("^MERO$"), [])
            self.assertIsNone(program.poll())
            self.assertEqual(len(display.windows("^MERO - ")), 1)
            program.terminate()
            self.assertIn(b"the program's folder /proc/nowhere/mero cannot be made", program.communicate()[1])

    def test_a_person_is_told_that_the_home_is_not_set(self):
        programs = self.installed()
        current = self.scratch / "current"
        current.mkdir()
        for home in (None, "", "relative"):
            with self.subTest(home=home), Display() as display:
                program = subprocess.Popen([str(programs / "mero")], cwd=current, stderr=subprocess.PIPE,
                                           env=environment(XDG_DATA_HOME=None, HOME=home, **display.variables()))
                box = display.find_window("^MERO$")
                subprocess.run(["xdotool", "windowfocus", "--sync", box, "key", "--clearmodifiers", "Return"],
                               check=True, env=environment(DISPLAY=display.name), timeout=TIME_LIMIT_S)
                errors = program.communicate(timeout=TIME_LIMIT_S)[1]
                self.assertEqual(program.returncode, 2)
                self.assertIn(b"HOME is not set to a full path (give --folder DIR)", errors)
                self.assertEqual([path.name for path in current.iterdir()], [])


if __name__ == "__main__":
    unittest.main()
