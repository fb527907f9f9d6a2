"""Pictures are made by ImageMagick 6 and 7, which are called by different commands."""
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from unittest import mock

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests/host"))

import image_magick  # noqa: E402


class ImageMagick(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.bin = Path(folder.name)

    def install(self, *names):
        """A system that has only these programs, each of which prints its own name and what it is called with."""
        for name in names:
            (self.bin / name).write_text('#!/bin/sh\necho "${0##*/} $*"\n')
            (self.bin / name).chmod(0o755)
        self.enterContext(mock.patch.dict(os.environ, {"PATH": str(self.bin)}))

    def call(self, tool, *arguments):
        return subprocess.run([*image_magick.command(tool), *arguments], capture_output=True, text=True,
                              check=True).stdout.strip()

    def test_version_6_has_a_program_for_each_tool(self):
        self.install("convert", "import")
        self.assertEqual(self.call("convert", "a.png", "b.png"), "convert a.png b.png")
        self.assertEqual(self.call("import", "-window", "root"), "import -window root")

    def test_version_7_has_one_program_which_converts_by_itself(self):
        self.install("magick", "convert")
        self.assertEqual(self.call("convert", "a.png", "b.png"), "magick a.png b.png")
        self.assertEqual(self.call("import", "-window", "root"), "magick import -window root")


if __name__ == "__main__":
    unittest.main()
