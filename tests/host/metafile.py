"""Draws metafiles (EMF) of lines, boxes and text, as a host draws its graphs. One unit is a tenth of a millimetre."""
import struct

SOLID, DASHED, DOTTED = 0, 1, 2
LEFT, CENTRE, RIGHT = 0, 6, 2
BASELINE = 24

# Advance widths of the printable ASCII characters of a Helvetica-like face, in thousandths of an em.
_WIDTHS = [278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278, *[556] * 10,
           278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833, 722,
           778, 667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278, 278, 278, 469, 556, 333,
           556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556, 556, 556, 333, 500, 278, 556,
           500, 722, 500, 500, 500, 334, 260, 334, 584]


def _colour(rgb):
    return (rgb >> 16) & 0xFF | rgb & 0xFF00 | (rgb & 0xFF) << 16


class Metafile:
    """Collects drawing records; `save` writes them with their header."""

    def __init__(self, width, height):
        self._size = (width, height)
        self._records = []
        self._handles = 0
        self._add(18, struct.pack("<I", 1))  # text and dashes leave their background as it is

    def _add(self, kind, payload=b""):
        payload += b"\0" * (-len(payload) % 4)
        self._records.append(struct.pack("<II", kind, 8 + len(payload)) + payload)

    def _select_new(self, kind, payload):
        self._handles += 1
        self._add(kind, struct.pack("<I", self._handles) + payload)
        self._add(37, struct.pack("<I", self._handles))

    def pen(self, rgb, width=1, style=SOLID):
        self._select_new(38, struct.pack("<IiiI", style, width, 0, _colour(rgb)))

    def font(self, height, bold=False, degrees=0):
        log_font = struct.pack("<5i8B", -height, 0, degrees * 10, degrees * 10, 700 if bold else 400, 0, 0, 0, 0, 0, 0, 0, 0)
        face = "Arial".encode("utf-16-le").ljust(64, b"\0")
        self._font_height = height
        self._select_new(82, (log_font + face).ljust(320, b"\0"))

    def polyline(self, points):
        body = b"".join(struct.pack("<hh", round(x), round(y)) for x, y in points)
        self._add(87, struct.pack("<4iI", 0, 0, *self._size, len(points)) + body)

    def text(self, x, y, words, align=LEFT, rgb=0):
        self._add(22, struct.pack("<I", align | BASELINE))
        self._add(24, struct.pack("<I", _colour(rgb)))
        characters = words.encode("utf-16-le")
        padded = characters + b"\0" * (-len(characters) % 4)
        advances = [round(_WIDTHS[ord(c) - 32] * self._font_height / 1000) for c in words]
        reference = struct.pack("<iiIII4iI", round(x), round(y), len(words), 76, 0, 0, 0, -1, -1, 76 + len(padded))
        self._add(84, struct.pack("<4iIff", 0, 0, *self._size, 1, 1.0, 1.0) + reference + padded +
                  struct.pack(f"<{len(advances)}I", *advances))

    def save(self, path):
        end = struct.pack("<5I", 14, 20, 0, 16, 20)
        body = b"".join(self._records) + end
        width, height = self._size
        header = struct.pack("<II4i4i", 1, 108, 0, 0, width - 1, height - 1, 0, 0, width * 10, height * 10)
        header += struct.pack("<4sIIIHHIII", b" EMF", 0x10000, 108 + len(body), len(self._records) + 2,
                              self._handles + 1, 0, 0, 0, 0)
        header += struct.pack("<ii ii III ii", 2540, 2540, 254, 254, 0, 0, 0, 254000, 254000)
        path.write_bytes(header + body)
