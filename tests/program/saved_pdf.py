"""Reads a PDF back with other programs than the one that wrote it."""
import json
import re
import subprocess


def _output_of(*command):
    return subprocess.run([str(word) for word in command], capture_output=True, check=True).stdout


def text_of(pdf):
    """Laid out as on paper."""
    return _output_of("pdftotext", "-layout", pdf, "-").decode()


def words_in_a_row(pdf):
    """All text with one blank between words, whatever is beside or below what."""
    return re.sub(r"[ \n\f]+", " ", text_of(pdf))


def words_of(pdf, page):
    """(word, left, right, top, bottom) of a page, in points."""
    boxes = _output_of("pdftotext", "-bbox", "-f", page, "-l", page, pdf, "-").decode()
    found = re.findall(r'<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">(.*?)</word>', boxes)
    return [(word, float(left), float(right), float(top), float(bottom)) for left, top, right, bottom, word in found]


def fact_of(pdf, name):
    """What the file says about itself, such as "Title"."""
    return re.search(rf"^{name}:\s+(.*)$", _output_of("pdfinfo", pdf).decode(), re.MULTILINE)[1]


def page_count(pdf):
    return int(fact_of(pdf, "Pages"))


def outline_of(pdf):
    """The table of contents as (level, title, page), pages counted from 1."""
    def walk(entries, level):
        for entry in entries:
            yield level, entry["title"], entry["destpageposfrom1"]
            yield from walk(entry["kids"], level + 1)
    return list(walk(json.loads(_output_of("qpdf", "--json", "--json-key=outlines", pdf))["outlines"], 0))


def is_colourful(pdf, page):
    """Whether the page shows colours as graphs have them; the pale blue of the title bands is none."""
    pixels = _output_of("pdftoppm", "-r", "50", "-f", page, "-l", page, "-q", pdf)
    body = pixels[re.compile(rb"P6\s+\d+\s+\d+\s+255\s").match(pixels).end():]
    colours = set(zip(body[0::3], body[1::3], body[2::3]))
    return max(max(colour) - min(colour) for colour in colours) > 96
