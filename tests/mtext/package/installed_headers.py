#!/usr/bin/env python3
"""installed_headers.py BUILD COMPILER [FLAG...]: fails unless the installed headers are whole, and compile without the source tree.

Whole: what a header includes is installed or of Boost or of the standard library, and what is of `od` is there for a header of `mtext`.
"""

import pathlib
import re
import subprocess
import sys

import installed

# For programs at the text's own edges, which recode texts and make the codes of fields, though no header of mtext needs them.
FOR_PROGRAMS = {"od/base/unicode.h", "od/field/evaluator_name.h", "od/field/field_markers.h"}
INCLUDE = re.compile(r'^#include ([<"])([^>"]+)[>"]', re.MULTILINE)


def reached(names, headers):
    """All that the headers of these names include, they themselves too."""
    found, open_names = set(), list(names)
    while open_names:
        name = open_names.pop()
        if name in found:
            continue
        found.add(name)
        open_names += [included for kind, included in INCLUDE.findall(headers.get(name, "")) if kind == '"']
    return found


def check(headers):
    """What is wrong with the headers, as sentences."""
    needed = reached([name for name in headers if name.startswith("mtext/")], headers)
    wrong = [f"{name} is included and not installed" for name in sorted(needed - set(headers))]
    wrong += [f"{name} is installed and of no use" for name in sorted(set(headers) - needed - FOR_PROGRAMS)]
    for name, text in headers.items():
        wrong += [f"{name} includes <{included}>, which is neither Boost nor standard"
                  for kind, included in INCLUDE.findall(text)
                  if kind == "<" and not re.fullmatch(r"boost/.*|[a-z_]+", included)]
    return wrong


def compile_errors(headers, prefix, compiler):
    """What the compiler says to all of them together, strictly."""
    options = ["-std=c++20", "-fsyntax-only", "-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Werror", "-x", "c++", "-"]
    unit = "".join(f'#include "{name}"\n' for name in sorted(headers, reverse=True))
    done = subprocess.run([*compiler, f"-I{prefix / 'include/scribe'}", *options], cwd=prefix, input=unit, text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return [done.stdout] if done.returncode else []


def main():
    with installed.installed(pathlib.Path(sys.argv[1]).resolve()) as prefix:
        headers = installed.headers(prefix)
        wrong = check(headers) or compile_errors(headers, prefix, sys.argv[2:])
    for sentence in wrong:
        print(sentence)
    print(f"{len(headers)} headers read, {len(wrong)} are wrong")
    return 1 if wrong or not headers else 0


if __name__ == "__main__":
    sys.exit(main())
