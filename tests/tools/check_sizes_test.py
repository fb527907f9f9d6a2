"""tools/check_sizes finds each file, class and function that is too large, and names its place and its size."""
import unittest

from tree import TreeCheck


def function(lines, head="void F()"):
    """A function of so many lines."""
    return head + " {\n" + "  Step();\n" * (lines - 2) + "}\n"


def class_of(methods, more=""):
    return "class C {\n public:\n" + "".join(f"  void M{n}();\n" for n in range(methods)) + more + "};\n"


class CheckSizes(TreeCheck):
    CHECK = "check_sizes"

    def test_sizes_at_their_limits_pass(self):
        self.expect_clean({"src/file.h": "//\n" * 400, "src/function.cpp": function(40), "src/class.h": class_of(25),
                           "tools/tool.py": "def f():\n" + "    pass\n" * 39})

    def test_file_of_401_lines_is_named(self):
        self.expect_breach({"tests/core/a.cpp": "//\n" * 401}, "tests/core/a.cpp:1: a file of 401 lines; at most 400")

    def test_function_of_41_lines_is_named(self):
        self.expect_breach({"src/a.cpp": "\nnamespace n {\n" + function(41, "int C::Get(int a) const") + "}\n"},
                           "src/a.cpp:3: the function C::Get of 41 lines; at most 40")

    def test_lines_between_declaration_and_brace_count(self):
        self.expect_breach({"src/a.cpp": "C::C(int a,\n     int b)\n    : a_{a}, b_(b)" + function(39, "")},
                           "src/a.cpp:1: the function C::C of 41 lines")

    def test_function_of_a_class_is_measured(self):
        self.expect_breach({"src/a.h": "struct S {\n" + function(41, "  template <typename T = int>\n  T* Get()") + "};\n"},
                           "the function Get of 42 lines")

    def test_test_is_a_function_too(self):
        self.expect_breach({"tests/a.cpp": function(41, "TEST_F(Preview, ShowsPages)")},
                           "the function Preview.ShowsPages of 41 lines")

    def test_table_may_be_as_long_as_its_file(self):
        self.expect_clean({"src/a.cpp": "const int table[] = {\n" + "  1,\n" * 60 + "};\nnamespace n {\n" +
                           "struct Row {\n  int a;\n" + "  int b{1};\n" * 60 + "};\n}\n"})

    def test_braces_in_texts_and_comments_are_no_code(self):
        braces = "  // {\n  Write(\"{\", '{', R\"({)\"); /* { */\n"
        self.expect_breach({"src/a.cpp": "void F() {\n" + braces + "}\n" + function(41, "void G()")},
                           "src/a.cpp:5: the function G of 41 lines")

    def test_class_of_26_methods_is_named(self):
        self.expect_breach({"src/a.h": "class A;\n\n" + class_of(26)}, "src/a.h:3: the class C of 26 methods; at most 25")

    def test_methods_of_every_kind_count(self):
        kinds = ("  C();\n  ~C() override;\n  int Get() const { return a_; }\n  bool operator==(const C&) const;\n"
                 " signals:\n  void changed();\n private slots:\n  void Change(int by = Count({1, 2}));\n")
        self.expect_breach({"src/a.h": class_of(20, kinds)}, "the class C of 26 methods")

    def test_what_is_no_method_does_not_count(self):
        others = ("  C(const C&) = delete;\n  ~C() = default;\n  std::function<void(int)> Call;\n  int (*Pointer)(int);\n"
                  "  using Handler = void (*)();\n  friend class D;\n  int size_ = Count();\n  struct Inner {\n"
                  "    void Help();\n  };\n  Q_PROPERTY(int size)\n  enum class Kind { kA, kB };\n")
        self.expect_clean({"src/a.h": class_of(25, others)})

    def test_long_function_of_a_script_is_named(self):
        self.expect_breach({"tools/check": "#!/usr/bin/env python3\n\ndef f():\n" + "    pass\n" * 40},
                           "tools/check:3: the function f of 41 lines")

    def test_large_class_of_a_script_is_named_by_what_are_no_tests(self):
        tests = "".join(f"    def test_{n}(self):\n        pass\n" for n in range(30))
        helpers = "".join(f"    def help_{n}(self):\n        pass\n" for n in range(26))
        self.expect_breach({"tests/a.py": "class A:\n" + tests + helpers}, "tests/a.py:1: the class A of 26 methods")
        self.expect_clean({"tests/a.py": "class A:\n" + tests})


if __name__ == "__main__":
    unittest.main()
