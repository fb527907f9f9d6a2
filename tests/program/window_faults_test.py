"""Whatever call on files fails while the user saves or the run ends: the old file or the new one is there, and nothing else.

A few calls are tried here; `tools/reliability windows` tries every call with every error, and a kill before each.
"""
import contextlib
import os
import re
import signal
import subprocess
import unittest
from collections import Counter
from pathlib import Path

from call_faults import CALL, ERRORS, Moment, tracing
from leftovers import age_leftovers
from program_case import ProgramCase
from desktop import wait_until
from pdf_ends import EVERY
from session import DIALOG, PREVIEW

# Not "writev", by which the program also speaks to the display.
ON_FILES = ("openat", "newfstatat", "statx", "access", "getdents64", "copy_file_range", "write", "close", "lseek", "fchmodat",
            "fchmod", "fchown", "fsync", "rename", "unlink")
SAMPLE = ("fsync", "rename")  # what a failure of the disk is most likely to be seen by
OPTIONS_BEFORE = b"File-Spec,4\r\nDrowCorp,Northport Motion Ltd.\r\n"
PDF_BEFORE = b"the PDF of yesterday"
MIDDLE = 600, 500  # of the pages in the preview, in pixels


@contextlib.contextmanager
def watched(process, *options, log=os.devnull):
    """Meanwhile strace watches all threads of a program that runs already, or lets calls of it fail. The numbers of
    calls count from here."""
    with subprocess.Popen([*tracing(*options, call=",".join(ON_FILES), log=log), "-p", str(process.pid)]) as strace:
        wait_until(lambda: _is_traced(process.pid), "strace to watch the program")
        try:
            yield
        finally:
            strace.send_signal(signal.SIGINT)
            strace.wait()


def _is_traced(pid):
    return all("TracerPid:\t0" not in status.read_text() for status in Path(f"/proc/{pid}/task").glob("*/status"))


def moments_around(log, name):
    """The moments of the thread that gives a file this name, up to then and a little longer."""
    calls = [(match[1], match[2], line) for line in log.read_text(errors="replace").splitlines() if (match := CALL.match(line))]
    thread = next(thread for thread, call, line in calls if call == "rename" and name in line)
    counts, moments = Counter(), []
    for caller, call, _ in calls:
        if caller == thread:
            counts[call] += 1
            moments.append(Moment(call, counts[call]))
    return moments


def tried(moments):
    """What goes wrong, as a name and an option of strace."""
    for moment in moments:
        if not EVERY and moment.call not in SAMPLE:
            continue
        yield f"a kill before {moment}", f"--inject={moment.call}:signal=KILL:when={moment.number}"
        for error in ERRORS[moment.call] if EVERY else ("EIO",):
            yield f"{moment} with {error}", f"--inject={moment.call}:error={error}:when={moment.number}"


class OptionsFile(ProgramCase):
    def write(self, *options, log=os.devnull):
        """The exit status of a run whose user confirms the dialog."""
        self.host.options_file.write_bytes(OPTIONS_BEFORE)
        session = self.start("PrnSetting")
        session.wait_for(DIALOG)
        with watched(session.process, *options, log=log):
            self.user.press("Return")
            return session.process.wait(timeout=60)

    def options(self):
        """What the file holds, apart from the time."""
        return re.sub(rb"(?m)^DateTime,.*$", b"DateTime,", self.host.options_file.read_bytes())

    def test_is_the_old_one_or_the_new_one_whatever_fails(self):
        log = self.folder / "calls"
        self.assertEqual(self.write(log=log), 0)
        written = self.options()
        self.assertNotEqual(written, OPTIONS_BEFORE)
        ends = Counter()
        for name, option in tried(moments_around(log, self.host.options_file.name)):
            with self.subTest(name):
                status = self.write(option)
                ends[status] += 1
                self.assertIn(status, (0, -signal.SIGKILL) if "kill" in name else (0,))  # some calls come more or less often
                self.assertIn(self.options(), (OPTIONS_BEFORE, written))
                self.assertEqual(self.standard_error(), "")
                left = age_leftovers(self.host.system_folder, self.host.options_file.name)
                if "kill" not in name and "unlink" not in name:
                    self.assertEqual(left, [])
        print(f"writing the options: {sum(ends.values())} runs, by exit status {dict(ends)}")
        self.assertEqual(self.write(), 0)
        self.assertEqual(age_leftovers(self.host.system_folder, self.host.options_file.name), [])


class SavedPdf(ProgramCase):
    def setUp(self):
        super().setUp()
        self.target = self.folder / "target"
        self.target.mkdir()
        self.pdf = self.target / "document.pdf"

    def start_preview(self):
        self.host.write_data("JogTbl")
        session = self.start("JogTbl")
        session.confirm_dialog()
        return session

    def activate_preview(self, session):
        """Where windows come and go quickly, the window manager may give the focus to none of those that are left."""
        self.user.click(wait_until(lambda: self.user.windows(PREVIEW), "the preview")[0], *MIDDLE)
        session.wait_for(PREVIEW)

    def save(self, session, *options, log=os.devnull):
        """Saves over the older PDF. Waits until the new one is there, the reason is shown why not, or the program ends."""
        self.pdf.write_bytes(PDF_BEFORE)
        self.activate_preview(session)
        self.user.press("ctrl+s")
        session.wait_for("Save as PDF")
        self.user.fill_in(str(self.pdf))
        self.user.press_until("Return", "Save as PDF", 2)  # the question bears the dialog's title
        with watched(session.process, *options, log=log):
            self.user.press_until("alt+y", "Save as PDF", 0)
            wait_until(lambda: session.process.poll() is not None or self.is_new() or self.refusal(), "the end of saving")

    def is_new(self):
        content = self.pdf.read_bytes()
        return content.startswith(b"%PDF") and content.rstrip().endswith(b"%%EOF")

    def refusal(self):
        labels = [label.name for window in self.program.windows() for label in window.all()]
        return "The PDF was not saved." in " ".join(labels)

    def expect_old_or_new(self, session, name):
        if not self.is_new():
            self.assertEqual(self.pdf.read_bytes(), PDF_BEFORE)
            self.assertTrue(session.process.poll() is not None or self.refusal())
            if self.refusal():
                self.user.press("Return")
                wait_until(lambda: len(self.program.windows()) == 1, "the message to go")
        left = age_leftovers(self.target, self.pdf.name)
        if "kill" not in name and "unlink" not in name:
            self.assertEqual(left, [])

    def test_is_the_old_one_or_the_new_one_whatever_fails(self):
        log = self.folder / "calls"
        session = self.start_preview()
        self.save(session, log=log)
        self.assertTrue(self.is_new())
        ends = Counter()
        for name, option in tried(moments_around(log, self.pdf.name)):
            with self.subTest(name):
                if session.process.poll() is not None:
                    session = self.start_preview()
                self.save(session, option)
                ends["killed" if session.process.poll() is not None else "saved" if self.is_new() else "refused"] += 1
                self.assertIn(session.process.poll(), (None, -signal.SIGKILL) if "kill" in name else (None,))
                self.expect_old_or_new(session, name)
        print(f"saving: {sum(ends.values())} runs: {dict(ends)}")
        if session.process.poll() is not None:
            session = self.start_preview()
        self.save(session)
        self.assertEqual([path.name for path in self.target.iterdir()], [self.pdf.name])
        self.activate_preview(session)
        self.assertEqual(session.close_preview(), 0)


if __name__ == "__main__":
    unittest.main()
