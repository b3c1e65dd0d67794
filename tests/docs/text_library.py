#!/usr/bin/env python3
"""Fails unless the code of docs/text-library.md is the code of examples/, from the first line of each file to the last.

A block of code names its file. The blocks of a file, one after the other, are the file: only blank lines stand between them.
"""

import pathlib
import sys

import guide

ROOT = pathlib.Path(__file__).resolve().parents[2]
CODE = ("cpp", "cmake")


def check_file(name, text, blocks):
    """What is wrong with the blocks of one file, as sentences."""
    rest = text.lstrip("\n")
    for block in blocks:
        if not rest.startswith(block.text):
            return [f"line {block.line}: this is not what comes next in {name}"]
        rest = rest[len(block.text):].lstrip("\n")
    return [f"{name} goes on behind what is shown of it: {rest.splitlines()[0]}"] if rest else []


def check(document, files):
    """What is wrong with a document, as sentences. `files` maps names to text."""
    code = [block for block in guide.blocks(document) if block.language in CODE]
    wrong = [f"line {block.line}: there is no file {block.name!r}" for block in code if block.name not in files]
    for name, text in files.items():
        wrong += check_file(name, text, [block for block in code if block.name == name])
    return wrong


def main():
    files = {f"examples/{path.name}": path.read_text(encoding="utf-8")
             for path in sorted((ROOT / "examples").iterdir()) if path.suffix in (".h", ".cpp", ".txt")}
    wrong = check((ROOT / "docs/text-library.md").read_text(encoding="utf-8"), files)
    for sentence in wrong:
        print(sentence)
    print(f"{len(files)} files compared, {len(wrong)} are wrong")
    return 1 if wrong or not files else 0


if __name__ == "__main__":
    sys.exit(main())
