"""./lint.sh looks at the layout of all files, and at the habits of those that it is given or that have changed."""
import os
import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
FILES = {
    "src/text/lines.h": "", "src/text/lines.cpp": '#include "text/lines.h"\n', "src/text/pair.h": "",
    "src/text/dates.cpp": "",
    "src/text/arrays.cpp": '#include "text/lines.h"\n#include "text/pair.h"\n',
    "tests/core/lines_test.cpp": '#include "text/lines.h"\n', "bench/core_bench.cpp": "", "fuzz/fuzz_user.cpp": "",
    "src/preview/output/pdf_export.cpp": "",
}


class Lint(unittest.TestCase):
    """In a tree of its own, with a formatter and a linter that note what they are asked to look at."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name) / "tree"
        self.bin = Path(folder.name) / "bin"
        self.formatted, self.linted = Path(folder.name) / "formatted", Path(folder.name) / "linted"
        self.script(self.bin / "clang-format", f'echo "$@" >> {self.formatted}\n'
                    'for file; do ! grep -qsx -e BAD -- "$file" || exit 1; done')
        self.script(self.bin / "run-clang-tidy", f'echo "$@" >> {self.linted}')
        self.script(self.root / "tools/build", "mkdir -p build/$1; echo [] > build/$1/compile_commands.json; "
                    '[ "$1" != dev ] || ! grep -qsx ALONE src/text/*.h')
        self.script(self.root / "tools/install_packages", ":")
        shutil.copy(ROOT / "lint.sh", self.root)
        for name, text in FILES.items():
            self.write(name, text)
        self.git("init", "-q", "-b", "main")
        self.commit()

    def script(self, path, text):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(f"#!/bin/sh\n{text}\n")
        path.chmod(0o755)

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def git(self, *words):
        return subprocess.run(["git", "-C", self.root, "-c", "user.name=a", "-c", "user.email=a@tarvis.example", *words],
                              check=True, capture_output=True, text=True).stdout

    def commit(self):
        self.git("add", "-A")
        self.git("commit", "-q", "--allow-empty", "-m", "next")

    def lint(self, *words, status=0):
        """The files whose habits are looked at, by preset."""
        done = subprocess.run([self.root / "lint.sh", *words], check=False, capture_output=True, text=True,
                              env={**os.environ, "PATH": f"{self.bin}:{os.environ['PATH']}"})
        self.output = done.stdout
        self.assertEqual(done.returncode, status, done.stdout + done.stderr)
        looked_at = {}
        for line in self.linted.read_text().splitlines() if self.linted.exists() else []:
            preset = re.search(r"-p build/lint/(\S+)", line)[1]
            matches = re.compile(line.split()[-1])
            looked_at.setdefault(preset, set()).update(
                name for name in FILES if name.endswith(".cpp") and matches.search(f"{self.root}/{name}"))
        return looked_at

    def test_all_files_are_looked_at_without_arguments(self):
        self.assertEqual(self.lint(), {
            "dev": {name for name in FILES if name.endswith(".cpp") and name.split("/")[0] in ("src", "tests")},
            "bench": {"bench/core_bench.cpp"}, "fuzz": {"fuzz/fuzz_user.cpp"}})

    def test_the_layout_of_all_files_is_checked_whatever_has_changed(self):
        self.lint("--changed", "HEAD")
        words = self.formatted.read_text().split()
        self.assertEqual({name for name in words if not name.startswith("-")}, set(FILES))

    def test_a_file_whose_layout_is_wrong_fails(self):
        self.write("src/text/dates.cpp", "BAD")
        self.lint("--changed", "HEAD", status=123)

    def test_a_file_that_does_not_compile_by_itself_fails(self):
        self.write("src/text/lines.h", "ALONE")
        self.lint("--changed", "HEAD", status=1)

    def test_what_a_branch_has_changed_is_looked_at_committed_or_not(self):
        self.git("checkout", "-q", "-b", "branch")
        self.write("src/text/dates.cpp", "int one;\n")
        self.commit()
        self.write("fuzz/fuzz_user.cpp", "int two;\n")
        self.assertEqual(self.lint("--changed"), {"dev": {"src/text/dates.cpp"}, "fuzz": {"fuzz/fuzz_user.cpp"}})

    def change_two_files_in_two_commits(self):
        self.write("src/text/dates.cpp", "int one;\n")
        self.commit()
        self.write("src/text/lines.cpp", "int two;\n")
        self.commit()

    def test_what_the_remote_branch_does_not_hold_is_looked_at_on_main(self):
        self.git("tag", "older")
        self.commit()
        remote = self.root.parent / "remote.git"
        self.git("init", "-q", "--bare", str(remote))
        self.git("remote", "add", "origin", str(remote))
        self.git("push", "-q", "-u", "origin", "main")
        self.change_two_files_in_two_commits()
        self.assertEqual(self.lint("--changed"), {"dev": {"src/text/dates.cpp", "src/text/lines.cpp"}})

    def test_what_has_changed_since_the_last_tag_is_looked_at_on_main_without_remote(self):
        self.git("tag", "older")
        self.change_two_files_in_two_commits()
        self.git("tag", "newest")
        self.assertEqual(self.lint("--changed"), {"dev": {"src/text/dates.cpp", "src/text/lines.cpp"}})

    def test_the_last_commit_is_looked_at_on_main_without_remote_and_tag(self):
        self.change_two_files_in_two_commits()
        self.assertEqual(self.lint("--changed"), {"dev": {"src/text/lines.cpp"}})

    def test_a_tree_without_an_earlier_commit_is_refused(self):
        self.lint("--changed", status=128)

    def test_the_commit_that_changes_are_counted_from_is_shown(self):
        self.commit()
        self.lint("--changed")
        self.assertIn("since " + self.git("log", "-1", "--format=%h, next", "HEAD~1").strip(), self.output)

    def test_a_commit_to_compare_with_can_be_given(self):
        self.write("src/text/dates.cpp", "int one;\n")
        self.commit()
        self.commit()
        self.assertEqual(self.lint("--changed", "HEAD~2"), {"dev": {"src/text/dates.cpp"}})

    def test_a_header_is_looked_at_through_a_source_that_includes_it(self):
        self.assertEqual(self.lint("src/text/lines.h"), {"dev": {"src/text/lines.cpp"}})
        self.linted.unlink()
        self.assertEqual(self.lint("src/text/pair.h"), {"dev": {"src/text/arrays.cpp"}})

    def test_nothing_is_looked_at_where_nothing_has_changed(self):
        self.write("src/text/dates.cpp", "")
        self.assertEqual(self.lint("--changed", "HEAD"), {})


if __name__ == "__main__":
    unittest.main()
