"""The Debian package holds all that a user of it needs, and installs, runs, upgrades and goes without a trace."""
import atexit
import functools
import gzip
import os
import re
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
BUILD = Path(os.environ["TARVIS_BUILD"])
sys.path.insert(0, str(ROOT / "tests/host"))

from desktop import User, VirtualDisplay  # noqa: E402
from host import Host  # noqa: E402
from session import Session  # noqa: E402

LINK = re.compile(r"\]\(([^)#:]+)(?:#[^)]*)?\)")


def output_of(*command):
    return subprocess.run([str(word) for word in command], capture_output=True, text=True, check=True).stdout


@functools.cache
def folder_of_package():
    """Where the package was made; gone at the end of all tests."""
    folder = tempfile.TemporaryDirectory()
    atexit.register(folder.cleanup)
    output_of("cpack", "--config", BUILD / "CPackConfig.cmake", "-B", folder.name)
    return Path(folder.name)


def package():
    return next(folder_of_package().glob("tarvis_*.deb"))


class ScratchRoot:
    """The root folder of a system that holds nothing but dpkg's own files."""

    def __init__(self, folder):
        self.folder = folder
        (folder / "var/lib/dpkg/updates").mkdir(parents=True)
        (folder / "var/lib/dpkg/info").mkdir()
        for name in ("status", "available"):
            (folder / "var/lib/dpkg" / name).touch()

    def dpkg(self, *words):
        output_of("fakeroot", "dpkg", f"--root={self.folder}", "--force-depends", "--force-not-root",
                  "--log=/dev/null", *words)

    def files(self):
        """Files and links outside dpkg's own folder, and what its folder keeps of packages."""
        found = [path for path in self.folder.rglob("*") if path.is_symlink() or not path.is_dir()]
        own = self.folder / "var/lib/dpkg"
        return {str(path.relative_to(self.folder)) for path in found
                if own not in path.parents or (path.parent == own / "info" and path.name != "format")}

    def folders(self):
        return {str(path.relative_to(self.folder)) for path in self.folder.rglob("*")
                if path.is_dir() and "dpkg" not in path.parts}

    def version(self):
        return output_of("dpkg-query", f"--admindir={self.folder}/var/lib/dpkg", "-W", "-f=${Version}", "tarvis")


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.root = folder_of_package() / "root"
        output_of("dpkg-deb", "-x", package(), cls.root)
        cls.documents = cls.root / "usr/share/doc/tarvis"

    def field(self, name):
        return output_of("dpkg-deb", "-f", package(), name).strip()

    def test_everything_is_installed_in_its_place(self):
        for name in ("bin/tarvis", "bin/tarvis-check", "bin/tarvis-pdf", "share/applications/tarvis.desktop",
                     "share/icons/hicolor/scalable/apps/tarvis.svg", "share/man/man1/tarvis.1.gz",
                     "share/man/man1/tarvis-check.1.gz", "share/man/man1/tarvis-pdf.1.gz",
                     "share/bash-completion/completions/tarvis-pdf", "share/man/man5/tarvis.ini.5.gz",
                     "share/metainfo/example.tarvis.tarvis.metainfo.xml", "share/doc/tarvis/user-guide.md",
                     "share/doc/tarvis/file-formats.md"):
            self.assertTrue((self.root / "usr" / name).is_file(), name)

    def test_libraries_and_fonts_come_with_it(self):
        needed = self.field("Depends")
        for name in ("libqt6widgets6", "libqt6printsupport6", r"libqpdf\d+", "libdeflate0", r"libicu\d+", "fonts-liberation"):
            self.assertRegex(needed, rf"(^|, ){name}\b")

    def test_licence_is_the_one_of_the_tree(self):
        self.assertEqual((self.documents / "copyright").read_text(), (ROOT / "LICENSE").read_text())
        metadata = (self.root / "usr/share/metainfo/example.tarvis.tarvis.metainfo.xml").read_text()
        self.assertIn("<project_license>MIT</project_license>", metadata)

    def test_every_list_of_changes_begins_with_the_version_of_the_package(self):
        version = self.field("Version")
        debian = gzip.decompress((self.documents / "changelog.gz").read_bytes()).decode()
        self.assertTrue(debian.startswith(f"tarvis ({version}) "), debian)
        newest = re.search(r"^## (\S+)", (self.documents / "CHANGELOG.md").read_text(), re.MULTILINE)
        self.assertEqual(newest[1], version)
        self.assertIn(f"/{package().name}\n", (ROOT / "README.md").read_text())
        metadata = (self.root / "usr/share/metainfo/example.tarvis.tarvis.metainfo.xml").read_text()
        self.assertEqual(re.search(r'release version="([^"]+)"', metadata)[1], version)

    def test_links_of_installed_documents_lead_somewhere(self):
        for document in self.documents.glob("*.md"):
            for target in LINK.findall(document.read_text(encoding="utf-8")):
                self.assertTrue((self.documents / target).exists(), f"{document.name}: {target}")

    def test_desktop_entry_starts_what_is_installed(self):
        entry = self.root / "usr/share/applications/tarvis.desktop"
        program = next(line[5:] for line in entry.read_text().splitlines() if line.startswith("Exec="))
        self.assertTrue(os.access(self.root / "usr/bin" / program, os.X_OK))
        self.assertEqual(output_of("desktop-file-validate", entry), "")

    def test_description_for_software_centres_is_valid(self):
        output_of("appstreamcli", "validate", "--no-net",
                  self.root / "usr/share/metainfo/example.tarvis.tarvis.metainfo.xml")

    def test_manual_pages_are_well_formed(self):
        for page in sorted((self.root / "usr/share/man").rglob("*.gz")):
            text = folder_of_package() / page.stem
            text.write_bytes(gzip.decompress(page.read_bytes()))
            self.assertEqual(output_of("mandoc", "-T", "lint", text), "")

    def test_manual_page_says_the_same_as_the_checker_itself(self):
        done = subprocess.run([self.root / "usr/bin/tarvis-check"], capture_output=True, text=True, check=False)
        self.assertEqual(done.returncode, 1)
        page = (ROOT / "packaging/tarvis-check.1").read_text()
        for name in re.findall(r"\w+\.(?:tmp|ToT)|--[\w-]+", done.stderr):
            self.assertIn(name.replace("-", r"\-") if name.startswith("--") else name, page)

    def test_unpacked_checker_reads_the_example_files(self):
        examples = sorted((self.documents / "examples").iterdir())
        output = output_of(self.root / "usr/bin/tarvis-check", *examples)
        self.assertEqual(len(output.splitlines()), len(examples))


class PackageLife(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.system = ScratchRoot(self.folder / "root")
        self.fresh = self.system.files(), self.system.folders()

    def next_package(self):
        """The next version of the package, in which one document has gone."""
        tree = self.folder / "next"
        output_of("fakeroot", "dpkg-deb", "-R", package(), tree)
        control = tree / "DEBIAN/control"
        control.write_text(re.sub(r"(?m)^Version: .*", "Version: 99.0", control.read_text()))
        (tree / "usr/share/doc/tarvis/user-guide.md").unlink()
        output_of("fakeroot", "dpkg-deb", "-Znone", "-b", tree, self.folder / "next.deb")
        return self.folder / "next.deb"

    def test_installed_program_goes_from_dialog_to_pdf(self):
        self.system.dpkg("-i", package())
        before = self.system.files()
        host = Host(self.folder / "host")
        host.prepare()
        host.write_data("User")
        display = VirtualDisplay()
        self.addCleanup(display.close)
        environment = {**display.environment, "XDG_RUNTIME_DIR": str(self.folder), "CUPS_SERVER": "127.0.0.1:1"}
        process = host.start(self.system.folder / "usr/bin/tarvis", "User", environment=environment)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        session = Session(User(display.environment), process)
        session.confirm_dialog()
        session.save_pdf(self.folder / "saved.pdf")
        self.assertEqual(session.close_preview(), 0)
        self.assertIn("Pages:", output_of("pdfinfo", self.folder / "saved.pdf"))
        self.assertEqual(self.system.files(), before)

    def test_upgrade_replaces_the_old_version_whole(self):
        self.system.dpkg("-i", package())
        before = self.system.files()
        self.system.dpkg("-i", self.next_package())
        self.assertEqual(self.system.version(), "99.0")
        self.assertEqual(before - self.system.files(), {"usr/share/doc/tarvis/user-guide.md"})
        self.assertEqual(self.system.files() - before, set())

    def test_removal_and_purge_leave_no_file(self):
        for action in ("-r", "-P"):
            self.system.dpkg("-i", package())
            self.assertIn("usr/bin/tarvis", self.system.files())
            self.system.dpkg(action, "tarvis")
            self.assertEqual((self.system.files(), self.system.folders()), self.fresh, action)

    def test_package_keeps_the_rules_of_debian(self):
        done = subprocess.run(["lintian", "--fail-on", "error,warning", package()], capture_output=True, text=True,
                              check=False)
        self.assertEqual(done.returncode, 0, done.stdout)


if __name__ == "__main__":
    unittest.main()
