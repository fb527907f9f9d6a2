"""tools/check_walls finds each kind of breach, and finds nothing in a clean tree."""
import unittest

from tree import TreeCheck


class CheckWalls(TreeCheck):
    CHECK = "check_walls"

    def test_clean_tree_passes(self):
        self.expect_clean({
            "src/printfiles/a.h": "#include <string>\n",
            "src/report/b.h": '#include "printfiles/a.h"\n',
            "src/preview/paint/c.h": "#include <QWidget>\n",
            "src/main.cpp": '#include <QApplication>\n#include "preview/paint/c.h"\n',
        })

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
