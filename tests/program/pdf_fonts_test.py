"""Documents on systems with few fonts: each is saved, and what can't be shown is a box that can be copied."""
import dataclasses
import unittest

from few_fonts import with_only
from pdf_case import PdfCase, output_of

from languages import LANGUAGES, write_language

SIGNS = "A🦾B ☎ 120 © Z"


class Fonts(PdfCase):
    def only(self, *families):
        return with_only(self.folder, *families)

    def make_in(self, code_page, environment, **changes):
        language = next(each for each in LANGUAGES if each.code_page == code_page)
        self.host.prepare(pdf_printer=False)
        write_language(self.host, dataclasses.replace(language, **changes))
        self.make("User", environment=environment)

    def fonts(self):
        return {line.split()[0].partition("+")[2] for line in output_of("pdffonts", self.pdf).splitlines()[2:]}

    def found(self, text):
        return "".join(text.split()) in "".join(output_of("pdftotext", self.pdf, "-").split())

    def test_thai_without_a_font_for_it_is_boxes_that_can_be_copied(self):
        self.make_in(874, self.only("Liberation Sans"))
        self.assertTrue(self.found("รายการพารามิเตอร์"))
        self.assertEqual(self.fonts(), {"LiberationSans", "Box"})

    def test_every_code_page_is_saved_with_one_font(self):
        environment = self.only("Liberation Sans")
        for language in LANGUAGES:
            with self.subTest(code_page=language.code_page):
                self.make_in(language.code_page, environment)
                self.assertIn("No syntax or stream encoding errors", output_of("qpdf", "--check", self.pdf))

    def test_coloured_signs_without_a_font_for_them_are_boxes(self):
        self.make_in(65001, self.only("Liberation Sans"), comment=(SIGNS,))
        self.assertTrue(self.found(SIGNS))

    def test_coloured_signs_that_a_font_has_only_as_pictures_are_boxes_and_letters_keep_their_font(self):
        self.make_in(65001, self.only("Liberation Sans", "Noto Color Emoji"), comment=(SIGNS,))
        self.assertTrue(self.found(SIGNS))
        self.assertFalse(any("Emoji" in name for name in self.fonts()), self.fonts())

    def dark_dots(self, title, environment):
        """Of the first page with this title, which is bold."""
        self.make("User", "--set", "UserHeader.6=" + title, environment=environment)
        picture = self.output.parent / "page"
        output_of("pdftoppm", "-r", "72", "-gray", "-singlefile", self.pdf, picture)
        return sum(dot < 128 for dot in picture.with_suffix(".pgm").read_bytes()[-595 * 841:])

    def test_bold_titles_are_letters_where_the_font_has_no_bold_one(self):
        self.host.write_data("User")
        environment = self.only("Liberation Sans")
        empty, wide, narrow = (self.dark_dots(title, environment) for title in (" ", 20 * "W", 20 * "."))
        self.assertGreater(wide - empty, 4 * (narrow - empty))
        self.assertGreater(narrow, empty)


if __name__ == "__main__":
    unittest.main()
