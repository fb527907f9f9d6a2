"""Reads the structure of a tagged PDF back, with the content that belongs to it."""
import re

import pikepdf

MARK_BEGINS, MARK_ENDS = ("BMC", "BDC"), "EMC"
SHOWS_TEXT = ("Tj", "TJ", "'", '"')
PAINTS = (*SHOWS_TEXT, "f", "F", "f*", "B", "B*", "b", "b*", "S", "s", "sh", "Do", "EI")


def texts_of_codes(font):
    """What each code of a font says."""
    codes = {}
    cmap = font.ToUnicode.read_bytes().decode("ascii")
    for block in re.findall(r"beginbfchar(.*?)endbfchar", cmap, re.S):
        for code, text in re.findall(r"<([0-9A-Fa-f]+)>\s*<([0-9A-Fa-f]+)>", block):
            codes[int(code, 16)] = bytes.fromhex(text).decode("utf-16-be")
    return codes


def without_colours(pdf, copy):
    """The same document in another file, which doesn't say what its colours mean: pdfinfo computes that anew for each piece
    of text, in two thirds of its time."""
    with pikepdf.open(pdf) as document:
        del document.Root.OutputIntents
        document.save(copy)
    return copy


def is_element(kid):
    return isinstance(kid, pikepdf.Dictionary) and "/S" in kid


def kids(element):
    """What an element holds: elements, numbers of content, and numbers with their pages."""
    held = element.get("/K", pikepdf.Array())
    return list(held) if isinstance(held, pikepdf.Array) else [held]


def elements_in(element):
    return [kid for kid in kids(element) if is_element(kid)]


def content(element):
    """(page, number) of each piece that belongs to an element itself."""
    for kid in kids(element):
        if isinstance(kid, int):
            yield element.Pg.objgen, kid
        elif not is_element(kid):
            yield kid.Pg.objgen, int(kid.MCID)


class Piece:
    """Marked content of a page, or decoration, or what belongs to neither."""

    def __init__(self, tag, number=None):
        self.tag, self.number = tag, number
        self.operators, self.text = [], ""

    @classmethod
    def of(cls, operands, marks):
        """What begins within these marks: only a text in place of glyphs may."""
        tag = str(operands[0])
        number = operands[1].get("/MCID") if len(operands) > 1 else None
        if marks and (tag != "/Span" or number is not None):
            raise AssertionError(f"{tag} within {marks[0][0].tag}")
        return cls(tag, number)


class TaggedPdf:
    """`pages`, `pieces` and `texts` go by the object number of a page; texts by that of their piece, too."""

    def __init__(self, path):
        self._pdf = pikepdf.open(path)  # its objects live as long as it does
        self._fonts = {}
        self.root = self._pdf.Root
        self.pages = {page.obj.objgen: page.obj for page in self._pdf.pages}
        self.pieces = {number: self._read_pieces(page) for number, page in self.pages.items()}
        self.texts = {(page, piece.number): piece.text
                      for page, pieces in self.pieces.items() for piece in pieces if piece.number is not None}

    def _codes_of(self, font):
        if font.objgen not in self._fonts:
            self._fonts[font.objgen] = texts_of_codes(font)
        return self._fonts[font.objgen]

    def _read_pieces(self, page):
        """All content of a page, piece by piece. Raises where marks cross each other or text objects."""
        pieces, marks, codes, in_text = [], [], {}, False
        for operands, operator in pikepdf.parse_content_stream(page):
            word = str(operator)
            if word in MARK_BEGINS:
                piece = Piece.of(operands, marks)
                pieces += [] if marks else [piece]
                marks.append((piece, in_text))
            elif word == MARK_ENDS:
                if marks.pop()[1] != in_text:
                    raise AssertionError("marked content crosses a text object")
            elif word in ("BT", "ET"):
                in_text = word == "BT"
            elif word == "Tf":
                codes = self._codes_of(page.Resources.Font[str(operands[0])])
            elif word in PAINTS:
                if not marks:
                    pieces.append(Piece(None))
                piece = marks[0][0] if marks else pieces[-1]
                piece.operators.append(word)
                if word in SHOWS_TEXT:
                    shown = bytes(operands[0])
                    piece.text += "".join(codes[shown[at] << 8 | shown[at + 1]] for at in range(0, len(shown), 2))
        if marks:
            raise AssertionError("marked content without an end")
        return pieces

    def elements(self):
        """(element, the one that holds it), in the order of reading."""
        def walk(element, parent):
            yield element, parent
            for kid in elements_in(element):
                yield from walk(kid, element)
        for kid in elements_in(self.root.StructTreeRoot):
            yield from walk(kid, self.root.StructTreeRoot)

    def own_text(self, element):
        return "".join(self.texts[place] for place in content(element))

    def text(self):
        """All that is read, without what stands for graphs and ticks."""
        return "".join(self.own_text(element) for element, _ in self.elements())

    def named_characters(self):
        """What stands for single glyphs in content, in the order of the pages."""
        return [str(operands[1].ActualText) for page in self.pages.values()
                for operands, operator in pikepdf.parse_content_stream(page)
                if str(operator) == "BDC" and "/ActualText" in operands[1]]

    def read(self):
        """What is read, one element a line; a row of a table is a line with its cells."""
        def said(element):
            for key in ("/Alt", "/ActualText"):
                if key in element:
                    return f"[{str(element.S)[1:]}: {element[key]}]"
            words = [self.own_text(element).strip(), *(said(kid) for kid in elements_in(element))]
            return " ".join(word for word in words if word)

        def cell(element):
            attributes = element.get("/A", {})
            more = [f"{name[1:]} {str(value).lstrip('/')}" for name, value in sorted(attributes.items()) if name != "/O"]
            return f"{str(element.S)[1:]}{' (' + ', '.join(more) + ')' if more else ''} {said(element)}".rstrip()

        def walk(element, depth):
            kind = str(element.S)[1:]
            if kind == "TR":
                yield "  " * depth + "TR | " + " | ".join(cell(kid) for kid in elements_in(element))
            elif kind in ("Document", "Part", "Sect", "Table"):
                yield "  " * depth + kind
                for kid in elements_in(element):
                    yield from walk(kid, depth + 1)
            else:
                yield "  " * depth + f"{kind} {said(element)}"
        return [line for kid in elements_in(self.root.StructTreeRoot) for line in walk(kid, 0)]

    def rows(self):
        """The texts of the cells of each row."""
        return [[self.own_text(cell) for cell in elements_in(element)]
                for element, _ in self.elements() if element.S == "/TR"]
