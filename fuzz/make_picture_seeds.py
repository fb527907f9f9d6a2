#!/usr/bin/env python3
"""Writes a seed for each kind of record of metafiles, and for each object of the extended ones.

make_picture_seeds.py FOLDER fills FOLDER/emf, FOLDER/emf_plus and FOLDER/wmf. Each seed is a small metafile that
holds its record once, with parameters that make sense, after the objects that it needs. FOLDER/pictures gets small files
that hold far more than their size says.
"""
import struct
import sys
import zlib
from pathlib import Path

BOX = struct.pack("<4i", 10, 10, 80, 80)


def words(*values):
    return struct.pack(f"<{len(values)}i", *values)


def shorts(*values):
    return struct.pack(f"<{len(values)}h", *values)


def floats(*values):
    return struct.pack(f"<{len(values)}f", *values)


def dib():
    """A bitmap of 2 by 2 pixels."""
    return struct.pack("<IiiHHIIiiII", 40, 2, 2, 1, 24, 0, 16, 0, 0, 0, 0), bytes(range(16))


def emf_record(kind, data=b""):
    data += b"\0" * (-len(data) % 4)
    return struct.pack("<II", kind, len(data) + 8) + data


def emf(records):
    body = b"".join(records) + struct.pack("<5I", 14, 20, 0, 16, 20)
    head = struct.pack("<II", 1, 88) + struct.pack("<8i", 0, 0, 99, 99, 0, 0, 10000, 10000)
    head += b" EMF" + struct.pack("<IIIHHIII", 0x10000, 88 + len(body), len(records) + 2, 9, 0, 0, 0, 0)
    return head + struct.pack("<4i", 100, 100, 100, 100) + body


def text_record(kind, wide):
    text = "Time".encode("utf-16-le" if wide else "ascii")
    place = 8 + 16 + 12 + 40
    data = BOX + struct.pack("<Iff", 1, 1, 1) + words(20, 40, 4, place, 0) + BOX + words(place + 8)
    return emf_record(kind, data + text.ljust(8, b"\0") + words(8, 8, 8, 8))


def poly_text(kind, wide):
    text = "Time".encode("utf-16-le" if wide else "ascii")
    place = 8 + 16 + 12 + 4 + 40
    data = BOX + struct.pack("<Iff", 1, 1, 1) + words(1, 20, 40, 4, place, 0) + BOX + words(0)
    return emf_record(kind, data + text)


def points(kind, count, small, closed_by=b""):
    pairs = [value for i in range(count) for value in (10 + 7 * i, 20 + 30 * (i % 2))]
    return emf_record(kind, BOX + words(count) + (shorts(*pairs) if small else words(*pairs)) + closed_by)


def polys(kind, small):
    pairs = [10, 10, 40, 10, 40, 40, 50, 50, 80, 50, 80, 80]
    return emf_record(kind, BOX + words(2, 6, 3, 3) + (shorts(*pairs) if small else words(*pairs)))


def region():
    """Of 64 bytes."""
    return words(32, 1, 2, 32) + BOX + BOX + words(20, 20, 40, 40)


def block(kind, tail):
    info, bits = dib()
    head = 8 + 16 + 16 + 4 + 8 + 24 + 8 + 16 + len(tail)
    data = BOX + words(10, 10, 40, 40) + struct.pack("<I", 0x00CC0020) + words(0, 0) + floats(1, 0, 0, 1, 0, 0)
    data += words(0, 0, head, 40, head + 40, 16) + tail
    return emf_record(kind, data + info + bits)


def placed_dib(kind, tail):
    info, bits = dib()
    head = 8 + 16 + 8 + 16 + 16 + 4 + len(tail)
    data = BOX + words(10, 10, 0, 0, 2, 2, head, 40, head + 40, 16, 0) + tail
    return emf_record(kind, data + info + bits)


def pattern_brush(kind):
    info, bits = dib()
    return emf_record(kind, words(1, 0, 32, 40, 72, 16) + info + bits)


def font(kind):
    face = "Arial".encode("utf-16-le").ljust(64, b"\0")
    return emf_record(kind, words(1, -20, 0, 300, 300, 700) + bytes([1, 1, 1, 0, 0, 0, 0, 0]) + face)


def emf_shape_seeds():
    seeds = {}
    for kind, small in ((3, 0), (4, 0), (6, 0), (86, 1), (87, 1), (89, 1)):
        seeds[kind] = [points(kind, 6, small)]
    for kind, small in ((2, 0), (85, 1)):
        seeds[kind] = [points(kind, 7, small)]
    for kind, small in ((5, 0), (88, 1)):
        seeds[kind] = [points(kind, 6, small)]
    for kind, small in ((56, 0), (92, 1)):
        seeds[kind] = [points(kind, 7, small, bytes([6, 2, 3, 6, 4, 4, 5]))]
    for kind, small in ((7, 0), (8, 0), (90, 1), (91, 1)):
        seeds[kind] = [polys(kind, small)]
    for kind in (9, 10, 11, 12):
        seeds[kind] = [emf_record(17, words(8)), emf_record(kind, words(50, 60))]
    for kind in (31, 32):
        seeds[kind] = [emf_record(17, words(7)), emf_record(kind, words(1, 2, 3, 4))]
    return seeds


def emf_state_seeds():
    """Modes, positions, transforms and clips, and the shapes that are boxes."""
    seeds = {}
    for kind, value in ((13, 0), (16, 0), (17, 5), (18, 1), (19, 2), (20, 7), (21, 4), (22, 24), (24, 255),
                        (25, 0xFF00), (57, 2), (58, 4), (98, 1), (100, 1), (101, 1), (115, 0), (33, 0)):
        seeds[kind] = [emf_record(kind, words(value))]
    seeds[34] = [emf_record(33), emf_record(34, words(-1))]
    for kind in (35, 36):
        seeds[kind] = [emf_record(kind, floats(0.9, 0.1, -0.1, 0.9, 3, 4) + words(2))]
    for kind in (26, 27, 54):
        seeds[kind] = [emf_record(kind, words(30, 40))]
    for kind in (29, 30, 42, 43):
        seeds[kind] = [emf_record(kind, BOX)]
    seeds[15] = [emf_record(15, words(5, 5, 255))]
    seeds[28] = [emf_record(30, BOX), emf_record(28)]
    seeds[41] = [emf_record(41, words(50, 50, 20) + floats(30, 200))]
    seeds[44] = [emf_record(44, BOX + words(10, 20))]
    for kind in (45, 46, 47, 55):
        seeds[kind] = [emf_record(kind, BOX + words(80, 40, 20, 80))]
    return seeds


def emf_path_and_object_seeds():
    seeds = {}
    figure = [emf_record(59), emf_record(27, words(10, 10)), points(6, 4, 0), emf_record(61), emf_record(60)]
    for kind in (62, 63, 64):
        seeds[kind] = figure + [emf_record(kind, BOX)]
    for kind in (65, 66, 68):
        seeds[kind] = figure + [emf_record(kind), emf_record(64, BOX)]
    seeds[67] = figure + [emf_record(67, words(5))]
    seeds[37] = [emf_record(37, struct.pack("<I", 0x80000004))]
    seeds[38] = [emf_record(38, words(1, 2, 3, 0, 255)), emf_record(37, words(1)), emf_record(40, words(1))]
    for hatch in range(6):
        seeds[f"39-{hatch}"] = [emf_record(39, words(1, 2, 255, hatch)), emf_record(37, words(1))]
    seeds[95] = [emf_record(95, words(1, 0, 0, 0, 0, 0x10207, 4, 0, 255, 0, 2, 6, 3)), emf_record(37, words(1))]
    seeds[48] = [emf_record(49, words(1, 0x20300, 0xFF, 0xFF00)), emf_record(48, words(1)),
                 emf_record(50, words(1, 0, 1, 0xFF0000)), emf_record(51, words(1, 4)),
                 emf_record(24, words(0x1000001))]
    seeds[82] = [font(82), emf_record(37, words(1)), text_record(84, True)]
    return seeds


def emf_text_and_bitmap_seeds():
    seeds = {}
    for kind in (93, 94):
        seeds[kind] = [pattern_brush(kind), emf_record(37, words(1))]
    seeds[83], seeds[84] = [text_record(83, False)], [text_record(84, True)]
    seeds[96], seeds[97] = [poly_text(96, False)], [poly_text(97, True)]
    seeds[108] = [emf_record(108, words(20, 40, 4, 0x300, 1) + floats(1, 1) + b"Time")]
    seeds[70] = [emf_record(70, words(4) + b"GDIC")]
    for kind, head in ((71, words(64, 1)), (72, words(64, 1, 2, 2)), (73, words(64)), (74, words(64))):
        seeds[kind] = [emf_record(39, words(1, 0, 255, 0)), emf_record(kind, BOX + head + region())]
    seeds[75] = [emf_record(75, words(64, 5) + region()), emf_record(75, words(64, 3) + region())]
    seeds[76], seeds[77] = [block(76, b"")], [block(77, words(2, 2))]
    seeds[78] = [block(78, words(0, 0, 0, 0, 0, 0, 0))]
    seeds[114], seeds[116] = [block(114, words(2, 2))], [block(116, words(2, 2))]
    info, bits = dib()
    seeds[79] = [emf_record(79, BOX + words(10, 10, 50, 20, 20, 60, 0, 0, 2, 2) + floats(1, 0, 0, 1, 0, 0) +
                            words(0, 0, 140, 40, 180, 16, 0, 0, 0, 0, 0, 0, 0) + info + bits)]
    seeds[80], seeds[81] = [placed_dib(80, words(0, 2))], [placed_dib(81, words(0x00CC0020, 40, 40))]
    corners = b"".join(words(x, y) + struct.pack("<4H", 0xFF00, 0x8000, 0, 0) for x, y in ((9, 9), (80, 20), (40, 80)))
    for mode, mesh in ((0, words(0, 1)), (1, words(0, 1)), (2, words(0, 1, 2))):
        seeds[f"118-{mode}"] = [emf_record(118, BOX + words(3, 1, mode) + corners + mesh)]
    seeds[120] = [emf_record(120, words(10, 2)), text_record(84, True)]
    return seeds


def emf_seeds():
    """One list of records for each type."""
    return emf_shape_seeds() | emf_state_seeds() | emf_path_and_object_seeds() | emf_text_and_bitmap_seeds()


def wmf_record(function, *values, tail=b""):
    data = shorts(*values) + tail
    data += b"\0" * (len(data) % 2)
    return struct.pack("<IH", len(data) // 2 + 3, function) + data


def wmf(records):
    body = wmf_record(0x020B, 0, 0) + wmf_record(0x020C, 100, 100) + b"".join(records)
    body += wmf_record(0x041B, 60, 60, 20, 20) + wmf_record(0)
    return struct.pack("<HHHIHIH", 1, 9, 0x300, 9 + len(body) // 2, 4, 64, 0) + body


COLOR = struct.pack("<I", 0x2040FF)
COPY = struct.pack("<I", 0x00CC0020)


def wmf_state_and_shape_seeds():
    pen = [wmf_record(0x02FA, 2, 3, 0, tail=COLOR), wmf_record(0x012D, 0)]
    seeds = {function: [wmf_record(function, 1)] for function in (
        0x0102, 0x0103, 0x0104, 0x0105, 0x0106, 0x0107, 0x0108, 0x012E, 0x0149, 0x0231, 0x0139, 0x0626)}
    seeds[0x0127] = [wmf_record(0x001E), wmf_record(0x0127, -1)]
    for function in (0x0201, 0x0209):
        seeds[function] = [wmf_record(function, tail=COLOR)]
    for function in (0x020A, 0x020D, 0x020E, 0x020F, 0x0211, 0x0213, 0x0214, 0x0220):
        seeds[function] = [wmf_record(function, 30, 40)]
    for function in (0x0410, 0x0412, 0x0415, 0x0416, 0x0418, 0x041B):
        seeds[function] = [wmf_record(function, 70, 80, 10, 20)]
    for function in (0x0817, 0x081A, 0x0830):
        seeds[function] = [wmf_record(function, 10, 80, 80, 20, 70, 80, 10, 20)]
    seeds[0x061C] = [wmf_record(0x061C, 9, 9, 70, 80, 10, 20)]
    seeds[0x041F] = [wmf_record(0x041F, tail=COLOR + shorts(5, 5))]
    for function in (0x0324, 0x0325):
        seeds[function] = pen + [wmf_record(function, 3, 10, 10, 60, 20, 30, 70)]
    seeds[0x0538] = [wmf_record(0x0538, 2, 3, 3, 10, 10, 40, 10, 40, 40, 50, 50, 80, 50, 80, 80)]
    seeds[0x0521] = [wmf_record(0x0521, 4, tail=b"Time" + shorts(40, 20))]
    seeds[0x0A32] = [wmf_record(0x0A32, 40, 20, 4, 6, 10, 10, 80, 80, tail=b"Time" + shorts(8, 8, 8, 8))]
    return seeds


def wmf_object_and_bitmap_seeds(text):
    """`text` are records that draw one."""
    info, bits = dib()
    area = shorts(0, 6, 0, 0, 44, 1, 2, 0, 0, 50, 50) + shorts(2, 10, 40, 10, 40, 2)
    region_object = [wmf_record(0x06FF, tail=area)]
    seeds = {}
    seeds[0x02FB] = [wmf_record(0x02FB, -20, 0, 300, 300, 700, tail=bytes([1, 1, 1, 0, 0, 0, 0, 0]) + b"Arial\0"),
                     wmf_record(0x012D, 0)] + text
    seeds[0x02FC] = [wmf_record(0x02FC, 2, tail=COLOR + shorts(4)), wmf_record(0x012D, 0), wmf_record(0x01F0, 0)]
    seeds[0x00F7] = [wmf_record(0x00F7, 0x300, 2, tail=COLOR * 2), wmf_record(0x0234, 0), wmf_record(0x0035),
                     wmf_record(0x0037, 0, 1, tail=COLOR), wmf_record(0x0436, 0, 1, tail=COLOR)]
    seeds[0x0142] = [wmf_record(0x0142, 5, 0, tail=info + bits), wmf_record(0x012D, 0)]
    seeds[0x01F9] = [wmf_record(0x01F9, 0, 8, 8, 2, tail=bytes([1, 1]) + bytes(22) + bytes(range(16))),
                     wmf_record(0x012D, 0)]
    for function in (0x012A, 0x012B, 0x012C):
        seeds[function] = region_object + [wmf_record(function, 0)]
    brush = [wmf_record(0x02FC, 0, tail=COLOR + shorts(0))]
    seeds[0x0228] = region_object + brush + [wmf_record(0x0228, 0, 1)]
    seeds[0x0429] = region_object + brush + [wmf_record(0x0429, 0, 1, 3, 3)]
    seeds[0x061D] = [wmf_record(0x061D, tail=struct.pack("<I", 0x00F00021) + shorts(40, 40, 10, 10))]
    old = shorts(0, 8, 2, 2) + bytes([1, 1]) + bytes(range(4))
    for function, head in ((0x0940, shorts(0, 0, 40, 40, 10, 10)), (0x0B41, shorts(2, 2, 0, 0, 40, 40, 10, 10))):
        seeds[function] = [wmf_record(function, tail=COPY + head + info + bits)]
    for function, head in ((0x0922, shorts(0, 0, 40, 40, 10, 10)), (0x0B23, shorts(2, 2, 0, 0, 40, 40, 10, 10))):
        seeds[function] = [wmf_record(function, tail=COPY + head + old)]
    seeds[0x0D33] = [wmf_record(0x0D33, 0, 2, 0, 0, 0, 2, 2, 10, 10, tail=info + bits)]
    seeds[0x0F43] = [wmf_record(0x0F43, tail=COPY + shorts(0, 2, 2, 0, 0, 40, 40, 10, 10) + info + bits)]
    return seeds


def wmf_seeds():
    seeds = wmf_state_and_shape_seeds()
    return seeds | wmf_object_and_bitmap_seeds(seeds[0x0521])


VERSION = struct.pack("<I", 0xDBC01002)
INK = struct.pack("<I", 0xFF3060C0)


def plus_record(kind, flags, data=b""):
    data += b"\0" * (-len(data) % 4)
    return struct.pack("<HHII", kind, flags, len(data) + 12, len(data)) + data


def plus_object(kind, index, data):
    return plus_record(0x4008, kind << 8 | index, VERSION + data)


def plus_objects():
    solid = words(0) + INK
    path = words(4, 0) + floats(10, 10, 80, 10, 80, 80, 10, 80) + bytes([0, 1, 1, 0x81])
    pixels = words(1, 2, 2, 8, 0x26200A, 0) + INK * 4
    box = floats(10, 10, 60, 60)
    inner, old_inner = emf([points(87, 6, 1)]), wmf([wmf_record(0x0325, 3, 10, 10, 60, 20, 30, 70)])
    objects = {f"hatch-{style}": (1, words(1, style) + INK + b"\xFF" * 4) for style in range(53)}
    objects |= {
        "solid": (1, solid),
        "texture": (1, words(2, 2, 0) + floats(9, 0, 0, 9, 0, 0) + VERSION + pixels),
        "linear": (1, words(4, 2 | 4, 0) + box + INK * 2 + words(0, 0) + floats(1, 0, 0, 1, 0, 0) + words(2) +
                   floats(0, 1) + INK * 2),
        "blend": (1, words(4, 8, 4) + box + INK * 2 + words(0, 0, 2) + floats(0, 1, 1, 0)),
        "path-gradient": (1, words(3, 0, 4) + INK + floats(40, 40) + words(4) + INK * 4 + words(4) +
                          floats(10, 10, 80, 10, 80, 80, 10, 80)),
        "pen": (2, words(0, 0x3F, 0) + floats(3, 1, 0, 0, 1, 0, 0) + words(0x14, 0x11, 2) + floats(4) + words(3) +
                VERSION + solid),
        "pen-dashes": (2, words(0, 0x180, 2) + floats(2, 1) + words(2) + floats(3, 1) + VERSION + solid),
        "pen-cap": (2, words(0, 0x800, 0) + floats(3) + words(44) + VERSION + words(1) + floats(4, 4, 1) +
                    words(1, 0, 0, 0) + floats(10, 1) + VERSION + solid),
        "path": (3, path),
        "path-small": (3, words(3, 0x4000) + shorts(10, 10, 80, 10, 40, 80) + bytes([0, 1, 0x81])),
        "path-runs": (3, words(4, 0x5000) + shorts(10, 10, 80, 10, 80, 80, 10, 80) + bytes([0x41, 0, 0x42, 1, 0x81])),
        "path-relative": (3, words(3, 0x800) + bytes([10, 10, 60, 0, 0, 60, 0x41, 0, 0x42, 1])),
        "region": (4, words(2, 3, 0x10000000) + box + words(0x10000001, len(path) + 4) + VERSION + path),
        "image": (5, pixels),
        "image-indexed": (5, words(1, 8, 1, 4, 0x30101, 0, 0, 2) + INK * 2 + b"\xA5\0\0\0"),
        "metafile": (5, words(2, 3, len(inner)) + inner),
        "metafile-old": (5, words(2, 2, len(old_inner)) + old_inner),
        "font": (6, floats(14) + words(2, 15, 0, 5) + "Arial".encode("utf-16-le")),
        "format": (7, words(0, 0, 1, 2, 0, 0) + floats(0, 0, 0, 1, 0, 0) + words(0, 0)),
        "attributes": (8, words(0, 4, 0, 0, 0)),
        "cap": (9, words(1) + floats(4, 4, 1) + words(1, 0, 0, 0) + floats(10, 1)),
    }
    return objects


def plus_seeds():
    objects = plus_objects()
    kit = b"".join(plus_object(*[objects[name][0], index, objects[name][1]]) for index, name in enumerate(
        ("solid", "pen", "path", "region", "image", "font", "format")))
    box = floats(10, 10, 60, 60)
    some = words(4) + floats(10, 10, 80, 20, 20, 60, 80, 80)
    seeds = {}
    for name, (kind, data) in objects.items():
        use = {1: plus_record(0x400A, 0, words(9, 1) + box), 2: plus_record(0x400D, 9, some),
               3: plus_record(0x4014, 0x8009, INK), 4: plus_record(0x4034, 9),
               5: plus_record(0x401A, 9, words(0, 2) + floats(0, 0, 2, 2) + box)}.get(kind, b"")
        seeds[name] = plus_object(kind, 9, data) + use
    fill = {0x4009: (0, INK), 0x400A: (0, words(0, 1) + box), 0x400C: (0, words(0) + some), 0x400E: (0, words(0) + box),
            0x4010: (0, words(0) + floats(20, 200) + box), 0x4013: (3, words(0)), 0x4014: (2, words(0)),
            0x4016: (0, words(0) + floats(0.5) + some)}
    line = {0x400B: (1, words(1) + box), 0x400D: (0x2001, some), 0x400F: (1, box), 0x4011: (1, floats(20, 200) + box),
            0x4012: (1, floats(20, 200) + box), 0x4015: (2, words(1)), 0x4017: (1, floats(0.5) + some),
            0x4018: (1, floats(0.5) + words(0, 3) + some), 0x4019: (1, some)}
    other = {0x401A: (4, words(0, 2) + floats(0, 0, 2, 2) + box),
             0x401B: (4, words(0, 2) + floats(0, 0, 2, 2) + words(3) + floats(10, 10, 80, 20, 20, 60)),
             0x401C: (0x8005, INK + words(6, 4) + box + "Time".encode("utf-16-le")),
             0x4036: (0x8005, INK + words(1, 0, 2) + "Ti".encode("utf-16-le") + floats(10, 50, 20, 50)),
             0x4025: (0, words(1)), 0x4026: (0, words(1)), 0x4027: (0, box + box + words(2)), 0x4028: (0, words(3)),
             0x4029: (0, words(3)), 0x402A: (0, floats(1, 0, 0, 1, 5, 5)), 0x402B: (0, b""),
             0x402C: (0x2000, floats(1, 0, 0, 1, 5, 5)), 0x402D: (0, floats(3, 4)), 0x402E: (0, floats(2, 2)),
             0x402F: (0, floats(30)), 0x4030: (3, floats(1)), 0x4031: (0, b""), 0x4032: (0x100, box),
             0x4033: (0x202, b""), 0x4034: (0x303, b""), 0x4035: (0, floats(3, 4)), 0x4004: (0, b"")}
    for kind, (flags, data) in (fill | line | other).items():
        seeds[f"{kind:04X}"] = kit + plus_record(kind, flags, data) + plus_record(0x400A, 0x8000, INK + words(1) + box)
    return seeds


def png(side, *chunks):
    """A black picture of so many pixels a side, with further chunks of (name, content)."""
    rows = bytes((side + 7) // 8 + 1) * side  # a filter and one bit a pixel
    parts = [(b"IHDR", struct.pack(">2I5B", side, side, 1, 0, 0, 0, 0)), *chunks, (b"IDAT", zlib.compress(rows, 9)),
             (b"IEND", b"")]
    return b"\x89PNG\r\n\x1a\n" + b"".join(
        struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data)) for name, data in parts)


def hiding_seeds():
    text = b"Comment\0\0" + zlib.compress(b"a" * 7_900_000, 9)  # as long as readers take them
    large = png(5700)
    place = 6 + 16 * 64
    entries = struct.pack("<3H", 0, 1, 64) + struct.pack("<4B2H2I", 0, 0, 0, 0, 1, 32, len(large), place) * 64
    return {"packed_texts.png": png(8, *[(b"zTXt", text)] * 40), "icon_of_one_file.ico": entries + large}


def write(folder, seeds):
    folder.mkdir(parents=True, exist_ok=True)
    for name, content in seeds.items():
        (folder / str(name)).write_bytes(content)


def main():
    folder = Path(sys.argv[1])
    # A box and a text at the end show what a record did to the state.
    shown = [emf_record(43, words(20, 20, 60, 60)), text_record(84, True)]
    write(folder / "emf", {name: emf(records + shown) for name, records in emf_seeds().items()})
    write(folder / "wmf", {f"{name:04X}": wmf(records) for name, records in wmf_seeds().items()})
    write(folder / "emf_plus", plus_seeds())
    write(folder / "pictures", hiding_seeds())


if __name__ == "__main__":
    main()
