"""Reads the structure of a tagged PDF back, with the content that belongs to it, from what qpdf says of its objects."""
import base64
import json
import re
import subprocess

MARK_BEGINS, MARK_ENDS = ("BMC", "BDC"), "EMC"
SHOWS_TEXT = ("Tj", "TJ", "'", '"')
PAINTS = (*SHOWS_TEXT, "f", "F", "f*", "B", "B*", "b", "b*", "S", "s", "sh", "Do", "EI")
TOKEN = re.compile(rb"<<|>>|\[|\]|<[0-9A-Fa-f\s]*>|\((?:\\.|[^\\()])*\)|/[^\s<>\[\]/()]*|[^\s<>\[\]/()]+", re.S)
ESCAPE = re.compile(rb"\\([0-7]{1,3}|\r\n|.)", re.S)
ESCAPED = {b"n": b"\n", b"r": b"\r", b"t": b"\t", b"b": b"\b", b"f": b"\f", b"\n": b"", b"\r": b"", b"\r\n": b""}


def string_of(token):
    """The bytes of a string in either form of the format."""
    if token.startswith(b"<"):
        return bytes.fromhex(token[1:-1].decode())
    return ESCAPE.sub(lambda found: bytes([int(found[1], 8)]) if found[1].isdigit() else ESCAPED.get(found[1], found[1]),
                      token[1:-1])


class Piece:
    """Marked content of a page, or decoration, or what belongs to neither."""

    def __init__(self, tag, number=None):
        self.tag, self.number = tag, number
        self.operators, self.text = [], ""

    @classmethod
    def of(cls, operands, marks):
        """What begins within these marks: only a text in place of glyphs may."""
        number = operands[operands.index("/MCID") + 1] if "/MCID" in operands else None
        if marks and (operands[0] != "/Span" or number is not None):
            raise AssertionError(f"{operands} within {marks[0][0].tag}")
        return cls(operands[0], None if number is None else int(number))


class TaggedPdf:
    def __init__(self, pdf):
        done = subprocess.run(["qpdf", "--json=2", "--json-key=qpdf", "--json-stream-data=inline",
                               "--decode-level=generalized", pdf], capture_output=True, check=True)
        self.objects = json.loads(done.stdout)["qpdf"][1]
        self.root = self.at(self.objects["trailer"]["value"]["/Root"])
        self.pages = list(self._pages(self.root["/Pages"]))
        self._fonts = {}
        self._pieces = {}

    def at(self, value):
        """What a reference refers to; of a stream its dictionary."""
        while isinstance(value, str) and re.fullmatch(r"\d+ \d+ R", value):
            found = self.objects[f"obj:{value}"]
            value = found["stream"]["dict"] if "stream" in found else found["value"]
        return value

    def bytes_of(self, reference):
        return base64.b64decode(self.objects[f"obj:{reference}"]["stream"]["data"])

    def _pages(self, reference):
        node = self.at(reference)
        if node["/Type"] == "/Page":
            yield reference
        for kid in node.get("/Kids", []):
            yield from self._pages(kid)

    def _codes_of(self, font):
        """Text by code."""
        if font not in self._fonts:
            codes = {}
            cmap = self.bytes_of(self.at(font)["/ToUnicode"]).decode("ascii")
            for block in re.findall(r"beginbfchar(.*?)endbfchar", cmap, re.S):
                for code, text in re.findall(r"<([0-9A-Fa-f]+)>\s*<([0-9A-Fa-f]+)>", block):
                    codes[int(code, 16)] = bytes.fromhex(text).decode("utf-16-be")
            for block in re.findall(r"beginbfrange(.*?)endbfrange", cmap, re.S):
                for first, last, text in re.findall(r"<([0-9A-Fa-f]+)>\s*<([0-9A-Fa-f]+)>\s*<([0-9A-Fa-f]+)>", block):
                    begin = int(text, 16)
                    for code in range(int(first, 16), int(last, 16) + 1):
                        unit = begin + code - int(first, 16)
                        codes[code] = unit.to_bytes(len(text) // 2, "big").decode("utf-16-be")
            self._fonts[font] = codes
        return self._fonts[font]

    def _content(self, page):
        contents = self.at(page)["/Contents"]
        return b"\n".join(self.bytes_of(part) for part in (contents if isinstance(contents, list) else [contents]))

    def pieces(self, page):
        """All content of a page, piece by piece. Raises where marks cross each other or text objects."""
        if page not in self._pieces:
            self._pieces[page] = self._read_pieces(page)
        return self._pieces[page]

    def _read_pieces(self, page):
        fonts = self.at(self.at(self.at(page)["/Resources"])["/Font"])
        pieces, marks, operands, codes, shown, in_text = [], [], [], {}, b"", False
        for token in TOKEN.findall(self._content(page)):
            word = token.decode("latin-1")
            if token[:1] == b"(" or (token[:1] == b"<" and token != b"<<"):
                shown = string_of(token)
                operands.append(word)
                continue
            if word[0] in "</[]>" or re.fullmatch(r"[-+.\d]+", word):
                operands.append(word)
                continue
            if word in MARK_BEGINS:
                marks.append((Piece.of(operands, marks), in_text))
                pieces += [marks[0][0]] if len(marks) == 1 else []
            elif word == MARK_ENDS:
                _, began_in_text = marks.pop()
                if began_in_text != in_text:
                    raise AssertionError("marked content crosses a text object")
            elif word in ("BT", "ET"):
                in_text = word == "BT"
            elif word == "Tf":
                codes = self._codes_of(fonts[operands[-2]])
            elif word in PAINTS:
                if not marks:
                    pieces.append(Piece(None))
                piece = marks[0][0] if marks else pieces[-1]
                piece.operators.append(word)
                if word in SHOWS_TEXT:
                    piece.text += "".join(codes[shown[at] << 8 | shown[at + 1]] for at in range(0, len(shown), 2))
            if word == "Td" and marks and float(operands[-1]) != 0 and marks[0][0].text:
                marks[0][0].text += " "
            operands = []
        if marks:
            raise AssertionError("marked content without an end")
        return pieces

    def elements(self):
        """(element's reference, its dictionary, reference of the one that holds it), in the order of reading."""
        def walk(reference, parent):
            element = self.at(reference)
            yield reference, element, parent
            for kid in self.kids(element):
                if isinstance(kid, str):
                    yield from walk(kid, reference)
        tree = self.root["/StructTreeRoot"]
        for kid in self.kids(self.at(tree)):
            yield from walk(kid, tree)

    @staticmethod
    def kids(element):
        kids = element.get("/K", [])
        return kids if isinstance(kids, list) else [kids]

    def content(self, element):
        """(page, number) of each piece that belongs to an element itself."""
        for kid in self.kids(element):
            if isinstance(kid, int):
                yield element["/Pg"], kid
            elif isinstance(kid, dict):
                yield kid["/Pg"], kid["/MCID"]

    def texts(self):
        """Text of each piece, by page and number."""
        return {(page, piece.number): piece.text
                for page in self.pages for piece in self.pieces(page) if piece.number is not None}

    def read(self):
        """What is read, one element a line; a row of a table is a line with its cells."""
        texts = self.texts()

        def said(reference):
            element = self.at(reference)
            for key in ("/Alt", "/ActualText"):
                if key in element:
                    return f"[{element['/S'][1:]}: {element[key].removeprefix('u:')}]"
            words = [texts[place].strip() for place in self.content(element)]
            return " ".join(words + [said(kid) for kid in self.kids(element) if isinstance(kid, str)])

        def cell(reference):
            element = self.at(reference)
            attributes = self.at(element.get("/A", {}))
            more = [f"{name[1:]} {str(value).lstrip('/')}" for name, value in sorted(attributes.items()) if name != "/O"]
            return f"{element['/S'][1:]}{' (' + ', '.join(more) + ')' if more else ''} {said(reference)}".rstrip()

        def walk(reference, depth):
            element = self.at(reference)
            kind = element["/S"][1:]
            if kind == "TR":
                yield "  " * depth + "TR | " + " | ".join(cell(kid) for kid in self.kids(element))
            elif kind in ("Document", "Part", "Sect", "Table"):
                yield "  " * depth + kind
                for kid in self.kids(element):
                    yield from walk(kid, depth + 1)
            else:
                yield "  " * depth + f"{kind} {said(reference)}"
        return [line for kid in self.kids(self.at(self.root["/StructTreeRoot"])) for line in walk(kid, 0)]

    def rows(self):
        """The texts of the cells of each row."""
        texts = self.texts()
        return [[" ".join(texts[place] for place in self.content(self.at(cell))) for cell in self.kids(element)]
                for _, element, _ in self.elements() if element["/S"] == "/TR"]
