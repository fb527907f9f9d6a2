"""Every road of roads.py from the host's start to the end of the run, on two displays at once; most documents without."""
import os
import re
import subprocess
import sys
import unittest
from pathlib import Path

import roads
from passed_before import PassedBefore
from pdf_case import PdfCase
from program_case import ProgramCase
from desktop import end_with_parent, wait_until
from saved_pdf import is_colourful, outline_of, page_count, words_in_a_row
from session import DIALOG, PREVIEW

SHARDS = 2
SKIPPED = 77  # the exit status that ctest lists as skipped
COVER_TEXTS = ("Meridian Packaging", "SUBJECT: Commissioning of axis 1", "Sincerely yours,")
OF_OTHERS = ("GRAPH.EMF", "left by another run.tmp")  # what no mode reads, and each run deletes


class Documents:
    """What each mode prints, however it is made."""

    drawn = {}  # the data files of a mode, with "<host>" for the host's folder: drawing their curves takes long

    def write_data(self, mode, sets=0):
        folder = self.host.folder
        if (mode, sets) not in self.drawn:
            self.host.write_data(mode, sets)
            self.drawn[mode, sets] = {path.relative_to(folder): path.read_bytes().replace(bytes(folder), b"<host>")
                                      for path in self.host.temp_folder.iterdir()}
        for path, data in self.drawn[mode, sets].items():
            (folder / path).write_bytes(data.replace(b"<host>", bytes(folder)))

    def prepare(self, road):
        self.host.prepare(version=road.version)
        if road.mode != "PrnSetting":
            self.write_data(road.mode, road.sets)
        for name in (*OF_OTHERS, "kept.txt"):
            (self.host.temp_folder / name).write_bytes(b"x")
        if road.cover or not road.detail:
            self.write_options(road)

    def write_options(self, road):
        """What a run before has left: texts of a cover letter, but no letter, and no colour."""
        self.host.write_cover(coloured=False)
        options = self.host.options_file.read_bytes()
        options = options.replace(b"Cover,1\r\nSelectCover,1\r\n", b"Cover,0\r\nSelectCover,0\r\n")
        if not road.detail:
            options = re.sub(rb"((Trace|Sim)Option,.*),1\r", rb"\1,0\r", options)
        self.host.options_file.write_bytes(options)

    def check_document(self, pdf, road):
        self.assertEqual(page_count(pdf), road.pages())
        self.assertEqual([(level, title) for level, title, _ in outline_of(pdf)], road.contents())
        self.check_texts(words_in_a_row(pdf), road)
        if road.mode in roads.WITH_GRAPHS:
            self.assertEqual(is_colourful(pdf, 1 + road.cover), road.colour)

    def check_texts(self, text, road):
        in_order = [*COVER_TEXTS] if road.cover else []
        for title, _, bands, _ in road.headings():
            in_order += [title, *bands]
        self.expect_in_order(text, in_order)
        self.expect_in_order(text, [f"Page {page}/ {road.pages()}" for page in range(1, road.pages() + 1)])
        document = roads.DOCUMENTS[road.mode]
        self.assertEqual("File Name : " in text, bool(document.file))
        for words in ("Printing Date : ", document.file, *(document.texts if road.detail else ())):
            self.assertIn(words, text)
        self.assertEqual("Sincerely yours," in text, road.cover)

    def expect_in_order(self, text, captions):
        place = 0
        for caption in captions:
            found = text.find(caption, place)
            self.assertGreaterEqual(found, 0, f"'{caption}' is missing or out of order")
            place = found + len(caption)


class Roads(Documents, ProgramCase):
    """Its tests are made of the table of roads: through the windows, by keys."""

    def options(self):
        lines = self.host.options_file.read_bytes().decode("cp1252").split("\r\n")
        self.assertEqual(lines.pop(), "")
        return dict(line.split(",", 1) for line in lines)

    def drive(self, road):
        self.prepare(road)
        before = self.options() if self.host.options_file.exists() else {}
        kept = [name for name in self.files_left() if not name.lower().endswith((".tmp", ".emf"))]
        session = self.start(road.mode, road.edition)
        self.check_function_list(session, road)
        self.choose(road)
        self.user.press("Return")
        if road.mode != "PrnSetting":
            pdf = self.folder / "document.pdf"
            session.save_pdf(pdf)
            self.check_document(pdf, road)
            self.user.press("alt+F4")
        self.assertEqual(session.process.wait(timeout=60), 0)
        self.assertEqual(self.files_left(), kept)
        self.check_options(before, road)
        self.assertEqual(self.standard_error(), "")

    def check_function_list(self, session, road):
        functions = self.window(session, DIALOG).find("combo box", road.functions[road.entry])
        self.assertIsNotNone(functions, "the list shows another function")
        self.assertEqual([item.name for item in functions.all() if item.role == "list item"], road.functions)
        self.assertEqual(functions.has("enabled"), road.mode == "PrnSetting")

    def choose(self, road):
        """Switches cover and colour on by their keys; both are off at the start."""
        for wanted, key, role, name in ((road.cover, "alt+a", "check box", "Attaching the Cover"),
                                        (road.colour, "alt+c", "radio button", "Color")):
            box = self.widget(DIALOG, role, name)
            self.assertFalse(box.has("checked"))
            if wanted:
                self.user.press(key)
                wait_until(lambda box=box: box.has("checked"), f"the mark of '{name}'")

    def check_options(self, before, road):
        written = self.options()
        chosen = {"Cover": str(int(road.cover)), "SelectCover": str(int(road.cover)), "ColorType": str(int(road.colour))}
        self.assertEqual({key: written[key] for key in chosen}, chosen)
        self.assertEqual(len(written), 51)
        for key in set(before) - {*chosen, "DateTime"}:
            self.assertEqual(written[key], before[key], key)

    def refuse(self, mode, edition, version):
        self.host.prepare(version=version)
        self.host.write_data("User")
        self.expect_failure(self.start(mode, edition), "Argument is wrong.")
        known = edition in (1, 2, 4)  # of any other the temporary folder isn't known
        self.assertEqual(self.files_left(), [] if known else ["User.tmp"])
        self.assertFalse(self.host.options_file.exists())

    def run_beyond_the_list(self, mode, edition, version):
        self.host.prepare(version=version)
        self.host.write_data("User")
        self.expect_run_time_error(self.start(mode, edition), "no function of this version")
        self.assertEqual(self.files_left(), ["User.tmp"])


class QuietRoads(Documents, PdfCase):
    """The same table where it is about the documents alone: they are made without windows."""

    def make_document(self, road):
        self.prepare(road)
        self.check_document(self.make(road.mode, *settings_of(road), edition=road.edition), road)


def settings_of(road):
    """The options that the user of the dialog would choose."""
    chosen = {"Cover": road.cover, "SelectCover": road.cover, "ColorType": road.colour}
    return [f"--set={name}={int(value)}" for name, value in chosen.items()]


def add_tests(shard):
    """Makes a test of each road of this part of all."""
    every = list(roads.roads())
    driven = [(str(road), Roads.drive, (road,)) for road in every if road.in_windows]
    driven += [("_".join(map(str, ("refused", *case))), Roads.refuse, case) for case in roads.refused()]
    driven += [("_".join(map(str, ("beyond_the_list", *case))), Roads.run_beyond_the_list, case)
               for case in roads.beyond_the_list()]
    made = [(str(road), QuietRoads.make_document, (road,)) for road in every if not road.in_windows]
    for case, tests in ((Roads, driven), (QuietRoads, made)):
        for name, run, arguments in tests[shard::SHARDS]:
            setattr(case, f"test_{name}", lambda self, run=run, arguments=arguments: run(self, *arguments))


def run_all_shards():
    """Each in a process with a display and a message bus of its own; returns how many failed."""
    run = Path(__file__).with_name("run")
    running = [subprocess.Popen([run, __file__], env={**os.environ, "SHARD": str(shard)}, preexec_fn=end_with_parent)
               for shard in range(SHARDS)]
    return sum(process.wait() != 0 for process in running)


def run_what_changed():
    """Every road takes a while, so that all are driven only when something has changed since they were. The exit
    status."""
    passed = PassedBefore(os.environ["TARVIS_PROGRAM"], os.environ["TARVIS_PDF"])
    if passed.is_same():
        print(f"every road was driven with this program and these tests before; to drive them again, delete {passed.note}")
        return SKIPPED
    failed = run_all_shards()
    if failed == 0:
        passed.keep()
    return failed


if __name__ == "__main__":
    if "SHARD" not in os.environ:
        sys.exit(run_what_changed())
    add_tests(int(os.environ["SHARD"]))
    unittest.main()
