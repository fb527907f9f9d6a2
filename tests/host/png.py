"""Small pictures with transparency (PNG, 32 bit)."""
import struct
import zlib


def _chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def write_png(path, width, height, rgb, fades):
    """A box of one colour, which fades from the left to the right or is opaque."""
    row = b"\0" + b"".join(bytes((*rgb, 255 - 255 * x // (width - 1) if fades else 255)) for x in range(width))
    path.write_bytes(b"\x89PNG\r\n\x1a\n" + _chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0))
                     + _chunk(b"IDAT", zlib.compress(row * height)) + _chunk(b"IEND", b""))
