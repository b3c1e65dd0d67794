"""The files of the source tree that the checks of the house read."""

import pathlib

ROOT = pathlib.Path(__file__).resolve().parents[2]
FLOORS = ("od", "mtext", "host", "micui", "editor", "ui", "commands", "desk")


def sources(folders):
    """Every C++ file below the folders, sorted, as paths from the root."""
    for folder in folders:
        for path in sorted((ROOT / folder).rglob("*")):
            if path.suffix in (".h", ".cpp"):
                yield path.relative_to(ROOT)
