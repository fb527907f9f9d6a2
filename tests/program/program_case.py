"""What the tests of the whole program share: a display, a host with its files in a folder of its own, a user."""
import os
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests/host"))

from assistive import AccessibleProgram  # noqa: E402
from desktop import User, VirtualDisplay, end_with_parent, wait_until  # noqa: E402
from host import Host  # noqa: E402
from session import DIALOG, PREVIEW, Session  # noqa: E402

PROGRAM = os.environ["TARVIS_PROGRAM"]
EDITING = "Editing of the Printing Items"  # the tool of the preview
CANCELED = "Printing Process is canceled."

# Commands that become the program: one to whom permissions of files and folders apply, also where the tests run as root;
# and one that can write no file beyond 512 bytes, as on a disk that is full.
AS_A_USER = ("setpriv", "--bounding-set=-dac_override,-dac_read_search") if os.geteuid() == 0 else ()
ON_A_FULL_DISK = ("sh", "-c", 'ulimit -f 1; exec "$@"', "sh")


class ProgramCase(unittest.TestCase):
    """Each test has files of its own; the display serves all tests of a module."""

    @classmethod
    def setUpClass(cls):
        cls.display = VirtualDisplay()
        cls.addClassCleanup(cls.display.close)
        cls.user = User(cls.display.environment)

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.host = Host(self.folder)
        self.host.prepare()
        self.errors = self.folder / "stderr.txt"

    def environment(self):
        """No printer but those that a test sets up itself. The toolkit's own word on a question of newer accessibility
        libraries that it can't answer is no word of the program."""
        return {**self.display.environment, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
                "QT_LOGGING_RULES": "qt.accessibility.atspi.warning=false", "LANG": "C.UTF-8",
                "XDG_RUNTIME_DIR": str(self.folder), "CUPS_SERVER": "127.0.0.1:1"}

    def start(self, mode, edition=None, arguments=None, environment=None, through=(), **popen):
        """Starts the program as the host does, `through` a command that becomes the program; it is ended with the
        test if it still runs. A variable of the environment that is None is not set."""
        variables = {**self.environment(), **(environment or {})}
        with self.errors.open("wb") as stderr:
            process = self.host.start_with(PROGRAM, arguments if arguments is not None else self.host.arguments(mode, edition),
                                           environment=variables, through=through, stderr=stderr,
                                           preexec_fn=end_with_parent, **popen)
        self.addCleanup(self._end, process)
        self.program = AccessibleProgram(process.pid)
        return Session(self.user, process, self._is_active)

    def _is_active(self, title):
        window = self.program.window(title)
        return window is not None and window.has("active")

    def _end(self, process):
        if process.poll() is None:
            process.kill()
            process.wait()

    def standard_error(self):
        return self.errors.read_text(encoding="utf-8", errors="replace")

    def window(self, session, title):
        """The window of this title once it has the focus."""
        session.wait_for(title)
        return self.program.window(title)

    def read_message(self, session, title):
        """The words of the message box of this title, and its buttons."""
        box = self.window(session, title)
        words = wait_until(lambda: [w.name for w in box.all() if w.role == "label" and w.name], "the words of the message")
        return "\n".join(words), [w.name for w in box.all() if w.role == "button"]

    def expect_failure(self, session, words, title="Printing Error"):
        """The numbered failure, answered with OK; the run ends as every run does."""
        text, buttons = self.read_message(session, title)
        self.assertEqual(text, f"{words}\n{CANCELED}")
        self.assertEqual([name.replace("&", "") for name in buttons], ["OK"])
        self.answer_and_end(session, 0)

    def expect_run_time_error(self, session, *words):
        """Shown with its place on the screen and on standard error; exit status 1; no file deleted."""
        text, _ = self.read_message(session, "Run-time error")
        for word in words:
            self.assertIn(word, text)
            self.assertIn(word, self.standard_error())
        self.answer_and_end(session, 1)

    def expect_end(self, process, status=0):
        self.assertEqual(process.wait(timeout=60), status)

    def answer_and_end(self, session, status):
        """Answers the window that has the focus with the Enter key, which ends the run with this exit status."""
        self.user.press("Return")
        self.expect_end(session.process, status)

    def wait_for_words(self, words):
        """Until a label of any window holds these words."""
        def labels():
            return [label for window in self.program.windows() for label in window.all() if words in label.name]
        wait_until(labels, f"the words '{words}'")

    def widget(self, title, role, name):
        """Of the window of this title, once it shows."""
        def found():
            window = self.program.window(title)
            return window.find(role, name) if window else None
        return wait_until(found, f"the {role} '{name}'")

    def press_until_focused(self, session, title, role, name, key="Tab"):
        """Walks through a window by a key until the widget of this role and name has the focus."""
        for _ in range(60):
            widget = self.window(session, title).find(role, name)
            if widget is not None and widget.has("focused"):
                return widget
            before = self.focused_in(title)
            self.user.press(key)
            wait_until(lambda before=before: self.focused_in(title) != before, "the focus to move on")
        self.fail(f"'{name}' can't be reached by {key}")

    def focused_in(self, title):
        window = self.program.window(title)
        return [(w.role, w.name) for w in window.all() if w.has("focused")] if window else None

    def edit_items(self, session):
        """Goes back from the preview to the dialog, by the tool as an assistive tool presses it."""
        self.widget(PREVIEW, "button", EDITING).press()
        session.wait_for(DIALOG)

    def note_opened(self, target):
        """The environment in which a page that the program has the desktop open is noted in the file `target`."""
        opener = self.folder / "bin" / "xdg-open"
        opener.parent.mkdir()
        opener.write_text(f'#!/bin/sh\nprintf "%s\\n" "$1" >> "{target}"\n')
        opener.chmod(0o755)
        return {"PATH": f"{opener.parent}:/usr/bin:/bin"}

    def wait_for_opened(self, target, count):
        """The `count` pages noted in the file `target`, once each is there to its line end."""
        def noted():
            lines = target.read_text().splitlines(keepends=True) if target.exists() else []
            return len(lines) == count and lines[-1].endswith("\n") and [line.rstrip("\n") for line in lines]
        return wait_until(noted, f"{count} opened pages")

    def data_files_left(self):
        return [name for name in self.files_left() if name.lower().endswith((".tmp", ".emf"))]

    def files_left(self):
        return sorted(path.name for path in self.host.temp_folder.iterdir())
