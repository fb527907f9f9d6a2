"""tools/mutate reports which changes of a small made-up core its tests notice, and leaves the tree as it is."""
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TOOLS = Path(__file__).resolve().parents[2] / "tools"
sys.dont_write_bytecode = True
sys.path.insert(0, str(TOOLS))
from mutations import mutants_of, with_switches  # noqa: E402

# Two functions of a core: the tests look at the first only, and the sign of its loop keeps it from ending.
SOURCE = """// Adds 7 to nothing.
int Sum(int last) {
  int sum = 0;
  for (int number = 1; number <= last; ++number) sum += number;
  return sum;
}
int Untested(int number) { return number > 10 ? 1 : 2; }
"""
TREE = {
    "CMakeLists.txt": """cmake_minimum_required(VERSION 3.25)
project(sample CXX)
add_subdirectory(tests)
""",
    "CMakePresets.json": """{
  "version": 6,
  "configurePresets": [{ "name": "mutate", "generator": "Ninja", "binaryDir": "${sourceDir}/build/${presetName}",
    "cacheVariables": { "CMAKE_CXX_STANDARD": "20", "CMAKE_CXX_FLAGS": "-I${sourceDir}/tools" } }]
}
""",
    "tests/CMakeLists.txt": "add_executable(core_tests sum_test.cpp ../src/text/sum.cpp)\n",
    "tests/sum_test.cpp": "int Sum(int last);\nint main() { return Sum(4) == 10 ? 0 : 1; }\n",
    "src/text/sum.cpp": SOURCE,
    ".gitignore": "/build/\n",
}


def changes(code):
    """What can be changed in the body of a function, as "kind: old -> new"."""
    head = "void F() {\n  "
    return {str(mutant).split(": ", 1)[1] for mutant in mutants_of("a.cpp", head + code + "\n}\n")}


class Changes(unittest.TestCase):
    def test_one_number_comparison_sign_condition_or_statement_changes(self):
        self.assertEqual(changes("const int a = 283;"), {"number: 283 -> 284"})
        self.assertEqual(changes("const float a = 8.5F;"), {"number: 8.5F -> 9.5F"})
        self.assertEqual(changes("const int a = 0xE0FF;"), {"number: 0xE0FF -> 0xE100"})
        self.assertEqual(changes("return a <= b;"), {"comparison: <= -> <"})
        self.assertEqual(changes("return a == b;"), {"comparison: == -> !="})
        self.assertEqual(changes("return a + b;"), {"sign: + -> -"})
        self.assertEqual(changes("return -a;"), {"sign: - -> "})
        self.assertEqual(changes("return a && !b;"), {"condition: && -> ||", "condition: ! -> "})
        self.assertEqual(changes("return a ? b : c;"), {"condition: ? -> == false ?"})
        self.assertEqual(changes("if (a) return true;"), {"condition: a -> !(a)", "condition: true -> false"})
        self.assertEqual(changes("Call(a);"), {"statement: without Call(a);"})
        self.assertEqual(changes("if (a(b)) c = d;"), {"condition: a(b) -> !(a(b))", "statement: without c = d;"})
        self.assertEqual(changes("for (const auto& a : b) a->Call();"), {"statement: without a->Call();"})
        self.assertEqual(changes("switch (a) {\n  case B:\n    break;\n}"), {"statement: without break;"})

    def test_comments_texts_includes_templates_and_declarations_stay(self):
        for code in ('const char* a = "1 + 2";', "// 1 + 2 == 3", "/* a = 1; */", "std::vector<int> a;", "Band a = b;",
                     "const char a = '1';", "T* a = &b;", "using A = B;",
                     "virtual void A() = 0;", 'R"(1 + 2)";', "\n#define ONE 1\n"):
            self.assertEqual(changes(code) - {"statement: without R\"(1 + 2)\";"}, set(), code)

    def test_the_zero_that_a_member_holds_until_it_is_set_stays(self):
        self.assertEqual(changes("struct A {\n  int b = 0;\n};\n"), set())
        self.assertEqual(changes("struct A {\n  int b = 1;\n};\n"), {"number: 1 -> 2"})
        self.assertEqual(changes("struct A {\n  static constexpr int b = 0;\n};\n"), {"number: 0 -> 1"})
        self.assertEqual(changes("void F() {\n  int b = 0;\n}\n"), {"number: 0 -> 1"})

    def test_assertions_and_room_for_elements_stay(self):
        self.assertEqual(changes("assert(a >= 0 && a < 255);"), set())
        self.assertEqual(changes("line.reserve(size + 2);"), set())
        self.assertEqual(changes("if (a) line.reserve(2);"), {"condition: a -> !(a)"})

    def test_declarations_of_a_class_are_no_statements(self):
        self.assertEqual(mutants_of("a.h", "class A {\n  A();\n  void B(int c);\n  int d_;\n};\n"), [])

    def test_changes_are_side_by_side_in_the_switched_code(self):
        code = "void F() {\n  if (a < 1) b = c + 2;\n}\n"
        numbered = [(number, mutant) for number, mutant in enumerate(mutants_of("a.cpp", code)) if mutant.switch(0)]
        self.assertEqual(with_switches(code, numbered),
                         '#include "mutant_switch.h"\n'
                         "void F() {\n  if (IsMutated(0LL) != static_cast<bool>(a < Switch{1LL} < Mutated(2LL, 1, 2))) "
                         "{ if (!IsMutated(3LL)) b = c + Switch{4LL} + Mutated(5LL, 2, 3); }\n}\n")

    def test_the_line_is_named_and_the_rest_of_the_code_stays(self):
        code = "int a() {\n  return 1;\n}\n"
        mutant, = mutants_of("a.cpp", code)
        self.assertEqual(str(mutant), "a.cpp:2: number: 1 -> 2")
        self.assertEqual(mutant.applied_to(code), "int a() {\n  return 2;\n}\n")


class Switches(unittest.TestCase):
    """The program prints what each kind of change alters, so that no two changes of it are the same."""
    CODE = """#include <cstdio>
#include <optional>
int main() {
  int a = 7, b = 3;
  const std::optional<int> some = 5;
  do --b; while (b == 2);
  if (a == 7 and b != 3) a += b;
  a -= 2;
  ++a;
  const bool not_less = !(a < b);
  const int negative = -a;
  const bool chosen = not_less;
  const int value = some ? *some * 2 : a - 1;
  const bool both = a >= 8 ? true : b <= 2;
  std::printf("%d %d %d %d %d %d %d", a, b, not_less, negative, chosen, value, both);
}
"""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def build(self, name, code):
        (self.folder / f"{name}.cpp").write_text(code, encoding="utf-8")
        subprocess.run(["c++", "-std=c++20", f"-I{TOOLS}", self.folder / f"{name}.cpp", "-o", self.folder / name],
                       check=True)
        return self.folder / name

    def printed(self, program, **environment):
        return subprocess.run([program], capture_output=True, text=True, check=True, timeout=60,
                              env=os.environ | environment).stdout

    def mutants(self):
        return [(number, mutant) for number, mutant in enumerate(mutants_of("a.cpp", self.CODE)) if mutant.switch(0)]

    def test_do_what_the_change_itself_does(self):
        switched = self.build("switched", with_switches(self.CODE, self.mutants()))
        self.assertEqual(self.printed(switched), self.printed(self.build("plain", self.CODE)))
        for number, mutant in self.mutants():
            with self.subTest(str(mutant)):
                changed = self.build("changed", mutant.applied_to(self.CODE))
                self.assertEqual(self.printed(switched, TARVIS_MUTANT=str(number)), self.printed(changed))

    def test_note_which_changes_are_reached(self):
        code = "bool F(int a) { return a > 1; }\nbool G(int a) { return a > 2; }\nint main() { return F(1); }\n"
        numbered = [(number, mutant) for number, mutant in enumerate(mutants_of("a.cpp", code))]
        program = self.build("switched", with_switches(code, numbered))
        note = self.folder / "reached"
        self.printed(program, TARVIS_REACHED=str(note))
        self.assertEqual(sorted(map(int, note.read_text().split())),
                         [number for number, mutant in numbered if mutant.line in (1, 3)])


class Runs(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.root = Path(cls.folder.name)
        for name, text in TREE.items():
            (cls.root / name).parent.mkdir(parents=True, exist_ok=True)
            (cls.root / name).write_text(text, encoding="utf-8")
        (cls.root / "tools").mkdir()
        for name in ("build", "mutant_switch.h"):
            shutil.copy(TOOLS / name, cls.root / "tools")
        subprocess.run(["git", "init", "-q", cls.root], check=True)
        cls.output = cls.mutate()

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    @classmethod
    def mutate(cls, *arguments):
        run = subprocess.run([TOOLS / "mutate", "--root", cls.root, *arguments], capture_output=True, text=True,
                             check=False, env=os.environ | {"CCACHE_DISABLE": "1"})
        return run.stdout + run.stderr

    def outcome(self, change):
        line, = [line for line in self.output.splitlines() if f" src/text/sum.cpp:{change}: " in line]
        return line.split(f"{change}: ")[1].split(" (")[0]

    def test_what_the_tests_notice_is_killed(self):
        self.assertEqual(self.outcome("3: number: 0 -> 1"), "killed")
        self.assertEqual(self.outcome("4: comparison: <= -> <"), "killed")
        self.assertEqual(self.outcome("4: statement: without sum += number;"), "killed")

    def test_what_makes_the_tests_hang_is_killed(self):
        self.assertEqual(self.outcome("4: sign: ++ -> --"), "killed")

    def test_what_no_test_notices_survives_and_is_printed_with_its_line(self):
        self.assertEqual(self.outcome("7: comparison: > -> >="), "survived")
        survivors = self.output.split("Survivors:")[1]
        self.assertIn("src/text/sum.cpp:7: number: 10 -> 11\n      int Untested(int number) {", survivors)

    def test_the_sum_counts_what_compiles(self):
        self.assertIn("11 changes, 5 survived (45.5 of 100); 0 more did not compile", self.output)

    def test_the_tree_stays_as_it_is(self):
        self.assertEqual((self.root / "src/text/sum.cpp").read_text(encoding="utf-8"), SOURCE)

    def test_a_sample_of_the_same_seed_is_the_same(self):
        samples = [self.mutate("--sample", "2", "--seed", "5", "--only", ":7:").split("Survivors:")[1] for _ in range(2)]
        self.assertEqual(samples[0], samples[1])
        self.assertIn("2 changes, 2 survived (100.0 of 100)", samples[0])

    def test_what_does_not_compile_does_not_count(self):
        broken = self.root / "src/text/sum.cpp"
        broken.write_text(SOURCE + "static_assert(sizeof(char) == 1);\n", encoding="utf-8")
        try:
            self.assertIn("0 changes, 0 survived (0.0 of 100); 2 more did not compile", self.mutate("--only", ":8:"))
        finally:
            broken.write_text(SOURCE, encoding="utf-8")


if __name__ == "__main__":
    unittest.main()
