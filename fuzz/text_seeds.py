"""Seeds of the text targets, made of the texts of the conformance vectors."""

import hashlib
import json
import pathlib

VECTORS = pathlib.Path(__file__).resolve().parents[1] / "tests" / "conformance" / "vectors"
TEXT_MEMBERS = ("text", "contents")


def requests():
    """The arguments of every vector."""
    for path in sorted(VECTORS.glob("*.jsonl")):
        for line in path.read_text(encoding="utf-8").splitlines():
            yield json.loads(line)


def texts():
    """Every format-code string that stands in a vector, as an argument or as a result, in UTF-8."""
    found = set()
    for vector in requests():
        for owner in (vector["in"], vector.get("out") or {}):
            found.update(owner[name] for name in TEXT_MEMBERS if isinstance(owner.get(name), str))
    return sorted(text.encode("utf-8", "replace") for text in found)


def spread(text, count):
    """Bytes that look like chance, the same ones in every run."""
    out = b""
    while len(out) < count:
        out += hashlib.sha1(text + out).digest()
    return out[:count]


def read_text():
    for text in texts():
        yield spread(text, 1) + text


def text_round_trip():
    for text in texts():
        yield bytes(8) + text
        yield spread(text, 8) + text


def pieces(text, size=40):
    """The text in pieces that begin and end with whole characters."""
    characters = text.decode("utf-8", "replace")
    return [characters[i:i + size // 4].encode() for i in range(0, len(characters), size // 4)]


def edit_sequence():
    """Each text is appended piece by piece; steps as they come follow, or places where a piece is typed over what stands there."""
    append, type_over = bytes([0, 1, 0]), bytes([0, 7])
    for text in texts():
        written = b"".join(append + bytes([len(piece)]) + piece for piece in pieces(text))
        yield spread(text, 7) + written + spread(text + b"steps", 60)
        typed = b"".join(type_over + spread(text + piece, 2) + bytes([0, len(piece)]) + piece for piece in pieces(text))
        yield bytes([0, 1, 0, 0, 0, 0, 0]) + written + typed


def letters_json():
    for vector in requests():
        dictionary = vector["in"].get("dictionary")
        if not dictionary:
            continue
        members = ("name", "lower", "upper")
        letters = {each["key"]: {name: each.get(name, "") for name in members} for each in dictionary}
        yield json.dumps(letters).encode()
        yield json.dumps(letters, ensure_ascii=False, indent=2).encode("utf-8", "replace")
