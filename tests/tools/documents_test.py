"""What the documents say can be done and found is so: every command runs, every path exists, every link leads somewhere.

A command that takes seconds runs here. One that takes long runs with --long, which `ctest -C long -L long` does. One
that is the test run itself, or a part of it, is listed with the script that runs it.
"""
import os
import re
import shlex
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from documents import ROOT, documents

sys.path.insert(0, str(ROOT / "tools"))

from floors import read_floors  # noqa: E402

BUILD = Path(os.environ["TARVIS_BUILD"])
CHECKER = Path(os.environ["TARVIS_CHECK"])

# Commands that a script of the tree runs: the script, and the words in it that do so.
RUN_BY = {
    "./test.sh": (".ci/run", "test.sh"),
    "./test.sh --again": ("tests/tools/tree_state_test.py", '"--again"'),
    "tools/build dev-asan": ("test.sh", "tools/build dev-asan"),
    "ctest --preset dev-asan": ("test.sh", "ctest --preset dev-asan"),
    "ctest --preset dev-asan -C long -L long": ("tests/CMakeLists.txt", "CONFIGURATIONS long"),
    "TARVIS_PROGRAM=build/dev-asan/src/tarvis tests/program/run tests/program/whole_run_test.py":
        ("tests/CMakeLists.txt", "program/run"),
    "sudo apt-get install ./build/packages/tarvis_0.1.0_amd64.deb": ("tests/tools/package_test.py", '.dpkg("-i"'),
    "tools/try_on trixie": ("tests/CMakeLists.txt", "tools/try_on ${release}"),
    "tools/try_on testing ./bench.sh": ("tests/CMakeLists.txt", "tools/try_on ${release}"),
    "./lint.sh --changed": (".ci/run", "./lint.sh --changed"),
    **{f"tools/reliability {part}": ("tests/CMakeLists.txt", "/tools/reliability ${part}")
       for part in ("calls", "limits", "kills", "windows", "soak", "folders", "threads",
                    "calls JogTbl --each", "soak --rounds 100 --seed 5")},
    "tools/check_walls": ("tests/CMakeLists.txt", "tools/check_${rule}"),
    "tools/check_sizes": ("tests/CMakeLists.txt", "tools/check_${rule}"),
    "tools/check_names": ("tests/CMakeLists.txt", "tools/check_${rule}"),
    'ls -d machines/* | xargs -P "$(nproc)" -I @ tarvis-pdf --data @ User 1 @.pdf':
        ("tests/program/pdf_program_test.py", "ls -d machine* | xargs -P 4 -I @"),
    "man tarvis": ("tests/tools/package_test.py", "mandoc"),
}

# Commands of --long, with what is run for each: the same on a display of its own, for a shorter time, on one file.
LONG = {
    "tools/build dev-asan core_tests": ["tools/build dev-asan core_tests"],
    "tools/make_package": ["tools/make_package"],
    "./demo.sh": ["./demo.sh --headless"],
    "./demo.sh Trace": ["./demo.sh --headless Trace"],
    "./demo.sh MODE": ["./demo.sh --headless --cover --overlap SimEx", "./demo.sh --headless PrnSetting"],
    "./fuzz.sh": ["./fuzz.sh 1"],
    "./fuzz.sh 600": ["./fuzz.sh 1"],
    "./fuzz.sh 600 sim trace": ["./fuzz.sh 1 sim trace"],
    "./fuzz.sh 3600 sim": ["./fuzz.sh 1 sim"],
    "./coverage.sh": ["./coverage.sh"],
    "tools/mutate --sample 300 --seed 1": ["tools/mutate --sample 5 --seed 1"],
    "tools/mutate --only band_bitmap.cpp": ["tools/mutate --only band_bitmap.cpp:12:"],
    "./lint.sh": ["./lint.sh src/check/main.cpp"],
    "./lint.sh src/check/main.cpp": ["./lint.sh src/check/main.cpp"],
    "./bench.sh": ["./bench.sh --runs 1"],
    "./bench.sh --peers": ["./bench.sh --runs 1 --peers"],
    "tools/compare_pictures FOLDER FILE...": ["tools/compare_pictures build/compared tests/pictures/data/ink_bars.emf"],
    "tools/compare_scripts FOLDER": ["tools/compare_scripts build/scripts"],
    "./windows.sh": ["./windows.sh core"],
    "./windows.sh core": ["./windows.sh core"],
    "tools/make_pictures": ["tools/make_pictures --output build/pictures"],
}

# Commands within a sentence with a word for what the reader puts there.
FILLED_IN = {"tarvis-check FILE...": "tarvis-check docs/examples/User.tmp"}

PROGRAM = re.compile(r"^([A-Z_]+=\S+ )*(\./|(tools|tests|build|demo|bench)/\S+ |(cmake|ctest|cpack|git|python3|sudo|man|"
                     r"apt-get|tarvis|tarvis-check|tarvis-pdf) )")
TOOL = re.compile(r"^(tools/\w+|\./\w+\.sh)$")
KINDS = {"sh", "console", "text", "ini"}

# Names of files that are not of the tree: the host's, what a build makes, what is installed.
ELSEWHERE = re.compile(r"^(/|build/|bin$|bin/|tarvis/tarvis\.ini$)|\.(tmp|emf|ToT)$")
SUFFIX = re.compile(r"\.(h|cpp|py|sh|cmake|md|txt|json|supp|dict|yaml)$")


def shell_lines(block):
    """The commands of a block, without what is said about them."""
    lines = block.lines if block.kind == "sh" else [line[2:] for line in block.lines if line.startswith("$ ")]
    return [re.sub(r"\s+# .*", "", line).strip() for line in lines if line.strip() and not line.startswith("#")]


def commands():
    """Every command that a document names, with the document."""
    for document in documents():
        for block in document.blocks:
            if block.kind in ("sh", "console"):
                for command in shell_lines(block):
                    yield command, document
        for span in document.spans:
            is_tool = TOOL.match(span) and (span.startswith("./") or span in LONG)
            if is_tool or (PROGRAM.match(span) and not span.startswith("tarvis ")):
                yield span, document


def run(command, folder=ROOT):
    """Runs a command as a shell does, on what this build has made."""
    here = re.sub(r"(?<![\w/])build/dev-asan", str(BUILD), command)
    environment = {**os.environ, "PATH": f"{CHECKER.parent}:{os.environ['PATH']}"}
    return subprocess.run(["sh", "-c", here], cwd=folder, env=environment, stdin=subprocess.DEVNULL,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)


def source_of(place):
    return (ROOT / place).read_text(encoding="utf-8")


class Commands(unittest.TestCase):
    def expect_run(self, command, instead=None):
        done = run(instead or command)
        self.assertEqual(done.returncode, 0, f"{command}\n{done.stdout}")
        return done.stdout

    def test_every_command_runs_or_is_run_by_a_script(self):
        for command in sorted({command for command, _ in commands()}):
            with self.subTest(command=command):
                if command in RUN_BY:
                    place, words = RUN_BY[command]
                    self.assertIn(words, source_of(place))
                elif command.startswith("ctest --preset dev-asan -R "):
                    # Listed only: the tests themselves run beside this one.
                    listed = self.expect_run(command, f"ctest --test-dir {shlex.quote(str(BUILD))} -N " +
                                             command.removeprefix("ctest --preset dev-asan "))
                    self.assertNotIn("Total Tests: 0", listed)
                elif "--gtest_filter" in command:
                    self.assertRegex(self.expect_run(command), r"PASSED  \] [1-9]")
                elif command not in LONG and not self.is_session(command):
                    self.expect_run(command, FILLED_IN.get(command))

    @staticmethod
    def is_session(command):
        return any(block.kind == "console" and f"$ {command}" in block.lines
                   for document in documents() for block in document.blocks)

    def test_sessions_print_what_the_documents_show(self):
        with tempfile.TemporaryDirectory() as name:
            folder = Path(name)
            (folder / "docs").symlink_to(ROOT / "docs")
            # A file of the host with a slip in its line 17.
            lines = (ROOT / "docs/examples/Trace1.tmp").read_bytes().split(b"\r\n")
            (folder / "Trace2.tmp").write_bytes(b"\r\n".join([*lines[:16], b"Cursolselect,2", *lines[17:]]))
            for block in (block for document in documents() for block in document.blocks if block.kind == "console"):
                command, *shown = block.lines
                self.assertEqual(run(command.removeprefix("$ "), folder).stdout.splitlines(), shown)

    def test_lists_of_commands_hold_nothing_that_no_document_names(self):
        named = {command for command, _ in commands()}
        self.assertEqual((RUN_BY.keys() | LONG.keys() | FILLED_IN.keys()) - named, set())

    def test_no_command_hides_in_another_kind_of_block(self):
        for document in documents():
            self.assertNotIn("```", document.prose, document.name)
            for block in document.blocks:
                self.assertIn(block.kind, KINDS, document.name)
                if block.kind not in ("sh", "console"):
                    hidden = [line for line in block.lines if PROGRAM.match(line) and not line.startswith(("tarvis MODE", "tarvis-pdf [OPTION"))]
                    self.assertEqual(hidden, [], document.name)


class Words(unittest.TestCase):
    def test_words_that_the_glossary_replaces_are_not_used(self):
        replaced = re.compile(r"\b(told|tells?|stands?|stood|behind|lacks?|alike|in hand)\b", re.IGNORECASE)
        for document in documents():
            own_words = re.sub(r'"[^"]*"', "", document.prose)
            self.assertEqual(replaced.findall(own_words), [], document.name)


class Paths(unittest.TestCase):
    def test_every_path_exists(self):
        for document in documents():
            for span in document.spans:
                if self.is_path(span):
                    self.assertTrue(self.exists(document, span), f"{document.name}: {span}")

    @staticmethod
    def is_path(span):
        if ELSEWHERE.search(span) or not re.fullmatch(r"[\w.*/+-]+", span):
            return False
        first = span.split("/")[0]
        known = (ROOT / first).is_dir() or (ROOT / "src" / first).is_dir()
        return bool(SUFFIX.search(span)) or ("/" in span and known)

    @staticmethod
    def exists(document, name):
        name = re.sub(r"/[A-Z]+$", "/*", name)  # a word for any name
        return any(next(base.glob(name.strip("/")), None) for base in (ROOT, ROOT / "src", document.path.parent)) \
            or any(ROOT.glob(f"src/**/{name}"))

    def test_every_part_that_the_diagram_names_exists(self):
        architecture = next(document for document in documents() if document.name == "docs/architecture.md")
        rooms = "|".join(path.name for path in (ROOT / "src").iterdir() if path.is_dir())
        named = {name for block in architecture.blocks if block.kind == "text"
                 for name in re.findall(rf"\b(?:{rooms})/[\w/]+\w", "\n".join(block.lines))}
        self.assertGreater(len(named), 10)
        for name in named:
            self.assertTrue(any((ROOT / "src").glob(f"{name}*")), name)

    def test_architecture_names_every_folder_and_the_files_of_its_tables(self):
        architecture = next(document for document in documents() if document.name == "docs/architecture.md")
        for folder in (path for path in (ROOT / "src").rglob("*") if path.is_dir()):
            name = str(folder.relative_to(ROOT / "src"))
            self.assertRegex(architecture.text, rf"(?<![\w])(src/)?{name}\b")
        for room, heading in (("platform", "| File | Does |"), ("preview", "| Part | Files in `src/preview` |")):
            table = architecture.prose.split(heading, 1)[1].split("\n\n", 1)[0]
            named = {name.removesuffix(".h") for name in re.findall(r"`([a-z_.]+)`", table)}
            self.assertEqual(named, {path.stem for path in (ROOT / "src" / room).rglob("*.*")}, room)
        for path in ROOT.iterdir():
            if path.is_dir() and not path.name.startswith(".") and path.name not in ("build", "docs", "src"):
                self.assertTrue(any(span.split("/")[0] == path.name for span in architecture.spans), path.name)

    def test_architecture_lists_each_target_with_what_it_links(self):
        architecture = next(document for document in documents() if document.name == "docs/architecture.md")
        rows = {}
        for folder, _, target, links in architecture.rows("### Targets"):
            name = folder.strip("`").removesuffix("main.cpp").rstrip("/")
            self.assertTrue((ROOT / "src" / name).is_dir(), folder)
            if target:
                rows[name] = (target.strip("`"), tuple(re.findall(r"`([^`]+)`", links)))
        self.assertEqual(rows, {floor.folder: (floor.target, floor.links) for floor in read_floors(ROOT).values()})

    def test_architecture_gives_a_reason_for_every_package(self):
        architecture = next(document for document in documents() if document.name == "docs/architecture.md")
        packages = {name for line in source_of("cmake/packages.txt").splitlines() if line and line[0] not in "#["
                    for name in line.split()[0].split("|")}
        self.assertEqual(packages - set(architecture.spans), set())

    def test_architecture_tells_the_fonts_of_each_code_page(self):
        architecture = next(document for document in documents() if document.name == "docs/architecture.md")
        table = {page: families.split(", ") for page, families in architecture.rows("### Fonts by code page")}
        code = source_of("src/pictures/font_families.cpp")
        self.assertEqual(table, {page: re.findall(r'"([^"]+)"', families)
                                 for page, families in re.findall(r"{(\d+),\s*{([^}]+)}", code)})

    def test_every_link_leads_somewhere(self):
        every = {document.path: document for document in documents()}
        for document in every.values():
            for link in document.links:
                place, _, anchor = link.partition("#")
                target = (document.path.parent / place).resolve() if place else document.path
                self.assertTrue(target.exists(), f"{document.name}: {link}")
                if anchor:
                    self.assertIn(anchor, every[target].anchors(), f"{document.name}: {link}")

    def test_every_row_of_a_table_has_as_many_cells_as_its_head(self):
        for document in documents():
            for table in re.findall(r"(?:^\|.*\|$\n)+", document.prose, re.MULTILINE):
                cells = {line.count("|") for line in table.splitlines()}
                self.assertEqual(len(cells), 1, f"{document.name}: {table}")

    def test_every_document_can_be_reached_from_the_first_page(self):
        every = {document.path: document for document in documents()}
        seen, ahead = set(), [ROOT / "README.md"]
        while ahead:
            path = ahead.pop()
            if path in seen or path not in every:
                continue
            seen.add(path)
            ahead += [(path.parent / link.partition("#")[0]).resolve() for link in every[path].links]
        self.assertEqual(set(every) - seen, set())


def run_long():
    """Runs what takes long, one after the other, and prints which failed."""
    failed = []
    for command in dict.fromkeys(real for group in LONG.values() for real in group):
        print(f"== {command}", flush=True)
        done = subprocess.run(["sh", "-c", command], cwd=ROOT, stdin=subprocess.DEVNULL, check=False)
        if done.returncode != 0:
            failed.append(command)
    print(*(f"failed: {command}" for command in failed), sep="\n")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(run_long()) if sys.argv[1:] == ["--long"] else unittest.main()
