#!/usr/bin/env python3
"""make_corpus.py FOLDER: writes the seeds of every fuzz target into a folder of its name below FOLDER, where they are missing."""

import hashlib
import pathlib
import sys

import drawing_seeds
import field_seeds
import font_seeds
import text_seeds

SEEDS = {
    "read_text": text_seeds.read_text,
    "text_round_trip": text_seeds.text_round_trip,
    "edit_sequence": text_seeds.edit_sequence,
    "letters_json": text_seeds.letters_json,
    "dxf_read": drawing_seeds.dxf_read,
    "dxf_draw": drawing_seeds.dxf_read,
    "fonts_read": font_seeds.fonts_read,
    "field_code": field_seeds.field_code,
    "rich_read": field_seeds.rich_read,
}


def write(folder, seeds):
    """Writes each seed under a name made of its bytes, and returns how many there are."""
    folder.mkdir(parents=True, exist_ok=True)
    named = {hashlib.sha1(seed).hexdigest(): seed for seed in seeds}
    for name, seed in named.items():
        (folder / name).write_bytes(seed)
    return len(named)


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: make_corpus.py FOLDER")
    for target, seeds in SEEDS.items():
        if write(pathlib.Path(sys.argv[1]) / target, seeds()) == 0:
            sys.exit(f"There is nothing to make seeds of {target} from.")


if __name__ == "__main__":
    main()
