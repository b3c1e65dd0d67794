#!/usr/bin/env python3
"""Run vectors of which not all are answered yet: at_least.py NUMBER DRIVER FILE

Prints how many are left, and fails when fewer than NUMBER pass: what was answered once has to stay answered.
"""
import pathlib
import re
import subprocess
import sys


def main():
    wanted, driver, vectors = int(sys.argv[1]), sys.argv[2], sys.argv[3]
    check = pathlib.Path(__file__).with_name("check.py")
    run = subprocess.run([sys.executable, str(check), driver, vectors], capture_output=True, text=True)
    print(run.stdout, end="")
    counts = re.search(r"(\d+) passed, (\d+) failed\s*$", run.stdout)
    if not counts:
        print(run.stderr, end="")
        return 1
    passed, left = map(int, counts.groups())
    print(f"{pathlib.Path(vectors).name}: {left} vectors left; {wanted} have to pass")
    return 0 if passed >= wanted else 1


if __name__ == "__main__":
    sys.exit(main())
