"""Seeds of the font target: small shape files made here, and the first characters of the fonts that are installed."""

import pathlib
import struct

STROKE_FONTS = "/usr/share/librecad/fonts"
HERSHEY_FONTS = "/usr/share/hershey-fonts"
SEED_SIZE = 3000

# Shapes by number: pens, vectors, arcs, bulges, scales, stacks and calls; 0 is the head of the font.
HEAD = b"name\0" + bytes([21, 7, 2, 0])
SHAPES = {
    32: bytes([2, 0xA0, 0]),
    63: bytes([5, 10, 10, 0x83, 6, 11, 12, 40, 1, 7, 0x94, 12, 5, 5, 99, 0]),
    65: bytes([2, 14, 8, 0xF8, 0xEB, 1, 8, 8, 21, 3, 2, 9, 8, 0xEB, 4, 4, 0, 0, 4, 2, 7, 66, 0]),
    66: bytes([5, 10, 10, 0x82, 6, 13, 1, 2, 3, 4, 5, 6, 0, 0, 7, 67, 0]),
    67: bytes([7, 65, 15, 0x20, 0]),
}
WIDE_SHAPES = {
    0x889F: bytes([7, 0, 0x81, 0x40, 2, 3, 5, 10, 7, 0, 0x81, 0x41, 2, 3, 5, 10, 2, 0x80, 0]),
    0x8140: bytes([8, 10, 20, 0]),
    0x8141: bytes([7, 0, 0x81, 0x41, 1, 1, 9, 9, 0x10, 0]),
}


def head_line(kind):
    return b"Seed " + kind + b" 1.0\r\n\x1a"


def shapes_file(shapes, head=HEAD):
    records = {0: head, **{number: b"\0" + code for number, code in shapes.items()}}
    index = b"".join(struct.pack("<HH", number, len(record)) for number, record in records.items())
    bounds = struct.pack("<HHH", 0, max(records), len(records))
    return head_line(b"shapes") + bounds + index + b"".join(records.values()) + b"EOF"


def unifont_file(shapes):
    records = {0: HEAD + bytes(2), **{number: b"\0" + code for number, code in shapes.items()}}
    return head_line(b"unifont") + struct.pack("<H", len(records)) + b"".join(
        struct.pack("<HH", number, len(record)) + record for number, record in records.items())


def bigfont_file(shapes, head):
    records = {0: head, **{number: b"\0" + code for number, code in shapes.items()}}
    front = head_line(b"bigfont") + struct.pack("<HHHHH", 8, len(records), 1, 0x81, 0x9F)
    offset, index, data = len(front) + 8 * len(records), b"", b""
    for number, record in records.items():
        index += struct.pack("<HHI", number, len(record), offset + len(data))
        data += record
    return front + index + data


def shape_files():
    yield shapes_file(SHAPES)
    yield shapes_file(SHAPES, head=b"name\0" + bytes([0, 0, 0, 0]))
    yield unifont_file({**SHAPES, 0x20AC: bytes([13, 9, 9, 127, 9, 0xF7, 0x81, 0, 0, 0])})
    yield bigfont_file(WIDE_SHAPES, b"name\0" + bytes([20, 0, 2, 10, 0]))
    yield bigfont_file(WIDE_SHAPES, b"name\0" + bytes([20, 4, 2, 0]))


def beginnings(folder, pattern):
    """The first lines of each file."""
    for path in sorted(pathlib.Path(folder).glob(pattern)):
        with path.open("rb") as file:
            yield file.read(SEED_SIZE).rpartition(b"\n")[0] + b"\n"


def fonts_read():
    for file in shape_files():
        yield b"\0" + file
        yield b"\1" + file
    for file in beginnings(STROKE_FONTS, "*.lff"):
        yield b"\2" + file
    for file in beginnings(HERSHEY_FONTS, "*.jhf"):
        yield b"\3" + file
