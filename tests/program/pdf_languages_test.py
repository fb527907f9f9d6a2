"""Documents of hosts in the languages of all code pages, taken out of their PDFs as text by two independent tools."""
import dataclasses
import re
import unicodedata
import unittest

from pdf_case import PdfCase, output_of

from languages import LANGUAGES, encoded, write_language

SIGNS_OF_DIRECTION = dict.fromkeys(map(ord, "\u200b\u200e\u200f\u202a\u202b\u202c"))


def joined(text):
    """Without blanks, which tools put where they see gaps."""
    return "".join(unicodedata.normalize("NFC", text).translate(SIGNS_OF_DIRECTION).split())


def runs_to_the_left(character):
    return unicodedata.bidirectional(character) in ("R", "AL")


def has_both_directions(text):
    return any(map(runs_to_the_left, text)) and re.search(r"[0-9A-Za-z()!.,:%]", text)


class Languages(PdfCase):
    def make_in(self, language):
        self.host.prepare(pdf_printer=False)
        write_language(self.host, language)
        return self.make("User")

    def test_every_line_of_every_code_page_is_text_in_the_order_of_reading(self):
        for language in LANGUAGES:
            with self.subTest(code_page=language.code_page):
                pdf = self.make_in(language)
                found = joined(output_of("mutool", "draw", "-q", "-F", "text", "-o", "-", pdf))
                for line in language.lines():
                    self.assertIn(joined(line), found)

    def test_the_other_tool_agrees_on_all_lines_of_one_direction(self):
        # It takes the direction of the page's majority for every line.
        for language in LANGUAGES:
            with self.subTest(code_page=language.code_page):
                found = joined(output_of("pdftotext", self.make_in(language), "-"))
                for line in language.lines():
                    if not has_both_directions(line):
                        self.assertIn(joined(line), found)

    def test_no_letter_of_a_code_page_is_lost_on_the_way_through_the_options(self):
        for language in LANGUAGES:
            for line in language.lines():
                self.assertNotIn(b"?", encoded(line.replace("?", ""), language.code_page))

    def test_cover_letter_breaks_greetings_by_the_bytes_of_the_code_page(self):
        for code_page, letter, size in ((1255, "א", 1), (874, "ก", 1), (932, "あ", 2), (65001, "א", 2), (65001, "ก", 3)):
            with self.subTest(code_page=code_page, size=size):
                language = next(each for each in LANGUAGES if each.code_page == code_page)
                self.make_in(dataclasses.replace(language, greeting=(letter * 100,)))
                pages = output_of("mutool", "draw", "-q", "-F", "text", "-o", "-", self.pdf, "1")
                rows = [len(row) for row in re.findall(rf"{letter}{{2,}}", pages)]
                self.assertEqual(rows, split(100, 84 // size))


def split(count, most):
    return [min(most, count - start) for start in range(0, count, most)]


if __name__ == "__main__":
    unittest.main()
