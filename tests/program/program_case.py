"""What the tests of the whole program share: a display, a host with its files in a folder of its own, a user."""
import os
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "demo"))

from assistive import AccessibleProgram  # noqa: E402
from desktop import User, VirtualDisplay, wait_until  # noqa: E402
from host import Host  # noqa: E402
from session import Session  # noqa: E402

PROGRAM = os.environ["TARVIS_PROGRAM"]


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
        """No printer but those that a test sets up itself."""
        return {**self.display.environment, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "LANG": "C.UTF-8",
                "XDG_RUNTIME_DIR": str(self.folder), "CUPS_SERVER": "127.0.0.1:1"}

    def start(self, mode, edition=None, arguments=None, environment=None):
        """Starts the program as the host does; it is ended with the test if it still runs."""
        told = {**self.environment(), **(environment or {})}
        with self.errors.open("wb") as stderr:
            if arguments is None:
                process = self.host.start(PROGRAM, mode, edition, environment=told, stderr=stderr)
            else:
                process = self.host.start_with(PROGRAM, arguments, environment=told, stderr=stderr)
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
        return "\n".join(words), [w.name for w in box.all() if w.role == "push button"]

    def files_left(self):
        return sorted(path.name for path in self.host.temp_folder.iterdir())
