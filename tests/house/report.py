#!/usr/bin/env python3
"""report.py BUILD_FOLDER: what the last test run counted: conformance vectors, and the sizes of files and functions."""

import pathlib
import re
import sys

COUNTED = re.compile(r"^\S*?([\w.]+\.jsonl): (\d+ of \d+|\d+ vectors run, .*)$", re.MULTILINE)
SIZES = re.compile(r"^(?:source|test) (?:files|functions): .*$", re.MULTILINE)


def report(build):
    """The lines to print, from the log that ctest keeps."""
    log = build / "Testing" / "Temporary" / "LastTest.log"
    text = log.read_text(encoding="utf-8", errors="replace") if log.exists() else ""
    vectors = [f"  {name}: {count}" for name, count in COUNTED.findall(text)]
    driver = build / "bin" / "scribe_conformance"
    return [f"Conformance, driver {driver}:", *vectors, "Sizes:", *("  " + line for line in SIZES.findall(text))]


if __name__ == "__main__":
    print("\n".join(report(pathlib.Path(sys.argv[1]))))
