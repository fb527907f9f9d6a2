"""tools/check_walls finds each kind of breach, and finds nothing in a clean tree."""
import unittest

from tree import TreeCheck


FLOORS = """
tarvis_floor(text text LINK ICU::uc)
tarvis_floor(report report LINK tarvis_text)
tarvis_floor(functions functions RECURSE LINK tarvis_report)
tarvis_floor(windows windows/parts LINK tarvis_report Qt6::Widgets)
add_executable(program main.cpp)
target_link_libraries(program PRIVATE tarvis_windows tarvis_functions tarvis_flags)
add_executable(second second/main.cpp)
target_link_libraries(second PRIVATE tarvis_text tarvis_flags)
"""


class CheckWalls(TreeCheck):
    CHECK = "check_walls"

    def run_on(self, files):
        return super().run_on({"src/CMakeLists.txt": FLOORS, **files})

    def test_clean_tree_passes(self):
        self.expect_clean({
            "src/text/a.h": "#include <string>\n",
            "src/report/b.h": '#include "text/a.h"\n',
            "src/functions/user/c.h": '#include "report/b.h"\n#include "text/a.h"\n',
            "src/windows/parts/d.h": '#include <QWidget>\n#include "text/a.h"\n',
            "src/second/main.cpp": '#include "text/a.h"\n',
            "src/main.cpp": '#include <QApplication>\n#include "functions/user/c.h"\n#include "windows/parts/d.h"\n',
        })

    def test_toolkit_header_where_the_toolkit_is_not_linked_is_a_breach(self):
        self.expect_breach({"src/report/a.h": "#include <QString>\n"}, "a.h:1: the core includes the toolkit")

    def test_include_of_a_folder_above_is_a_breach(self):
        self.expect_breach({"src/functions/user/a.h": "\n", "src/report/b.h": '#include "functions/user/a.h"\n'},
                           "b.h:1: report/ may not include functions/")

    def test_include_of_a_folder_beside_is_a_breach(self):
        self.expect_breach({"src/report/a.h": "\n", "src/second/main.cpp": '#include "report/a.h"\n'},
                           "main.cpp:1: second/ may not include report/")

    def test_folder_without_a_target_is_a_breach(self):
        self.expect_breach({"src/windows/a.h": "\n"}, "src/windows/a.h:1: no target of src/CMakeLists.txt")

    def test_header_that_does_not_exist_is_a_breach(self):
        self.expect_breach({"src/text/a.h": '#include "text/b.h"\n'}, "a.h:1: no such file below src/ (text/b.h)")

    def test_includes_in_a_circle_are_a_breach(self):
        self.expect_breach({"src/report/a.h": '#include "report/b.h"\n', "src/report/b.h": '#include "report/a.h"\n'},
                           "includes go in a circle: report/a.h -> report/b.h -> report/a.h")

    def test_path_of_a_machine_is_a_breach(self):
        self.expect_breach({"demo/a.sh": "cd /ho" + "me/somebody\n"}, "a.sh:1: names a path of a machine")


if __name__ == "__main__":
    unittest.main()
