"""What counts as a change since the tests passed last, and what ./test.sh does about it."""
import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


class TreeCase(unittest.TestCase):
    """A checkout with ./test.sh, whose packages, builds and tests only note that they were asked for."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree = Path(folder.name) / "tree"
        (self.tree / "tools").mkdir(parents=True)
        (self.tree / "build/dev-asan").mkdir(parents=True)
        for name in ("test.sh", "tools/tree_state"):
            shutil.copy(ROOT / name, self.tree / name)
        self.commands = Path(folder.name) / "commands"
        self.commands.mkdir()
        self.notes = Path(folder.name) / "notes"
        for path in (self.tree / "tools/install_packages", self.tree / "tools/build", self.commands / "ctest"):
            path.write_text(f'#!/bin/sh\necho "{path.name} $*" >>"$NOTES"\n', encoding="utf-8")
            path.chmod(0o755)
        (self.tree / ".gitignore").write_text("build/\n", encoding="utf-8")
        (self.tree / "source.cpp").write_text("int one = 1;\n", encoding="utf-8")
        subprocess.run(["git", "init", "--quiet"], cwd=self.tree, check=True)
        subprocess.run(["git", "add", "--all"], cwd=self.tree, check=True)

    def run_here(self, *command, **variables):
        environment = os.environ | {"NOTES": str(self.notes), "PATH": f"{self.commands}:{os.environ['PATH']}"} | variables
        return subprocess.run(command, cwd=self.tree, env=environment, capture_output=True, text=True, check=False)

    def state(self, **variables):
        done = self.run_here("tools/tree_state", **variables)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        return done.stdout

    def has_run_tests(self, *options):
        """Whether ./test.sh got as far as the tests."""
        self.notes.unlink(missing_ok=True)
        self.run_here("./test.sh", *options)
        return "ctest" in self.notes.read_text(encoding="utf-8")


class State(TreeCase):
    def test_is_the_same_as_long_as_nothing_changes(self):
        (self.tree / "build/object.o").write_text("ignored", encoding="utf-8")
        before = self.state()
        self.assertRegex(before, r"\A[0-9a-f]{64}\n\Z")
        (self.tree / "build/object.o").write_text("by git", encoding="utf-8")
        (self.tree / "source.cpp").touch()
        self.assertEqual(self.state(), before)

    def test_changes_with_each_file_that_git_does_not_ignore(self):
        def add():
            (self.tree / "new file.cpp").touch()

        def change():
            (self.tree / "source.cpp").write_text("int one = 2;\n", encoding="utf-8")

        def forbid():
            (self.tree / "source.cpp").chmod(0o400)

        def rename():
            (self.tree / "source.cpp").rename(self.tree / "other.cpp")

        def delete():
            (self.tree / "other.cpp").unlink()

        states = [self.state()]
        for step in (add, change, forbid, rename, delete):
            step()
            states.append(self.state())
        self.assertEqual(len(set(states)), len(states))

    def test_changes_with_the_compiler_that_is_asked_for(self):
        self.assertNotEqual(self.state(CXX="clang++"), self.state())

    def test_is_unknown_outside_of_a_checkout(self):
        shutil.rmtree(self.tree / ".git")
        self.assertEqual(self.state(GIT_CEILING_DIRECTORIES=str(self.tree.parent)), "")


class TestCommand(TreeCase):
    def test_runs_nothing_again_while_nothing_changes(self):
        self.assertTrue(self.has_run_tests())
        self.assertFalse(self.has_run_tests())
        done = self.run_here("./test.sh")
        self.assertEqual(done.returncode, 0)
        self.assertIn("Nothing has changed since all tests passed (", done.stdout)

    def test_runs_everything_if_it_is_asked_to(self):
        self.assertTrue(self.has_run_tests())
        self.assertTrue(self.has_run_tests("--again"))

    def test_runs_everything_after_a_change(self):
        self.assertTrue(self.has_run_tests())
        (self.tree / "source.cpp").write_text("int one = 2;\n", encoding="utf-8")
        self.assertTrue(self.has_run_tests())

    def test_runs_everything_after_a_failure(self):
        self.assertTrue(self.has_run_tests())
        (self.tree / "source.cpp").write_text("int one = 3;\n", encoding="utf-8")
        ctest = self.commands / "ctest"
        passing = ctest.read_text(encoding="utf-8")
        ctest.write_text(passing + "exit 1\n", encoding="utf-8")
        self.assertTrue(self.has_run_tests())
        ctest.write_text(passing, encoding="utf-8")
        self.assertTrue(self.has_run_tests())

    def test_runs_everything_if_a_file_was_changed_while_it_ran(self):
        ctest = self.commands / "ctest"
        ctest.write_text(ctest.read_text(encoding="utf-8") + f"\necho >>'{self.tree}/source.cpp'\n", encoding="utf-8")
        self.assertTrue(self.has_run_tests())
        self.assertTrue(self.has_run_tests())

    def test_runs_everything_where_the_state_is_unknown(self):
        shutil.rmtree(self.tree / ".git")
        os.environ["GIT_CEILING_DIRECTORIES"] = str(self.tree.parent)
        self.addCleanup(os.environ.pop, "GIT_CEILING_DIRECTORIES")
        self.assertTrue(self.has_run_tests())
        self.assertTrue(self.has_run_tests())


if __name__ == "__main__":
    unittest.main()
