#!/usr/bin/env python3
"""Prints how long files and functions are, and fails beyond the hard stops: 600 lines a file, 60 a function.

A table is a file whose first line begins with "// A table:" and says of what; its length does not count.
"""

import sys

import functions
import source_tree

FILE_STOP = 600
FUNCTION_STOP = 60
TABLE = "// A table:"


def at(numbers, share):
    """The value below which `share` of the sorted numbers lie."""
    return numbers[min(len(numbers) - 1, int(len(numbers) * share))] if numbers else 0


def line_of(name, numbers):
    numbers = sorted(numbers)
    return f"{name}: {len(numbers)}, lines median {at(numbers, 0.5)}, p90 {at(numbers, 0.9)}, longest {at(numbers, 1)}"


def measure(files):
    """Lengths of files and functions, and sentences on what is too long. `files` maps paths to their text."""
    file_lengths, function_lengths, too_long = [], [], []
    for path, text in files.items():
        if text.startswith(TABLE):
            continue
        length = text.count("\n")
        file_lengths.append(length)
        if length > FILE_STOP:
            too_long.append(f"{path} has {length} lines, {FILE_STOP} are the stop")
        for first, lines in functions.function_lines(text):
            function_lengths.append(lines)
            if lines > FUNCTION_STOP:
                too_long.append(f"{path}:{first}: a function of {lines} lines, {FUNCTION_STOP} are the stop")
    return file_lengths, function_lengths, too_long


def main():
    too_long = []
    for name, folders in (("source", source_tree.FLOORS), ("test", ("tests", "fuzz"))):
        files = {str(path): (source_tree.ROOT / path).read_text(encoding="utf-8")
                 for path in source_tree.sources(folders)}
        file_lengths, function_lengths, found = measure(files)
        print(line_of(f"{name} files", file_lengths))
        print(line_of(f"{name} functions", function_lengths))
        too_long += found
    for sentence in too_long:
        print(sentence)
    return 1 if too_long else 0


if __name__ == "__main__":
    sys.exit(main())
