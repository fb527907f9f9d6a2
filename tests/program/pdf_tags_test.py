"""Tagged PDFs: the structure that other programs find in them is that of the document, cell by cell, and all content
belongs to it or is decoration."""
import os
import random
import re
import subprocess
import unittest

from archive_case import ArchiveCase
from pdf_case import DAY, PRINTING_MODES, ROOT
from tagged_pdf import PAINTS, TaggedPdf
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


def without_blanks(text):
    return re.sub(r"\s", "", text)


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
        self.assertEqual(tagged.at(tagged.root["/MarkInfo"]), {"/Marked": True})
        self.expect_all_content_marked(tagged)
        self.expect_parents(tagged)
        self.expect_types(tagged)
        self.expect_even_tables(tagged)

    def expect_all_content_marked(self, tagged):
        for page in tagged.pages:
            pieces = tagged.pieces(page)
            for piece in pieces:
                self.assertTrue(piece.tag == "/Artifact" or piece.number is not None, (piece.tag, piece.operators))
                self.assertTrue(set(piece.operators) <= set(PAINTS) and piece.operators, piece.tag)
            numbers = [piece.number for piece in pieces if piece.number is not None]
            self.assertEqual(numbers, list(range(len(numbers))))

    def expect_parents(self, tagged):
        """Each piece belongs to one element, and the tree from pieces to elements says the same."""
        tree = tagged.at(tagged.at(tagged.root["/StructTreeRoot"])["/ParentTree"])["/Nums"]
        parents = {key: tagged.at(value) for key, value in zip(tree[0::2], tree[1::2])}
        by_tree = {}
        for page in tagged.pages:
            self.assertEqual(tagged.at(page)["/Tabs"], "/S")
            for number, element in enumerate(parents[tagged.at(page)["/StructParents"]]):
                by_tree[page, number] = element
        by_elements = {}
        for reference, element, parent in tagged.elements():
            self.assertEqual(element["/P"], parent)
            for place in tagged.content(element):
                self.assertNotIn(place, by_elements)
                by_elements[place] = reference
        self.assertEqual(by_elements, by_tree)
        self.assertEqual(set(by_tree), set(tagged.texts()))

    def expect_types(self, tagged):
        level = 0
        for _, element, parent in tagged.elements():
            kind = element["/S"]
            self.assertIn(tagged.at(parent).get("/S"), HOLDERS[kind], kind)
            if re.fullmatch(r"/H\d", kind):
                self.assertLessEqual(int(kind[2]), level + 1, "a level of headings is left out")
                level = int(kind[2])
            attributes = tagged.at(element.get("/A", {}))
            if kind == "/TH":
                self.assertIn(attributes["/Scope"], ("/Column", "/Row"))
            if kind == "/Figure":
                self.assertTrue(element["/Alt"].removeprefix("u:"))
                left, bottom, right, top = attributes["/BBox"]
                _, _, width, height = tagged.at(element["/Pg"])["/MediaBox"]
                self.assertTrue(0 <= left < right <= width and 0 <= bottom < top <= height)

    def expect_even_tables(self, tagged):
        """All rows of a table take the same number of columns, with cells of rows above that reach into them."""
        for _, table, _ in tagged.elements():
            if table["/S"] != "/Table":
                continue
            widths, hanging = set(), []
            for row in tagged.kids(table):
                cells = [tagged.at(tagged.at(cell).get("/A", {})) for cell in tagged.kids(tagged.at(row))]
                widths.add(sum(cell.get("/ColSpan", 1) for cell in cells) + sum(columns for columns, _ in hanging))
                hanging += [(cell.get("/ColSpan", 1), cell.get("/RowSpan", 1)) for cell in cells]
                hanging = [(columns, rows - 1) for columns, rows in hanging if rows > 1]
            self.assertEqual((len(widths), hanging), (1, []))

    def expect_same_for_others(self, pdf, tagged):
        """Another program finds the same texts in the same order, and the letters of graphs besides."""
        found = subprocess.run(["pdfinfo", "-struct-text", pdf], capture_output=True, text=True, check=True).stdout
        found = re.sub(r"^( *)Figure.*\n(?:\1 +.*\n)*", "", found, flags=re.M)
        theirs = "".join(re.findall(r'^ *"(.*)"$', found, re.M))
        texts = tagged.texts()
        ours = "".join(texts[place] for _, element, _ in tagged.elements() for place in tagged.content(element))
        self.assertEqual(without_blanks(theirs), without_blanks(ours))

    def expect_golden(self, name, lines):
        golden = GOLDENS / f"{name}.txt"
        text = "\n".join(lines) + "\n"
        if os.environ.get("TARVIS_UPDATE_GOLDENS") == "1":
            golden.write_text(text, encoding="utf-8")
        self.assertEqual(text, golden.read_text(encoding="utf-8"))

    def test_documents_of_all_modes_are_sound_and_read_in_the_order_of_the_goldens(self):
        for pdf in self.keep_all():
            with self.subTest(pdf.stem):
                tagged = TaggedPdf(pdf)
                self.expect_sound(tagged)
                self.expect_same_for_others(pdf, tagged)
                if pdf.stem not in WITHOUT_GOLDEN:
                    self.expect_golden(f"read_{pdf.stem.lower()}", tagged.read())

    def test_tagged_documents_are_archives_that_say_so(self):
        documents = self.keep_all()
        self.expect_archives()
        for pdf in documents:
            content = pdf.read_bytes()
            self.assertIn(b"<pdfaid:part>2</pdfaid:part>\n<pdfaid:conformance>A</pdfaid:conformance>", content)
            self.assertEqual(content.count(b"<pdfuaid:part>1</pdfuaid:part>"), 1)

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
        self.assertEqual([[without_blanks(cell) for cell in row] for row in rows],
                         [[without_blanks(cell) for cell in (one.no, one.name, one.value, one.unit, one.default)]
                          for one in parameters])
        places = [{page for page, _ in tagged.content(element)} for _, element, _ in tagged.elements()]
        self.assertTrue(any(len(pages) > 1 for pages in places), "no cell was cut")

    def test_repeated_titles_and_page_numbers_are_not_read(self):
        write_user_file(self.host.temp_folder, gains(200))
        tagged = TaggedPdf(self.make_tagged("User"))
        self.assertGreater(len(tagged.pages), 2)
        skipped = [piece.text.strip() for page in tagged.pages for piece in tagged.pieces(page)
                   if piece.tag == "/Artifact" and piece.text]
        self.assertEqual(skipped.count("Setting Value"), len(tagged.pages) - 1)
        self.assertEqual(skipped.count("Page"), len(tagged.pages))

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
