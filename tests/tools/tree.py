"""A small tree of files that a check of the project's tools is run on."""
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TOOLS = Path(__file__).resolve().parents[2] / "tools"


class TreeCheck(unittest.TestCase):
    """Tests of one check, whose name below tools/ is CHECK."""
    CHECK = None

    def run_on(self, files):
        """What the check prints for a tree of these files, and its exit status."""
        with tempfile.TemporaryDirectory() as folder:
            for name, text in files.items():
                path = Path(folder) / name
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            run = subprocess.run([sys.executable, TOOLS / self.CHECK, folder], capture_output=True, text=True, check=False)
        return run.returncode, run.stdout + run.stderr

    def expect_breach(self, files, words):
        status, output = self.run_on(files)
        self.assertEqual(status, 1, output)
        self.assertIn(words, output)

    def expect_clean(self, files):
        status, output = self.run_on(files)
        self.assertEqual(status, 0, output)
