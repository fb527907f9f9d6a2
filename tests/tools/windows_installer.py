"""The installer for Windows, under wine: installed and removed without a question, it leaves nothing.

windows.sh runs it. TARVIS_SETUP is the installer, TARVIS_WINE what runs programs for Windows.
"""
import os
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

WINE = os.environ["TARVIS_WINE"]
SETUP = os.environ["TARVIS_SETUP"]
KEY = r"HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarvis"
REGISTRY = "reg.exe"  # of wine, as of Windows
PATIENCE = 300  # seconds


def run(*command):
    return subprocess.run([WINE, *command], check=False, capture_output=True, text=True, timeout=PATIENCE)


class Installer(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name) / "Tarvis"

    def install(self, *options):
        done = run(SETUP, "/S", *options, "/D=" + "Z:" + str(self.folder).replace("/", "\\"))
        self.assertEqual(done.returncode, 0, done.stderr)

    def remove(self):
        self.assertEqual(run(str(self.folder / "uninstall.exe"), "/S").returncode, 0)
        end = time.monotonic() + PATIENCE
        while (self.folder / "uninstall.exe").exists():  # a copy of it goes on after its end
            self.assertLess(time.monotonic(), end)

    def test_a_silent_installation_is_listed_and_its_removal_leaves_nothing(self):
        self.install()
        self.assertTrue(list(self.folder.glob("*.exe")))
        self.assertIn("toolkit.txt", {file.name for file in (self.folder / "licences").iterdir()})
        self.assertIn(str(self.folder).replace("/", "\\"), run(REGISTRY, "query", KEY).stdout)
        self.remove()
        self.assertFalse(self.folder.exists())
        self.assertNotEqual(run(REGISTRY, "query", KEY).returncode, 0)

    def test_removal_keeps_what_others_have_put_into_the_folder(self):
        self.install()
        (self.folder / "mine.txt").write_text("kept")
        self.remove()
        self.assertEqual([file.name for file in self.folder.iterdir()], ["mine.txt"])


if __name__ == "__main__":
    unittest.main()
