"""tools/install_packages installs what a purpose needs and nothing else, or says what to do where it can't."""
import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
LIST = """\
# A comment.
[building]
compiler         command compiler-command
library-dev      library library-module 6.4

[playing] building # with a remark
player           command player-command
font|old-font    font Some Font

[reading]
reader           module no_such_module
manual           file {folder}/manual
"""
REAL = ("awk", "cat", "dirname", "echo", "grep", "sh", "sort", "tr")  # all that the script may take for granted
STARTED = re.compile(r"""(?:run|Popen|output_of)\(\s*\[?"([a-z][\w-]*)\"""")
BROUGHT_ALONG = {"cancel", "cc", "convert", "cpack", "ctest", "cupsdisable", "fc-match", "identify", "locale", "lpstat",
                 "pdfdetach", "pdffonts", "pdfinfo", "pdftoppm", "readelf"}  # by packages of other commands
ON_EVERY_SYSTEM = {"bash", "dpkg-deb", "dpkg-query", "grep", "sh", "umount"}


class InstallPackages(unittest.TestCase):
    """On a system whose package tools are small scripts that note what they are asked to do."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.bin = self.folder / "bin"
        self.calls = self.folder / "calls"
        for name in ("bin", "tools", "cmake"):
            (self.folder / name).mkdir()
        shutil.copy(ROOT / "tools/install_packages", self.folder / "tools")
        (self.folder / "cmake/packages.txt").write_text(LIST.format(folder=self.folder))
        for name in REAL:
            (self.bin / name).symlink_to(shutil.which(name))
        self.command("env", 'while [ "${1#*=}" != "$1" ]; do shift; done; exec "$@"')

    def command(self, name, script):
        path = self.bin / name
        path.write_text(f"#!/bin/sh\n{script}\n")
        path.chmod(0o755)

    def debian(self, installed=(), known=(), user=0):
        """A system with these packages, which knows of `known` ones that it could install."""
        self.command("dpkg-query", "".join(f"echo installed {name};" for name in installed) + "echo config-files compiler")
        self.command("apt-get", f'echo "apt-get $*" >> {self.calls}')
        self.command("apt-cache", f'for name; do :; done; case $name in {"|".join((*known, "-"))}) ;; *) exit 1 ;; esac')
        self.command("id", f"echo {user}")

    def run_for(self, *purposes):
        return subprocess.run([self.folder / "tools/install_packages", *purposes], env={"PATH": str(self.bin)},
                              capture_output=True, text=True, check=False)

    def install(self, *purposes):
        """The packages that are installed for these purposes, through sudo or not."""
        done = self.run_for(*purposes)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        calls = self.calls.read_text().splitlines() if self.calls.exists() else []
        self.assertEqual(calls[:1], [call for call in calls[:1] if call.startswith("apt-get update")])
        return [word for call in calls[1:] for word in call.split()[2:] if not word.startswith("-")]

    def test_a_purpose_brings_its_own_packages_and_no_others(self):
        self.debian()
        self.assertEqual(self.install("building"), ["compiler", "library-dev"])

    def test_a_purpose_brings_those_of_the_purposes_that_it_includes(self):
        self.debian(known=["font"])
        self.assertEqual(self.install("playing"), ["compiler", "font", "library-dev", "player"])

    def test_what_is_installed_is_not_asked_for_again(self):
        self.debian(installed=["compiler", "player", "old-font"])
        self.assertEqual(self.install("playing", "building"), ["library-dev"])

    def test_the_name_that_the_release_knows_is_taken(self):
        self.debian(installed=["compiler", "player", "library-dev"], known=["old-font"])
        self.assertEqual(self.install("playing"), ["old-font"])

    def test_a_system_that_has_all_is_left_alone(self):
        self.debian(installed=["compiler", "library-dev"])
        self.assertEqual(self.run_for("building").stdout, "")
        self.assertFalse(self.calls.exists())

    def test_an_ordinary_user_installs_through_sudo(self):
        self.debian(user=1000)
        self.command("sudo", f'echo "sudo $*" >> {self.calls}; exec "$@"')
        self.assertEqual(self.run_for("building").returncode, 0)
        sudo = [call for call in self.calls.read_text().splitlines() if call.startswith("sudo")]
        self.assertEqual(len(sudo), 2)
        self.assertTrue(sudo[1].endswith("compiler library-dev"), sudo)

    def test_an_ordinary_user_without_sudo_is_shown_the_one_command(self):
        self.debian(installed=["compiler", "player"], known=["old-font"], user=1000)
        done = self.run_for("playing")
        self.assertEqual(done.returncode, 1)
        self.assertEqual([line.strip() for line in done.stderr.splitlines()[1:]],
                         ["apt-get install --no-install-recommends library-dev old-font"])
        self.assertFalse(self.calls.exists())

    def test_a_purpose_that_is_not_in_the_list_is_refused(self):
        self.debian()
        done = self.run_for("building", "gardening")
        self.assertEqual(done.returncode, 2)
        self.assertIn("gardening", done.stderr)
        self.assertFalse(self.calls.exists())

    def test_the_missing_are_named_with_the_least_version_without_package_tools(self):
        self.command("pkg-config", "exit 1")
        done = self.run_for("playing", "reading")
        self.assertEqual(done.returncode, 1)
        lines = done.stderr.splitlines()[1:]
        self.assertEqual(len(lines), 6, lines)
        self.assertIn("the command compiler-command", lines)
        self.assertIn("the library library-module, version 6.4 or later, as pkg-config knows it", lines)
        self.assertIn("the font Some Font", lines)
        self.assertIn(f"the file {self.folder}/manual", lines)

    def test_a_library_of_an_older_version_is_missing_without_package_tools(self):
        self.command("compiler-command", "")
        self.command("pkg-config", 'case $2 in "library-module >= 6.4") exit 1 ;; esac')
        self.assertIn("version 6.4", self.run_for("building").stderr)

    def test_nothing_stops_without_package_tools_if_nothing_is_missing(self):
        for name in ("compiler-command", "pkg-config", "player-command"):
            self.command(name, "")
        self.command("fc-list", 'test "$*" = "Some Font" && echo found')
        done = self.run_for("playing")
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, "", ""))


class TheList(unittest.TestCase):
    def needed_for(self, *purposes):
        """What would be typed on a system that has nothing."""
        with tempfile.TemporaryDirectory() as folder:
            for name, script in {"dpkg-query": ":", "apt-cache": ":", "id": "echo 1000", "apt-get": ":"}.items():
                Path(folder, name).write_text(f"#!/bin/sh\n{script}\n")
                Path(folder, name).chmod(0o755)
            for name in REAL:
                Path(folder, name).symlink_to(shutil.which(name))
            done = subprocess.run([ROOT / "tools/install_packages", *purposes], env={"PATH": folder},
                                  capture_output=True, text=True, check=False)
        return set(done.stderr.split("recommends")[1].split())

    def test_a_demo_installs_no_developers_tools(self):
        demo = self.needed_for("building", "headless")
        for name in demo:
            self.assertNotRegex(name, "clang|lintian|mandoc|gtest|gmock|benchmark|gcovr|ccache|fonts-noto")
        self.assertIn("xvfb", demo)

    def test_a_demo_on_a_real_display_installs_no_virtual_one(self):
        self.assertEqual(self.needed_for("building", "playing") & {"xvfb", "openbox", "cups"}, set())

    def test_every_script_names_purposes_of_the_list(self):
        scripts = [ROOT / line for line in subprocess.run(["grep", "-rlI", "--exclude-dir=build", "--exclude-dir=.git",
                   "tools/install_packages ", ROOT], capture_output=True, text=True, check=True).stdout.splitlines()]
        named = {word for script in scripts if script.suffix in (".sh", "") for line in script.read_text().splitlines()
                 for word in re.findall(r"^ *tools/install_packages ([a-z ]+)", line)}
        self.assertGreater(len(named), 4)
        for purposes in named:
            self.needed_for(*purposes.split())

    def test_every_command_that_tests_start_comes_with_a_package_of_theirs(self):
        listed = [line.split()[0::2][:2] for line in (ROOT / "cmake/packages.txt").read_text().splitlines()
                  if re.match(r"\S+ +command ", line)]
        needed = self.needed_for("testing")
        brought = {command for package, command in listed if needed.intersection(package.split("|"))}
        scripts = [path for folder in ("demo", "tests", "bench", "tools") for path in (ROOT / folder).rglob("*.py")]
        started = {command for script in scripts for command in STARTED.findall(script.read_text())}
        self.assertIn("xdotool", started)
        self.assertEqual(started - brought - BROUGHT_ALONG - ON_EVERY_SYSTEM, set())

    def test_no_package_is_named_by_a_version_that_one_release_has(self):
        for name in self.needed_for("testing", "linting", "covering", "trying"):
            self.assertNotRegex(name, r"-\d+(-dev)?$")


if __name__ == "__main__":
    unittest.main()
