"""What the tests of tarvis-pdf share: a host with its files, and no display, no home folder and no printer."""
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests/host"))

from host import MODES, Host  # noqa: E402

PROGRAM = os.environ["TARVIS_PDF"]
PRINTING_MODES = [mode for mode in MODES if mode != "PrnSetting"]
DAY = "2026-03-05T17:04:09"
# What a desktop would give to its programs.
DESKTOP = ("DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR", "DBUS_SESSION_BUS_ADDRESS", "HOME", "XDG_CONFIG_HOME")


def output_of(*command):
    return subprocess.run([str(word) for word in command], capture_output=True, check=True, text=True).stdout


def files_below(folder):
    """Each file with what it holds."""
    return {path.relative_to(folder): path.read_bytes() for path in folder.rglob("*") if path.is_file()}


class PdfCase(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.host = Host(self.folder / "host")
        self.host.prepare(pdf_printer=False)
        self.output = self.folder / "out"
        self.output.mkdir()
        self.pdf = self.output / "document.pdf"

    def environment(self, **changes):
        kept = {name: value for name, value in os.environ.items() if name not in DESKTOP}
        wanted = {**kept, "LC_ALL": "C.UTF-8", "TARVIS_CONFIG": str(self.host.configuration), **changes}
        return {name: value for name, value in wanted.items() if value is not None}

    def run_program(self, *arguments, through=(), environment=None, **run):
        """`through` is a command that becomes the program; a variable that is None is not set."""
        return subprocess.run([*through, PROGRAM, *(str(word) for word in arguments)], check=False,
                              env=self.environment(**(environment or {})), **{"timeout": 300, "capture_output": True, **run})

    def make(self, mode, *options, edition=None, **run):
        """Expects a PDF without a word, and nothing else touched."""
        before = files_below(self.host.folder)
        edition = MODES[mode][0] if edition is None else edition
        done = self.run_program(*options, mode, edition, self.pdf, **run)
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, b"", b""))
        self.assertEqual(files_below(self.host.folder), before)
        self.assertEqual([path.name for path in self.output.iterdir()], [self.pdf.name])
        return self.pdf

    def expect_refused(self, status, line, *arguments, **run):
        """Expects one line on standard error, which this regular expression matches, and nothing written."""
        before = files_below(self.folder)
        done = self.run_program(*arguments, **run)
        words = done.stderr.decode()
        self.assertRegex(words, rf"\Atarvis-pdf: {line}\n\Z")
        self.assertEqual(done.returncode, status, words)
        self.assertIn(done.stdout, (b"", None))
        self.assertEqual(files_below(self.folder), before)

    def text(self):
        return output_of("pdftotext", "-layout", self.pdf, "-")

    def info(self):
        return dict(line.split(":", 1) for line in output_of("pdfinfo", self.pdf).splitlines())

    def page_count(self):
        return int(self.info()["Pages"])
