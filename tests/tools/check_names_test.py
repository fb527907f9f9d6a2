"""tools/check_names finds each name of a file or a test that departs from the rule."""
import unittest

from tree import TreeCheck


class CheckNames(TreeCheck):
    CHECK = "check_names"

    def test_names_by_the_rule_pass(self):
        self.expect_clean({
            "src/text/code_page.h": "", "src/text/code_page.cpp": "", "src/functions/user/rptUserPrm.h": "", "src/dialogs/pages/InfTrace.h": "",
            "src/dialogs/PrintSetting.h": "", "tests/core/rptUserPrm_test.cpp": "// What it is for.\n", "tools/build": "",
            "fuzz/corpus/sim/no-count": "", "tests/CMakeLists.txt": "", "tests/README.md": "",
            "tests/text_test.cpp": "// What it is for.\nTEST(LoadLines, EndsALineAtCrLf) {}\nTEST_F(Dialog, ABadRangeHoldsTheUser) {}\n"
                                   "TEST(DesktopDeathTest, OffersNothing) {}\nTEST_P(Form, InfinityIsRefused) {}\n"})

    def test_file_in_another_case_is_named(self):
        for name in ("src/report/BitTable.h", "src/text/codePage.cpp", "tests/core/user-file_test.cpp", "tools/Check.py"):
            self.expect_breach({name: ""}, f"{name}:1: the name of a file is in snake_case")

    def test_source_without_header_and_first_line_is_named(self):
        self.expect_breach({"src/text/posix_text.cpp": "#include <string>\n"},
                           "src/text/posix_text.cpp:1: a source without a header of its own")

    def test_suite_that_ends_in_test_is_named(self):
        self.expect_breach({"tests/a.cpp": "\nTEST_F(DialogTest, Opens) {}\n"}, "tests/a.cpp:2: the suite DialogTest")

    def test_case_that_goes_on_with_the_name_of_its_suite_is_named(self):
        for case in ("OfAFirstRun", "Of24Bits", "WithoutCount", "ThatIsMissing"):
            self.expect_breach({"tests/a.cpp": f"TEST(File,\n     {case}) {{}}\n"}, f"tests/a.cpp:1: the case {case}")

    def test_test_of_a_script_is_named_in_the_same_way(self):
        self.expect_breach({"tests/a_test.py": "class File:\n    def test_of_a_first_run(self):\n"},
                           "tests/a_test.py:2: the test of_a_first_run")
        self.expect_breach({"tests/a_test.py": "def test_ReadsLines():\n"}, "the test ReadsLines")
        self.expect_clean({"tests/a_test.py": "def test_offers_nothing_and_reads_8_lines():\n"})

    def test_case_in_another_case_is_named(self):
        self.expect_breach({"tests/a.cpp": "TEST(File, reads_lines) {}\n"}, "the case reads_lines")


if __name__ == "__main__":
    unittest.main()
