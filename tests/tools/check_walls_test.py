"""tools/check_walls finds each kind of breach, and finds nothing in a clean tree."""
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CHECK = Path(__file__).resolve().parents[2] / "tools" / "check_walls"


def breaches_of(files):
    """What the check prints for a tree of these files, and its exit status."""
    with tempfile.TemporaryDirectory() as folder:
        for name, text in files.items():
            path = Path(folder) / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
        run = subprocess.run([sys.executable, CHECK, folder], capture_output=True, text=True, check=False)
        return run.returncode, run.stdout


class CheckWalls(unittest.TestCase):
    def expect_breach(self, files, words):
        status, output = breaches_of(files)
        self.assertEqual(status, 1, output)
        self.assertIn(words, output)

    def test_clean_tree_passes(self):
        status, output = breaches_of({
            "src/printfiles/a.h": "#include <string>\n",
            "src/report/b.h": '#include "printfiles/a.h"\n',
            "src/preview/paint/c.h": "#include <QWidget>\n",
            "src/main.cpp": '#include <QApplication>\n#include "preview/paint/c.h"\n',
        })
        self.assertEqual(status, 0, output)

    def test_toolkit_header_in_the_core_is_a_breach(self):
        self.expect_breach({"src/report/engine/a.h": "#include <QString>\n"}, "a.h:1: the core includes the toolkit")

    def test_include_of_a_folder_above_is_a_breach(self):
        self.expect_breach({"src/functions/user/a.h": "\n", "src/report/b.h": '#include "functions/user/a.h"\n'},
                           "b.h:1: report/ may not include functions/")

    def test_includes_in_a_circle_are_a_breach(self):
        self.expect_breach({"src/report/a.h": '#include "report/b.h"\n', "src/report/b.h": '#include "report/a.h"\n'},
                           "includes go in a circle: report/a.h -> report/b.h -> report/a.h")

    def test_file_of_401_lines_is_a_breach(self):
        self.expect_breach({"tests/core/a.cpp": "//\n" * 401}, "401 lines")

    def test_path_of_a_machine_is_a_breach(self):
        self.expect_breach({"demo/a.sh": "cd /ho" + "me/somebody\n"}, "a.sh:1: names a path of a machine")


if __name__ == "__main__":
    unittest.main()
