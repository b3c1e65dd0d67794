"""Seeds of the drawing target: small drawings that hold the records of a large one, as text and in binary form."""

import pathlib
import struct

ROOT = pathlib.Path(__file__).resolve().parents[1]
# The samples, and the drawings of other programs where some lie beside the working tree.
DRAWINGS = (ROOT / "samples", ROOT.parent / "shared" / "data")
BINARY_HEAD = b"AutoCAD Binary DXF\r\n\x1a\x00"
GROUPS_IN_SEED = 400

# How a value stands in a binary drawing, by the last code of each range; all others are texts.
FORMS = ((9, "text"), (59, "<d"), (79, "<h"), (99, "<i"), (109, "text"), (149, "<d"), (169, "<q"), (179, "<h"),
         (239, "<d"), (289, "<h"), (299, "<B"), (309, "text"), (319, "bytes"), (369, "text"), (389, "<h"),
         (399, "text"), (409, "<h"), (419, "text"), (429, "<i"), (439, "text"), (459, "<i"), (469, "<d"),
         (1003, "text"), (1004, "bytes"), (1009, "text"), (1059, "<d"), (1070, "<h"), (1071, "<i"))


def form_of(code):
    return next((form for last, form in FORMS if code <= last), "text")


def groups_of(drawing):
    """The groups of a drawing in text form: code and value."""
    lines = drawing.replace(b"\r\n", b"\n").split(b"\n")
    return [(int(lines[i]), lines[i + 1]) for i in range(0, len(lines) - 1, 2)]


def records_of(groups):
    starts = [i for i, (code, _) in enumerate(groups) if code == 0] + [len(groups)]
    return [groups[first:last] for first, last in zip(starts, starts[1:])]


def as_text(groups, line_end=b"\n"):
    return b"".join(b"%3d" % code + line_end + value + line_end for code, value in groups)


def value_in_binary(form, value):
    if form == "text":
        return value + b"\0"
    if form == "bytes":
        raw = bytes.fromhex(value.decode())
        return bytes([len(raw)]) + raw
    return struct.pack(form, float(value) if form == "<d" else int(value))


def code_in_two_bytes(code):
    return struct.pack("<h", code)


def code_in_one_byte(code):
    """As drawings up to R12 have it."""
    return bytes([code]) if code < 255 else b"\xff" + struct.pack("<h", code)


def as_binary(groups, code_bytes=code_in_two_bytes):
    return BINARY_HEAD + b"".join(code_bytes(code) + value_in_binary(form_of(code), value) for code, value in groups)


def section(name, records):
    begin, end = [(0, b"SECTION"), (2, name)], [(0, b"ENDSEC")]
    return begin + [group for record in records for group in record] + end


def header(version, code_page=b"ANSI_1252"):
    return section(b"HEADER", [[(9, b"$ACADVER"), (1, version), (9, b"$DWGCODEPAGE"), (3, code_page)]])


def sections_of(records):
    """The sections by name, without their frames."""
    found, name = [], None
    for record in records:
        kind = record[0][1]
        if kind == b"SECTION":
            name = dict(record).get(2)
            found.append((name, [record[2:]] if len(record) > 2 else []))
        elif kind not in (b"ENDSEC", b"EOF") and name:
            found[-1][1].append(record)
    return found


def short_sections(groups):
    """Each section as far as a seed goes."""
    for name, records in sections_of(records_of(groups)):
        yield name, [group for record in records for group in record][:GROUPS_IN_SEED]


def kinds_of_record(all_drawings):
    """A record of each kind that a section has, with the section's name."""
    seen = set()
    for groups in all_drawings:
        for name, records in sections_of(records_of(groups)):
            for record in records:
                kind = (name, record[0][1]) if record else None
                if kind and kind not in seen and len(record) < GROUPS_IN_SEED:
                    seen.add(kind)
                    yield name, record


def drawings():
    """The groups of the drawings in text form."""
    for folder in DRAWINGS:
        for path in sorted(folder.glob("*.dxf")):
            drawing = path.read_bytes()
            if not drawing.startswith(BINARY_HEAD):
                yield groups_of(drawing)


def dxf_read():
    """Small drawings in all forms, new and old."""
    for name, groups in [*kinds_of_record(drawings()), *short_sections(next(drawings()))]:
        body = section(name, [groups]) + [(0, b"EOF")]
        new = header(b"AC1032") + body
        yield as_text(new)
        yield as_text(header(b"AC1015") + body, b"\r\n")
        yield as_text(body)
        yield as_binary(new)
        yield as_binary(body, code_in_one_byte)
