"""Small pictures as the host's bitmaps (BMP, 24 bit)."""
import struct


class Bitmap:
    """A white sheet on which boxes and straight lines are drawn, in pixels from the top left corner."""

    def __init__(self, width, height):
        self._width, self._height = width, height
        self._rows = [bytearray(b"\xff" * width * 3) for _ in range(height)]

    def fill(self, left, top, right, bottom, rgb):
        colour = bytes((rgb & 0xFF, rgb >> 8 & 0xFF, rgb >> 16))
        left, right = max(left, 0), min(right, self._width)
        for y in range(max(top, 0), min(bottom, self._height)):
            self._rows[y][left * 3:right * 3] = colour * max(right - left, 0)

    def box(self, left, top, right, bottom, rgb=0, inside=None):
        self.fill(left, top, right, bottom, rgb)
        self.fill(left + 2, top + 2, right - 2, bottom - 2, 0xFFFFFF if inside is None else inside)

    def path(self, *corners, rgb=0):
        """Lines along the axes from corner to corner."""
        for (x1, y1), (x2, y2) in zip(corners, corners[1:]):
            self.fill(min(x1, x2), min(y1, y2), max(x1, x2) + 2, max(y1, y2) + 2, rgb)

    def save(self, path):
        padding = b"\0" * (-self._width * 3 % 4)
        body = b"".join(bytes(row) + padding for row in reversed(self._rows))
        header = struct.pack("<2sIHHI", b"BM", 54 + len(body), 0, 0, 54)
        header += struct.pack("<IiiHHIIiiII", 40, self._width, self._height, 1, 24, 0, len(body), 3780, 3780, 0, 0)
        path.write_bytes(header + body)
