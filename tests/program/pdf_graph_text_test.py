"""Text of graphs is text in a PDF: each letter that a graph's records hold is there, once."""
import struct
import unittest
from collections import Counter

from pdf_case import ROOT, PdfCase, output_of

SAMPLES = ROOT / "tests/pictures/data"
# Letters that records hold and what their font shows for them: a symbol font, and a character set that isn't Latin.
SHOWN = {"gp_dense.emf": {"w": "ω"}, "lo_image.wmf": {"Ù": "Ω"}}
# Inkscape writes text as outlines.
WITHOUT_TEXT = ("ink_bars.emf", "ink_curves.emf", "ink_image.emf", "ink_image.wmf", "ink_shapes.emf", "ink_shapes.wmf")


def texts_of_emf(data):
    narrow, wide, end = 83, 84, 14
    at = kind = 0
    while kind != end:
        kind, size = struct.unpack_from("<II", data, at)
        if kind in (narrow, wide):
            count, offset = struct.unpack_from("<II", data, at + 44)
            letter, encoding = (2, "utf-16-le") if kind == wide else (1, "cp1252")
            yield data[at + offset:at + offset + letter * count].decode(encoding)
        at += size


def texts_of_wmf(data):
    place, header, text, text_in_box, clipped_or_filled = 22, 18, 0x521, 0xA32, 6
    at = header + (place if data.startswith(b"\xd7\xcd\xc6\x9a") else 0)
    kind = size = None
    while kind != 0:
        size, kind = struct.unpack_from("<IH", data, at)
        if kind == text:
            count = struct.unpack_from("<H", data, at + 6)[0]
            yield data[at + 8:at + 8 + count].decode("cp1252")
        if kind == text_in_box:
            count, options = struct.unpack_from("<HH", data, at + 10)
            start = at + (22 if options & clipped_or_filled else 14)
            yield data[start:start + count].decode("cp1252")
        at += 2 * size


def letters_of(text):
    return Counter(letter for letter in text if not letter.isspace())


def letters_of_graph(sample):
    texts = (texts_of_wmf if sample.suffix == ".wmf" else texts_of_emf)(sample.read_bytes())
    return letters_of("".join(texts).translate(str.maketrans(SHOWN.get(sample.name, {}))))


class GraphText(PdfCase):
    def letters_of_trace(self, graph):
        """Of the document of a trace whose graph is the sample."""
        for name in ("TraceGraph.emf", "TraceGraphC.emf"):
            self.assertTrue((self.host.temp_folder / name).exists())
            (self.host.temp_folder / name).write_bytes(graph.read_bytes())
        self.make("Trace")
        return letters_of(output_of("pdftotext", "-raw", self.pdf, "-"))

    def test_each_letter_of_every_sample_is_there_once(self):
        self.host.write_data("Trace")
        page_alone = self.letters_of_trace(SAMPLES / WITHOUT_TEXT[0])
        for sample in sorted(path for path in SAMPLES.iterdir() if path.suffix in (".emf", ".wmf")):
            with self.subTest(sample=sample.name):
                letters = letters_of_graph(sample)
                self.assertEqual(not letters, sample.name in WITHOUT_TEXT)
                shown = self.letters_of_trace(sample)
                self.assertEqual(shown - page_alone, letters)
                self.assertEqual(page_alone - shown, Counter())


if __name__ == "__main__":
    unittest.main()
