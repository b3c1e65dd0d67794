#!/usr/bin/env python3
"""Prove that the conformance files here are those of the shared folder: same_vectors.py HERE SHARED

Exits 1 when a file differs, is missing here, or stands here without its original. Without the shared folder there is nothing to
compare with: it says so in one line.
"""
import pathlib
import sys


def protocol_files(root):
    files = [root / "PROTOCOL.md", root / "check.py", *(root / "vectors").glob("*.jsonl")]
    return {f.relative_to(root): f.read_bytes() for f in files if f.exists()}


def main():
    here, shared = map(pathlib.Path, sys.argv[1:3])
    if not shared.is_dir():
        print(f"no shared folder at {shared}: the files here stand for themselves")
        return 0
    ours, theirs = protocol_files(here), protocol_files(shared)
    wrong = sorted(str(name) for name in ours.keys() | theirs.keys() if ours.get(name) != theirs.get(name))
    for name in wrong:
        print(f"differs from the shared one: {name}")
    print(f"{len(theirs)} shared files, {len(wrong)} differ")
    return 1 if wrong or not theirs else 0


if __name__ == "__main__":
    sys.exit(main())
