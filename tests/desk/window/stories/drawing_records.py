"""Drawings as lists of records, to see what an edit changed."""


def records(path):
    """The records of a drawing in text form: from one group 0 to the next, as lists of (code, value)."""
    lines = path.read_bytes().split(b"\n")
    found = []
    for at in range(0, len(lines) - 1, 2):
        code, value = lines[at].strip(), lines[at + 1].rstrip(b"\r")
        if code == b"0" or not found:
            found.append([])
        found[-1].append((code, value))
    return found


def changed(before, after):
    """The pairs of records that differ; both drawings have to have the same number of records."""
    old, new = records(before), records(after)
    assert len(old) == len(new), f"{len(old)} records became {len(new)}"
    return [(a, b) for a, b in zip(old, new) if a != b]


def contents(path):
    """The contents of all multi-line texts of a drawing, one after the other: the columns of a text are some of their own."""
    return b"".join(text_of(record) for record in records(path) if record[0] == (b"0", b"MTEXT")).decode("utf-8")


def text_of(record):
    """The contents of a multi-line text."""
    return b"".join(value for code, value in record if code in (b"1", b"3"))
