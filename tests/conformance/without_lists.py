#!/usr/bin/env python3
"""Run the vectors of the given files that number no lists: without_lists.py DRIVER FILE...

A vector numbers lists when one of its steps bears one of the names below; nothing else leaves a vector out. Prints how many were
left out, and exits as check.py does on the rest.
"""
import json
import pathlib
import subprocess
import sys
import tempfile

LIST_STEPS = {
    "mark_numberings",
    "update_numberings",
    "update_numbering",
    "indent_numbering",
    "clear_numbering",
    "clean_numbering_format",
}


def numbers_lists(vector):
    return any(step.get("do") in LIST_STEPS for step in vector["in"].get("steps", []))


def main():
    driver, files = sys.argv[1], sys.argv[2:]
    check = pathlib.Path(__file__).with_name("check.py")
    with tempfile.TemporaryDirectory() as folder:
        kept_files = []
        for name in map(pathlib.Path, files):
            lines = [line for line in name.read_text(encoding="utf-8").splitlines() if line.strip()]
            kept = [line for line in lines if not numbers_lists(json.loads(line))]
            kept_file = pathlib.Path(folder) / name.name
            kept_file.write_text("\n".join(kept) + "\n", encoding="utf-8")
            kept_files.append(str(kept_file))
            print(f"{name.name}: {len(kept)} vectors run, {len(lines) - len(kept)} left because they number lists", flush=True)
        return subprocess.run([sys.executable, str(check), driver, *kept_files]).returncode


if __name__ == "__main__":
    sys.exit(main())
