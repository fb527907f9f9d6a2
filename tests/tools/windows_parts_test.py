"""tools/windows_parts builds a library once, again when what it is made from has changed, and keeps no half of one."""
import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
COMPILER = "x86_64-w64-mingw32-g++-posix"
RECIPE = """\
# package: lib{name}-dev
{needs}# What it is for.
echo "built {name} $version of $(cat text) with ($TARVIS_WINDOWS_PARTS)" >>"$prefix/built"
"""


class WindowsParts(unittest.TestCase):
    """With package tools that are small scripts: each source package holds one file."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.bin = self.folder / "bin"
        self.recipes = self.folder / "tree/cmake/windows/parts"
        self.kept = self.folder / "cache/tarvis/windows"
        self.calls = self.folder / "calls"
        for name in ("bin", "tree/tools", "tree/cmake/windows/parts"):
            (self.folder / name).mkdir(parents=True)
        shutil.copy(ROOT / "tools/windows_parts", self.folder / "tree/tools")
        (self.folder / "tree/cmake/windows/toolchain.cmake").write_text("# nothing\n")
        self.recipe("one")
        self.recipe("two", needs="one")
        self.command(COMPILER, "echo compiler 12")
        self.versions("1.0-1")
        self.command("apt-get", f'echo "$*" >>{self.calls}\n'
                     'case $1 in indextargets) echo "mirror:/main bookworm Debian main";'
                     ' echo "mirror:/other any Other main" ;; esac')
        self.command("dpkg-source", 'mkdir "$4" && echo words >"$4/text"')

    def command(self, name, script):
        path = self.bin / name
        path.write_text(f"#!/bin/sh\n{script}\n")
        path.chmod(0o755)

    def versions(self, version):
        self.command("dpkg-query", f'for name; do :; done; name=${{name#lib}}; echo "${{name%-dev}} 2:{version}"')

    def recipe(self, name, needs="", end=""):
        line = f"# needs: {needs}\n" if needs else ""
        (self.recipes / name).write_text(RECIPE.format(name=name, needs=line) + end)

    def build(self, *parts):
        environment = {**os.environ, "PATH": f"{self.bin}:{os.environ['PATH']}", "XDG_CACHE_HOME": str(self.folder / "cache")}
        return subprocess.run([self.folder / "tree/tools/windows_parts", *parts], env=environment, capture_output=True,
                              text=True, check=False)

    def folders(self, *parts):
        done = self.build(*parts)
        self.assertEqual(done.returncode, 0, done.stderr)
        return [Path(folder) for folder in done.stdout.strip().split(";")]

    def test_a_part_is_built_after_those_that_it_needs(self):
        one, two = self.folders("two")
        self.assertEqual((one / "built").read_text(), "built one 1.0-1 of words with ()\n")
        self.assertEqual((two / "built").read_text(), f"built two 1.0-1 of words with ({one})\n")

    def test_what_is_kept_is_not_built_again(self):
        before = self.folders("two")
        done = self.build("two")
        self.assertIn("windows_parts: two is kept", done.stderr)
        self.assertEqual([Path(folder) for folder in done.stdout.strip().split(";")], before)
        self.assertEqual((before[1] / "built").read_text().count("built two"), 1)

    def test_a_change_of_a_recipe_builds_that_part_and_those_that_need_it_anew(self):
        before = self.folders("two")
        self.recipe("one", end="# changed\n")
        after = self.folders("two")
        self.assertFalse(set(before) & set(after))

    def test_another_version_of_the_source_package_is_built_anew(self):
        before = self.folders("one")
        self.versions("1.1-1")
        after = self.folders("one")
        self.assertNotEqual(before, after)
        self.assertIn("1.1-1", (after[0] / "built").read_text())

    def test_a_part_that_fails_is_not_kept_and_its_last_words_are_shown(self):
        self.recipe("one", end="echo no such header\nfalse\necho unreached\n")
        for _ in range(2):
            done = self.build("two")
            self.assertNotEqual(done.returncode, 0)
            self.assertIn("no such header\nwindows_parts: one can't be built", done.stderr)
            self.assertNotIn("unreached", done.stderr)
            self.assertEqual(done.stdout, "")

    def test_sources_come_from_the_machines_own_mirror_by_a_list_of_its_own(self):
        self.folders("one")
        self.assertEqual((self.kept / "apt/sources.list").read_text(), "deb-src mirror:/main bookworm main\n")
        calls = self.calls.read_text().splitlines()
        for call in calls[1:]:
            self.assertIn(f"Dir::Etc::SourceList={self.kept}/apt/sources.list", call)
        self.assertTrue(calls[-1].endswith("source --download-only one=2:1.0-1"), calls[-1])

    def test_progress_is_shown_in_twentieths(self):
        self.recipe("one", end='for step in $(seq 200); do echo "[$step/200] compiling"; done\n')
        shown = [line for line in self.build("one").stderr.splitlines() if " of 200" in line]
        self.assertEqual(len(shown), 20)
        self.assertEqual(shown[-1], "windows_parts: one: 200 of 200")


if __name__ == "__main__":
    unittest.main()
