# SPDX-License-Identifier: MIT
"""No permission to write, a full disk, a folder or a pipe in a file's place."""

import os
import resource
import shutil
import signal
import subprocess
import unittest

from program import BATCH, ROOT, REPORT, FaultTest, command, environment, messages, on_each_front, ordinary_user

PROJECT = str(ROOT / "examples" / "projekty" / "pruleh.json")
DATABASE_BYTES = (ROOT / "data" / "mero.mdb").stat().st_size

# In a separate mount namespace: a small disk at $1, the program's folder on it ($2: "files", or "empty" for a
# first start), the rest of it filled except $3 kB; then the command. The files on the disk are listed at the end.
SMALL_DISK = """
set -e
disk=$1 content=$2 spare=$3
shift 3
mount -t tmpfs -o size=2200k none "$disk"
if [ "$content" = files ]; then cp -r "$MERO_ROOT/data/mero.mdb" "$MERO_ROOT/Webs" "$disk/"; fi
free=$(($(stat -f -c '%a * %S / 1024' "$disk")))
dd if=/dev/zero of="$disk/filling" bs=1k count=$((free - spare)) status=none
status=0
"$@" || status=$?
(cd "$disk" && find . -type f ! -name filling -printf 'left %s %p\\n') >&2
exit $status
"""


def small_disk_wrapper() -> list[str] | None:
    """The command that allows mounting a disk here; None if it is impossible."""
    for namespaces in ("-m", "-Urm"):
        attempt = ["unshare", namespaces, "sh", "-c", "mount -t tmpfs none /mnt"]
        if shutil.which("unshare") and subprocess.run(attempt, capture_output=True, check=False).returncode == 0:
            return ["unshare", namespaces, "sh", "-c", SMALL_DISK, "small-disk"]
    return None


def no_more_than(size: int):
    """Limits the size of files, as on a disk that gets full; for machines that cannot mount one."""
    def limit():
        signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
        resource.setrlimit(resource.RLIMIT_FSIZE, (size, size))
    return limit


class NoPermission(FaultTest):
    @on_each_front
    def test_an_installed_copy_of_which_nothing_can_be_written(self, front):
        programs = self.installed()
        script = self.scratch / "s.mero"
        script.write_text("\n".join([*REPORT, "answer-save /nonexistent/a.html", "click cmdSaveResults", "tab 2"]))
        variables = environment(XDG_DATA_HOME="/proc/nowhere", XDG_RUNTIME_DIR=None, HOME="/proc/nowhere")
        done = self.run_command(command(front, str(script), programs=programs), env=variables, **ordinary_user())
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn("the program's folder /proc/nowhere/mero cannot be made", done.stderr)
        self.assertIn("Zprávu se nepodařilo uložit do souboru /nonexistent/a.html.", done.stdout)

    @on_each_front
    def test_an_installed_copy_makes_no_folder_without_a_home(self, front):
        programs = self.installed()
        script = self.scratch / "s.mero"
        script.write_text("\n".join(REPORT))
        for home in (None, "", "relative", "."):
            before = set(os.listdir("/"))
            done = self.run_command(command(front, str(script), programs=programs),
                                    env=environment(XDG_DATA_HOME=None, HOME=home))
            self.assertEqual((done.returncode, done.stdout), (2, ""))
            self.assertIn("HOME is not set to a full path (give --folder DIR)", done.stderr)
            self.assertEqual(set(os.listdir("/")), before, "the current folder is the root")

    @on_each_front
    def test_an_installed_copy_works_in_the_users_folder(self, front):
        programs = self.installed()
        home = self.scratch / "home"
        home.mkdir()
        home.chmod(0o777)
        script = self.scratch / "s.mero"
        script.write_text("\n".join(REPORT))
        done = self.run_command(command(front, str(script), programs=programs),
                                env=environment(XDG_DATA_HOME=str(home)), **ordinary_user())
        self.assertEqual((done.returncode, messages_of(done)), (0, []), done.stderr)
        self.assertTrue((home / "mero" / "Mero_").stat().st_size > 1000)
        self.assertEqual((home / "mero/mero.mdb").read_bytes(), (ROOT / "data/mero.mdb").read_bytes())
        self.assertEqual(len(list((home / "mero/Webs").rglob("*"))), len(list((ROOT / "Webs").rglob("*"))))

    @on_each_front
    def test_installed_data_that_cannot_be_read_are_missed_when_they_are_needed(self, front):
        programs = self.installed()
        home = self.scratch / "home"
        home.mkdir()
        home.chmod(0o777)
        script = self.scratch / "s.mero"
        script.write_text("\n".join([*REPORT, "tab 0", "click cmdEdit(0)", "select frmIntDialog.cboSelStanice 4"]))
        data = self.scratch / "usr/share/mero"
        for unreadable, pages in ((data, False), (data / "mero.mdb", True)):
            unreadable.chmod(0)
            done = self.run_command(command(front, str(script), programs=programs),
                                    env=environment(XDG_DATA_HOME=str(home)), **ordinary_user())
            unreadable.chmod(0o755)
            self.assertEqual(done.returncode, 1)
            self.assertIn(f'"Databáze dešťů „{home}/mero/mero.mdb“ nebyla nalezena', done.stdout.replace("\\\\", "/"))
            self.assertEqual((home / "mero/Webs/Desc01.htm").exists(), pages)

    @on_each_front
    def test_the_report_is_told_as_locked_and_a_copy_as_not_saved(self, front):
        folder = self.folder()
        closed = self.scratch / "closed"
        closed.mkdir()
        (closed / "old.html").write_text("old")
        closed.chmod(0o555)
        folder.chmod(0o555)
        events = self.run_script(front, [*REPORT, f'answer-save "{closed}/a.html"', "click cmdSaveResults",
                                         f'answer-save "{closed}/old.html"', "click cmdSaveResults",
                                         f'answer-save "{closed}/a.pdf"', "click cmdSaveResults"],
                                 folder, **ordinary_user())
        self.assertEqual(messages(events), [
            "Soubor Mero_ je otevřený jinou aplikací.",
            f"Zprávu se nepodařilo uložit do souboru {closed}/a.html.",
            f"Zprávu se nepodařilo uložit do souboru {closed}/old.html.",
            f"Zprávu se nepodařilo uložit do souboru {closed}/a.pdf."])
        self.assertEqual((closed / "old.html").read_text(), "old")
        self.assertEqual([path.name for path in closed.iterdir()], ["old.html"])

    def test_a_sweep_tells_where_it_cannot_write(self):
        folder = self.folder()
        closed = self.scratch / "closed"
        closed.mkdir()
        closed.chmod(0o555)
        sweep = [str(BATCH), "sweep", PROJECT, "--folder", str(folder), "--vary", "facility.safety_factor=1:2:0.1"]
        for option, target, reason in (("--out", closed / "r.csv", "Permission denied"),
                                       ("--plot", closed / "p.svg", "Permission denied"),
                                       ("--out", folder, "Is a directory"), ("--plot", folder, "Is a directory"),
                                       ("--out", "/dev/full", "No space left on device"),
                                       ("--plot", "/dev/full", "No space left on device")):
            with self.subTest(target=str(target)):
                done = self.run_command([*sweep, option, str(target)], **ordinary_user())
                self.assertEqual(done.returncode, 1)
                self.assertIn(f"{target} cannot be written: {reason}", done.stderr)
        self.assertEqual(list(closed.iterdir()), [])


def messages_of(done: subprocess.CompletedProcess) -> list[str]:
    return [line for line in done.stdout.splitlines() if '"message"' in line]


class FullDisk(FaultTest):
    def on_small_disk(self, content: str, spare_kb: int, arguments: list[str], **variables):
        """Runs with the folder `disk` on a full disk. Returns the names and sizes of the files left there."""
        disk = self.scratch / "disk"
        disk.mkdir(exist_ok=True)
        if self.wrapper is None:
            return self.with_limit(content, spare_kb, arguments, **variables)
        done = self.run_command([*self.wrapper, str(disk), content, str(spare_kb), *arguments],
                                env=environment(**variables))
        left = [line.split(" ", 2) for line in done.stderr.splitlines() if line.startswith("left ")]
        return done, {name.removeprefix("./"): int(size) for _, size, name in left}

    def setUp(self):
        super().setUp()
        self.wrapper = small_disk_wrapper()

    def with_limit(self, content: str, spare_kb: int, arguments: list[str], **variables):
        """The same without mounting a disk: no file can grow beyond the spare size."""
        disk = self.scratch / "disk"
        shutil.rmtree(disk, ignore_errors=True)
        disk.mkdir()
        if content == "files":
            shutil.copy(ROOT / "data" / "mero.mdb", disk)
            shutil.copytree(ROOT / "Webs", disk / "Webs")
        done = self.run_command(arguments, env=environment(**variables), preexec_fn=no_more_than(spare_kb * 1024))
        return done, {str(path.relative_to(disk)): path.stat().st_size for path in disk.rglob("*") if path.is_file()}

    @on_each_front
    def test_a_first_start_leaves_no_half_database(self, front):
        programs = self.installed()
        script = self.scratch / "s.mero"
        script.write_text("tab 0\n")
        done, left = self.on_small_disk("empty", 600, command(front, str(script), programs=programs),
                                        XDG_DATA_HOME=str(self.scratch / "disk"))
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertNotIn("mero/mero.mdb", left)
        for name, size in left.items():
            original = self.scratch / "usr/share" / name
            self.assertEqual(size, original.stat().st_size, name)
        self.assertGreater(len(left), 0, "what there is room for comes")

    @on_each_front
    def test_the_next_start_brings_what_there_was_no_room_for(self, front):
        programs = self.installed()
        script = self.scratch / "s.mero"
        script.write_text("tab 0\n")
        variables = environment(XDG_DATA_HOME=str(self.scratch / "home"))
        database = self.scratch / "home/mero/mero.mdb"
        start = command(front, str(script), programs=programs)
        self.run_command(start, env=variables, preexec_fn=no_more_than(DATABASE_BYTES // 2))
        self.assertFalse(database.exists())
        self.run_command(start, env=variables)
        self.assertEqual(database.read_bytes(), (ROOT / "data/mero.mdb").read_bytes())

    @on_each_front
    def test_the_report_is_whole_or_not_there_and_the_copy_is_told(self, front):
        script = self.scratch / "s.mero"
        disk = self.scratch / "disk"
        script.write_text("\n".join([*REPORT, "answer-save kopie.html", "click cmdSaveResults", "tab 2", "tab 3",
                                     f'answer-save "{self.scratch}/kopie.html"', "click cmdSaveResults"]))
        disk.mkdir(exist_ok=True)
        done, left = self.on_small_disk("files", 0,
                                        command(front, str(script), "--folder", str(disk)))
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn(f"Zprávu se nepodařilo uložit do souboru {disk}/kopie.html.", done.stdout)
        self.assertEqual([name for name in left if "Mero_" in name or "kopie" in name or ".mero-" in name], [])

    @on_each_front
    def test_an_old_copy_survives(self, front):
        script = self.scratch / "s.mero"
        copies = self.scratch / "disk"
        folder = self.folder()
        lines = [*REPORT, f'answer-save "{copies}/filling"', "click cmdSaveResults"]
        script.write_text("\n".join(lines))
        copies.mkdir(exist_ok=True)
        done, _ = self.on_small_disk("files", 0, command(front, str(script), "--folder", str(folder)))
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertIn(f"Zprávu se nepodařilo uložit do souboru {copies}/filling.", done.stdout)

    def test_a_design_and_a_sweep_tell_and_end_with_status_1(self):
        folder = self.folder()
        for arguments in (["design", PROJECT, "--report", f"{self.scratch}/disk/r.html"],
                          ["sweep", PROJECT, "--vary", "facility.safety_factor=1:2:0.001", "--out",
                           f"{self.scratch}/disk/r.csv"]):
            with self.subTest(command=arguments[0]):
                (self.scratch / "disk").mkdir(exist_ok=True)
                done, left = self.on_small_disk("files", 0, [str(BATCH), *arguments, "--folder", str(folder)])
                self.assertEqual(done.returncode, 1)
                self.assertIn("cannot be written", done.stderr)
                self.assertNotIn("r.html", left)


class InTheReportsPlace(FaultTest):
    @on_each_front
    def test_a_folder_and_a_pipe_are_left_and_the_copy_is_told(self, front):
        for make in (os.mkdir, os.mkfifo):
            folder = self.folder(f"{front} {make.__name__}")
            make(folder / "Mero_Test")
            events = self.run_script(front, ["set txtProjName Test", *REPORT, "answer-save kopie.html",
                                             "click cmdSaveResults", "click cmdPrint", "tab 1"], folder)
            self.assertEqual(messages(events),
                             [f"Zprávu se nepodařilo uložit do souboru {folder}/kopie.html."])
            self.assertEqual(sorted(path.name for path in folder.iterdir() if path.name.startswith("Mero")),
                             ["Mero_Test"] if make is os.mkdir else [])


if __name__ == "__main__":
    unittest.main()
