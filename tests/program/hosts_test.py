"""Hosts that misbehave: files change while they are read, folders are full of old ones, names are no text, disks are slow."""
import contextlib
import os
import re
import shutil
import signal
import subprocess
import time
import unittest

from call_faults import tracing
from pdf_case import DAY, PROGRAM, PdfCase
from program_case import ProgramCase
from desktop import wait_until

STALE = 10_000
# As strace reports it.
STOPPED = re.compile(r"(?m)^(\d+) +--- stopped by SIGSTOP ---")
# Every byte but NUL, the slash, and the backslash, which separates folders in the host's paths.
BYTES = bytes(byte for byte in range(1, 256) if byte not in b"/\\")


def names_of_every_byte():
    return [os.fsdecode(BYTES[start:start + 64]) for start in range(0, len(BYTES), 64)]


class ChangingFile(PdfCase):
    """The host writes on while tarvis-pdf has opened a file, or is about to."""

    def stopped_after(self, call, path):
        """A run of three overlapping traces that is stopped once it has carried out a call on this file."""
        self.host.write_data("Trace", 3)
        log = self.folder / "calls"
        process = subprocess.Popen([*tracing("-e", "signal=STOP", f"--inject={call}:signal=STOP:when=1", "-P", str(path),
                                             call=call, log=log), PROGRAM, "--date", DAY, "Trace", "1", str(self.pdf)],
                                   env=self.environment(), stderr=subprocess.PIPE)
        self.addCleanup(process.stderr.close)
        self.addCleanup(process.kill)
        line = wait_until(lambda: STOPPED.search(log.read_text()) if log.exists() else None, "the run to stop")
        self.program = int(line[1])
        self.addCleanup(self.kill_program)
        return process

    def kill_program(self):
        with contextlib.suppress(ProcessLookupError):
            os.kill(self.program, signal.SIGKILL)

    def goes_on(self, process):
        """The exit status, and what is said."""
        os.kill(self.program, signal.SIGCONT)
        return process.wait(timeout=60), process.stderr.read().decode(errors="replace")

    def file(self, name):
        return self.host.temp_folder / name

    def test_is_refused_if_it_grows_while_it_is_read(self):
        process = self.stopped_after("read", self.file("Trace2.tmp"))
        with self.file("Trace2.tmp").open("ab") as file:
            file.write(b"CommentCnt,1\r\n")
        self.assertEqual(self.goes_on(process), (2, "tarvis-pdf: failure 4: Tracing File is wrong. Trace2.tmp: grows while it is read\n"))
        self.assertFalse(self.pdf.exists())

    def test_is_refused_if_it_shrinks_while_it_is_read(self):
        process = self.stopped_after("lseek", self.file("Trace2.tmp"))
        os.truncate(self.file("Trace2.tmp"), 100)
        self.assertEqual(self.goes_on(process), (2, "tarvis-pdf: failure 4: Tracing File is wrong. Trace2.tmp: can't be read\n"))
        self.assertFalse(self.pdf.exists())

    def test_is_refused_if_it_can_not_be_read_for_a_moment(self):
        """Also the first look into it, which finds how many data sets overlap."""
        self.host.write_data("Trace", 3)
        for name, number in (("Trace.tmp", 1), ("Trace.tmp", 3), ("Trace2.tmp", 1)):  # read 2 finds the end of the file
            failing = tracing(f"--inject=read:error=EIO:when={number}", "-P", str(self.file(name)), call="read")
            with self.subTest(name=name, number=number):
                self.expect_refused(2, f"failure 4: Tracing File is wrong. {name}: can't be read", "Trace", "1", self.pdf,
                                    through=failing)

    def test_is_refused_if_it_goes_between_two_data_sets(self):
        process = self.stopped_after("newfstatat", self.file("Trace2.tmp"))
        self.file("Trace2.tmp").unlink()
        self.assertEqual(self.goes_on(process), (2, "tarvis-pdf: failure 4: Tracing File is wrong. Trace2.tmp: can't be read\n"))
        self.assertFalse(self.pdf.exists())

    def test_is_taken_as_it_is_when_its_turn_comes(self):
        process = self.stopped_after("openat", self.file("Trace1.tmp"))
        content = self.file("Trace2.tmp").read_bytes()
        self.file("Trace2.tmp").write_bytes(content.replace(b"axis1_run2.trc", b"written_late.trc"))
        self.assertEqual(self.goes_on(process), (0, ""))
        self.assertIn("written_late.trc", self.text())

    def test_is_refused_as_a_picture_that_is_still_being_written(self):
        process = self.stopped_after("openat", self.file("TraceGraph2.emf"))
        picture = self.file("TraceGraph2.emf")
        picture.write_bytes(picture.read_bytes()[:200])
        status, words = self.goes_on(process)
        self.assertEqual(status, 1)
        self.assertRegex(words, r"\Atarvis-pdf: run-time error: .*TraceGraph2.emf.*no picture that can be shown.*\n\Z")
        self.assertFalse(self.pdf.exists())


class StaleFiles(ProgramCase):
    def test_keep_nobody_waiting_in_thousands_and_are_deleted_with_the_others(self):
        self.host.write_data("JogTbl")
        for number in range(STALE):
            (self.host.temp_folder / f"old{number}.{'tmp' if number % 2 else 'EMF'}").touch()
        for name in names_of_every_byte():
            (self.host.temp_folder / f"{name}.tmp").touch()
        (self.host.temp_folder / "kept.txt").touch()
        session = self.start("JogTbl")
        session.confirm_dialog()
        begin = time.monotonic()
        self.assertEqual(session.close_preview(), 0)
        self.assertLess(time.monotonic() - begin, 10)
        self.assertEqual(self.files_left(), ["kept.txt"])


class Names(PdfCase):
    def test_may_hold_every_byte_in_pdfs(self):
        self.host.write_data("JogTbl")
        for name in [*(f"n{name}" for name in names_of_every_byte()), "back\\slash", "l" * 255]:
            target = self.output / name
            for _ in range(2):  # made, and replaced
                done = self.run_program("JogTbl", "2", target)
                self.assertEqual((done.returncode, done.stderr), (0, b""), name)
            self.assertEqual(os.listdir(self.output), [name])
            target.unlink()

    def test_may_hold_every_byte_in_folders_of_data(self):
        self.host.write_data("JogTbl")
        for name in names_of_every_byte():
            folder = self.folder / f"n{name}"
            shutil.copytree(self.host.temp_folder, folder)
            done = self.run_program("--data", folder, "JogTbl", "2", self.pdf)
            self.assertEqual((done.returncode, done.stderr), (0, b""), name)


if __name__ == "__main__":
    unittest.main()
