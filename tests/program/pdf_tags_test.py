"""Tagged PDFs: the structure that other programs find in them is that of the document, cell by cell, and all content
belongs to it or is decoration."""
import os
import random
import re
import subprocess
import unittest

from archive_case import ArchiveCase
from comment_file import write_comment
from pdf_case import DAY, PRINTING_MODES, ROOT, output_of
from tagged_pdf import PAINTS, TaggedPdf, content, elements_in, without_colours
from user_file import gains, write_user_file

from host import OVERLAPPED_SETS
from servo_pack import Parameter

GOLDENS = ROOT / "tests/goldens"
# Types of the format's own, with those that may hold them.
HOLDERS = {"/Document": {None}, "/Part": {"/Document"}, "/Sect": {"/Part", "/Sect"}, "/Table": {"/Part", "/Sect"},
           "/TR": {"/Table"}, "/TH": {"/TR"}, "/TD": {"/TR"}, "/Span": {"/P", "/TD", "/TH"},
           "/Figure": {"/Part", "/Sect", "/TD"}, "/P": {"/Part", "/Sect"},
           **{f"/H{level}": {"/Part", "/Sect"} for level in range(1, 4)}}
# What is read of these is the same as of others, or as of many of them.
WITHOUT_GOLDEN = ("SimEx", "SimEx_overlapped")


class Tags(ArchiveCase):
    def make_tagged(self, mode, *options):
        return self.make(mode, "--tagged", "--date", DAY, *options)

    def keep_all(self):
        """All modes, and all that can be overlapped, with a cover and a logo."""
        for mode in PRINTING_MODES:
            self.host.write_data(mode)
            self.keep(mode, mode, "--tagged")
        self.host.write_cover()
        for mode, sets in OVERLAPPED_SETS.items():
            self.host.write_data(mode, sets)
            self.keep(f"{mode}_overlapped", mode, "--tagged")
        return self.kept_documents()

    def expect_sound(self, tagged):
        """What the standard asks of any tagged document."""
        self.assertEqual(dict(tagged.root.MarkInfo), {"/Marked": True})
        self.expect_all_content_marked(tagged)
        self.expect_parents(tagged)
        self.expect_types(tagged)
        self.expect_even_tables(tagged)

    def expect_all_content_marked(self, tagged):
        for pieces in tagged.pieces.values():
            for piece in pieces:
                self.assertTrue(piece.tag == "/Artifact" or piece.number is not None, (piece.tag, piece.operators))
                self.assertTrue(set(piece.operators) <= set(PAINTS) and piece.operators, piece.tag)
            numbers = [piece.number for piece in pieces if piece.number is not None]
            self.assertEqual(numbers, list(range(len(numbers))))

    def expect_parents(self, tagged):
        """Each piece belongs to one element, and the tree from pieces to elements says the same."""
        tree = list(tagged.root.StructTreeRoot.ParentTree.Nums)
        parents = dict(zip(tree[0::2], tree[1::2]))
        by_tree = {}
        for number, page in tagged.pages.items():
            self.assertEqual(page.Tabs, "/S")
            for piece, element in enumerate(parents[page.StructParents]):
                by_tree[number, piece] = element.objgen
        by_elements = {}
        for element, parent in tagged.elements():
            self.assertEqual(element.P.objgen, parent.objgen)
            for place in content(element):
                self.assertNotIn(place, by_elements)
                by_elements[place] = element.objgen
        self.assertEqual(by_elements, by_tree)
        self.assertEqual(set(by_tree), set(tagged.texts))

    def expect_types(self, tagged):
        level = 0
        for element, parent in tagged.elements():
            kind = str(element.S)
            holder = parent.get("/S")
            self.assertIn(None if holder is None else str(holder), HOLDERS[kind], kind)
            if re.fullmatch(r"/H\d", kind):
                self.assertLessEqual(int(kind[2]), level + 1, "a level of headings is left out")
                level = int(kind[2])
            if kind == "/TH":
                self.assertIn(element.A.Scope, ("/Column", "/Row"))
            if kind == "/Figure":
                self.assertTrue(str(element.Alt))
                left, bottom, right, top = element.A.BBox
                _, _, width, height = element.Pg.MediaBox
                self.assertTrue(0 <= left < right <= width and 0 <= bottom < top <= height)

    def expect_even_tables(self, tagged):
        """All rows of a table take the same number of columns, with cells of rows above that reach into them."""
        for table, _ in tagged.elements():
            if table.S != "/Table":
                continue
            widths, hanging = set(), []
            for row in elements_in(table):
                cells = [cell.get("/A", {}) for cell in elements_in(row)]
                widths.add(sum(cell.get("/ColSpan", 1) for cell in cells) + sum(columns for columns, _ in hanging))
                hanging += [(cell.get("/ColSpan", 1), cell.get("/RowSpan", 1)) for cell in cells]
                hanging = [(columns, rows - 1) for columns, rows in hanging if rows > 1]
            self.assertEqual((len(widths), hanging), (1, []))

    def expect_same_for_others(self, pdf, tagged):
        """Another program finds the same texts in the same order, and the letters of graphs besides."""
        found = output_of("pdfinfo", "-struct-text", without_colours(pdf, self.folder / "colourless.pdf"))
        found = re.sub(r"^( *)Figure.*\n(?:\1 +.*\n)*", "", found, flags=re.M)
        self.assertEqual("".join(re.findall(r'^ *"(.*)"$', found, re.M)), tagged.text())

    def expect_golden(self, name, lines):
        golden = GOLDENS / f"{name}.txt"
        text = "\n".join(lines) + "\n"
        if os.environ.get("TARVIS_UPDATE_GOLDENS") == "1":
            golden.write_text(text, encoding="utf-8")
        self.assertEqual(text, golden.read_text(encoding="utf-8"))

    def test_documents_of_all_modes_are_sound_archives_that_are_read_in_the_order_of_the_goldens(self):
        for pdf in self.keep_all():
            with self.subTest(pdf.stem):
                words = pdf.read_bytes()
                self.assertIn(b"<pdfaid:part>2</pdfaid:part>\n<pdfaid:conformance>A</pdfaid:conformance>", words)
                self.assertEqual(words.count(b"<pdfuaid:part>1</pdfuaid:part>"), 1)
                tagged = TaggedPdf(pdf)
                self.expect_sound(tagged)
                self.expect_same_for_others(pdf, tagged)
                if pdf.stem not in WITHOUT_GOLDEN:
                    self.expect_golden(f"read_{pdf.stem.lower()}", tagged.read())
        self.expect_archives()

    def test_attached_data_make_it_one_of_the_third_part(self):
        self.host.write_data("JogTbl")
        content = self.make_tagged("JogTbl", "--attach").read_bytes()
        self.assertIn(b"<pdfaid:part>3</pdfaid:part>\n<pdfaid:conformance>A</pdfaid:conformance>", content)

    def test_cells_of_a_long_list_are_those_of_the_host(self):
        """Names that wrap, names without a blank, empty cells, rows that are cut at the end of a page."""
        chance = random.Random(19)
        words = ("Gain", "Speed", "of", "the", "second", "position", "loop", "filter-time", "(1/s)", "x" * 40)
        parameters = []
        for number in range(300):
            count = 1000 if number % 100 == 50 else chance.choice((0, 1, 3, 8, 20))
            name = " ".join(chance.choice(words) for _ in range(count))
            parameters.append(Parameter(f"S-{number:03}", name, str(chance.randrange(10000)),
                                        chance.choice(("", "40.0")), chance.choice(("", "Hz", "ms"))))
        write_user_file(self.host.temp_folder, parameters)
        pdf = self.make_tagged("User")
        tagged = TaggedPdf(pdf)
        self.expect_sound(tagged)
        self.expect_same_for_others(pdf, tagged)
        titles, *rows = tagged.rows()
        self.assertEqual(titles, ["No.", "Name", "Setting Value", "Unit", "Default Setting"])
        self.assertEqual(rows, [[one.no, one.name, one.value, one.unit, one.default] for one in parameters])
        self.assertTrue(any(len({page for page, _ in content(element)}) > 1 for element, _ in tagged.elements()),
                        "no cell was cut")

    def test_repeated_titles_and_page_numbers_are_not_read(self):
        write_user_file(self.host.temp_folder, gains(200))
        tagged = TaggedPdf(self.make_tagged("User"))
        self.assertGreater(len(tagged.pages), 2)
        skipped = [piece.text.strip() for pieces in tagged.pieces.values() for piece in pieces
                   if piece.tag == "/Artifact" and piece.text]
        self.assertEqual(skipped.count("Setting Value"), len(tagged.pages) - 1)
        self.assertEqual(skipped.count("Page"), len(tagged.pages))

    def test_characters_of_private_use_say_in_a_text_what_they_are(self):
        """Level A of archives asks for it."""
        write_comment(self.host.temp_folder, "drive \ue000 \U00100001", 65001)
        pdf = self.make_tagged("JogTbl", "--code-page", "65001")
        tagged = TaggedPdf(pdf)
        self.expect_sound(tagged)
        self.assertIn("drive \ue000 \U00100001", tagged.text())
        self.assertEqual(tagged.named_characters(), ["\ue000", "\U00100001"])

    def test_nothing_of_it_is_in_a_file_without_the_option(self):
        self.host.write_data("Sim")
        pdf = self.make("Sim", "--date", DAY)
        self.assertEqual(self.info()["Tagged"].strip(), "no")
        for word in ("/StructTreeRoot", "/MarkInfo", "/StructParents", "/Artifact", "/MCID"):
            self.assertNotIn(word, subprocess.run(["qpdf", "--qdf", "--object-streams=disable", pdf, "-"],
                                                  capture_output=True, check=True).stdout.decode("latin-1"))

    def test_the_same_input_gives_the_same_bytes(self):
        self.host.write_data("User")
        first = self.make_tagged("User").read_bytes()
        self.assertEqual(first, self.make_tagged("User").read_bytes())


if __name__ == "__main__":
    unittest.main()
