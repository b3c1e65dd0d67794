#!/usr/bin/env python3
"""documented.py BUILD: fails unless every name that the installed headers declare is told what it means.

A declaration is told by a `///` above it or behind it, or by that of the declaration right above it, without a blank line between. Those
that say nothing new need none: constructors, what is defaulted or deleted or overrides, assignments and hidden friends.
"""

import pathlib
import re
import sys

import installed

NEEDS_NONE = re.compile(r"= (default|delete);| override|\boperator=\(|^(friend|template|public|private|protected|namespace|return)\b"
                        r"|^\W|^(class|struct) \w+;$")
TYPE = re.compile(r"^(?:class|struct) (?:SCRIBE_EXPORT )?(\w+)\b.*\{")
DECLARATION = re.compile(r"^(#define|[\w:<>,*& ]+[ *&](operator\W+|\w+)(\(| =|;|\{)|using \w+ =|(class|struct|enum) )")


def is_constructor(line, type_name):
    return bool(re.match(rf"(explicit )?~?{type_name}\(", line)) if type_name else False


def undocumented(text):
    """The line numbers of declarations that nothing is said about."""
    lacking, told, hidden, type_name, indent = [], False, False, None, 0
    for number, line in enumerate(text.splitlines(), 1):
        words, depth = line.strip(), len(line) - len(line.lstrip())
        if depth == 0 and words == "};":
            hidden, type_name, indent = False, None, 0
        if re.match(r"(public|private):", words):
            hidden = words.startswith("private")
        if not words or words.startswith("///"):
            told = bool(words)
        elif depth <= indent and not hidden and not NEEDS_NONE.search(words) and not is_constructor(words, type_name):
            told = told or "///<" in line
            if DECLARATION.match(words) and not told:
                lacking.append(number)
        if depth == 0 and TYPE.match(words):
            type_name, indent, told = TYPE.match(words)[1], 2, False
    return lacking


def main():
    with installed.installed(pathlib.Path(sys.argv[1]).resolve()) as prefix:
        headers = installed.headers(prefix)
    lacking = [(name, number) for name, text in headers.items() for number in undocumented(text)]
    for name, number in lacking:
        print(f"{name}:{number}: nothing is said about this: {headers[name].splitlines()[number - 1].strip()}")
    print(f"{len(headers)} headers read, {len(lacking)} declarations lack a word")
    return 1 if lacking or not headers else 0


if __name__ == "__main__":
    sys.exit(main())
