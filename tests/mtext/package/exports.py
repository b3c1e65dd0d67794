#!/usr/bin/env python3
"""exports.py BUILD: fails unless the shared library exports what its installed headers declare, and no more.

The static library holds everything. Its functions whose name a header declares have to be found in the shared one too; what is strong
in the shared one has to be declared.
"""

import pathlib
import re
import subprocess
import sys

import installed


def symbols(library, *options):
    """Strong symbols of a library for all to see: the whole name with its arguments."""
    done = subprocess.run(["nm", "--demangle", "--defined-only", "--extern-only", *options, library], check=True,
                          stdout=subprocess.PIPE, text=True)
    return set(re.findall(r"^[0-9a-f]+ [TDBR] (.*)$", done.stdout, re.MULTILINE))


def short_name(symbol):
    """`insert` of `mtext::geom_multitext::insert(unsigned long)`; None for what is no function."""
    match = re.match(r"(?:\w+::)*(operator\W+|~?\w+)\(", re.sub(r"\[abi:\w+\]", "", symbol))
    return match and match[1]


def declared(symbol, headers):
    return any(re.search(rf"(?<![\w:]){re.escape(short_name(symbol))}\(", text) for text in headers.values())


def check(static, shared, headers):
    """What is wrong with the exports, as sentences."""
    wrong = [f"declared and not exported: {symbol}" for symbol in sorted(filter(short_name, static - shared))
             if declared(symbol, headers)]
    wrong += [f"exported and not declared: {symbol}" for symbol in sorted(filter(short_name, shared))
              if not declared(symbol, headers)]
    return wrong


def main():
    with installed.installed(pathlib.Path(sys.argv[1]).resolve()) as prefix:
        shared = symbols(prefix / "lib/libmtext.so", "--dynamic")
        wrong = check(symbols(prefix / "lib/libmtext.a"), shared, installed.headers(prefix))
    for sentence in wrong:
        print(sentence)
    print(f"{len(shared)} exports read, {len(wrong)} are wrong")
    return 1 if wrong or not shared else 0


if __name__ == "__main__":
    sys.exit(main())
