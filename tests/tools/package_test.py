"""The Debian package holds all that a user of it needs, and what it holds runs from where it is unpacked."""
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
BUILD = Path(os.environ["TARVIS_BUILD"])


def output_of(*command):
    return subprocess.run([str(word) for word in command], capture_output=True, text=True, check=True).stdout


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        made = Path(folder.name)
        output_of("cpack", "--config", BUILD / "CPackConfig.cmake", "-B", made)
        cls.package = next(made.glob("tarvis_*.deb"))
        cls.root = made / "root"
        output_of("dpkg-deb", "-x", cls.package, cls.root)

    def test_everything_is_installed_in_its_place(self):
        for name in ("bin/tarvis", "bin/tarvis-check", "share/applications/tarvis.desktop",
                     "share/icons/hicolor/scalable/apps/tarvis.svg", "share/man/man1/tarvis.1",
                     "share/man/man1/tarvis-check.1", "share/man/man5/tarvis.ini.5",
                     "share/metainfo/tarvis.metainfo.xml", "share/doc/tarvis/README.md"):
            self.assertTrue((self.root / "usr" / name).is_file(), name)

    def test_libraries_and_fonts_come_with_it(self):
        needed = output_of("dpkg-deb", "-f", self.package, "Depends")
        for name in ("libqt6widgets6", "libqt6printsupport6", "libqpdf29", "libicu72", "fonts-liberation"):
            self.assertIn(name, needed)

    def test_desktop_entry_starts_what_is_installed(self):
        entry = (self.root / "usr/share/applications/tarvis.desktop").read_text()
        program = next(line[5:] for line in entry.splitlines() if line.startswith("Exec="))
        self.assertTrue(os.access(self.root / "usr/bin" / program, os.X_OK))

    def test_unpacked_checker_reads_the_example_files(self):
        examples = sorted((ROOT / "docs/examples").iterdir())
        told = output_of(self.root / "usr/bin/tarvis-check", *examples)
        self.assertEqual(len(told.splitlines()), len(examples))


if __name__ == "__main__":
    unittest.main()
