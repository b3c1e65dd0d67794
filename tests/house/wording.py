#!/usr/bin/env python3
"""Fails when a tracked file carries a path of somebody's machine, a mark of unfinished work, or a test that is switched off.

The vectors, the protocol and the checker in tests/conformance are copies and stay as they came.
"""

import re
import subprocess
import sys

import source_tree

# The words are put together here so that this file does not carry them itself.
FORBIDDEN = {
    "a path of a machine": r"(?<![\w.:/])/(work|root|home/\w+|tmp/briefs)/",
    "a mark of unfinished work": r"\b(TO" + r"DO|FIX" + r"ME|XX" + r"X)\b",
    "a test that is switched off": r"GTEST_" + r"SKIP|DISABLED" + r"_|QSK" + r"IP",
    "the name of a text that is not in the tree": r"\bspec" + r"\.md\b|\bPart" + r" [1-7]\.[1-9]\b",
    "the host of a package registry": r"deb\." + r"debian|pypi" + r"\.org|registry\." + r"npm",
}
COPIES = ("tests/conformance/PROTOCOL.md", "tests/conformance/check.py", "tests/conformance/vectors/")


def check(path, text):
    """What is wrong with a file, as sentences."""
    return [f"{path}:{text.count(chr(10), 0, match.start()) + 1}: {what}: {match.group().strip()}"
            for what, pattern in FORBIDDEN.items() for match in re.finditer(pattern, text)]


def tracked_files():
    listed = subprocess.run(["git", "-c", f"safe.directory={source_tree.ROOT}", "ls-files", "-z"], cwd=source_tree.ROOT,
                            stdout=subprocess.PIPE, check=True)
    return [name for name in listed.stdout.decode().split("\0") if name and not name.startswith(COPIES)]


def main():
    wrong, read = [], 0
    for name in tracked_files():
        path = source_tree.ROOT / name
        if not path.is_file():
            continue
        try:
            text = path.read_text(encoding="utf-8")
        except UnicodeDecodeError:
            continue
        read += 1
        wrong += check(name, text)
    for sentence in wrong:
        print(sentence)
    print(f"{read} files read, {len(wrong)} words are wrong")
    return 1 if wrong or not read else 0


if __name__ == "__main__":
    sys.exit(main())
