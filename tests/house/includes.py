#!/usr/bin/env python3
"""Reads every #include of the tree and tells those that the house forbids.

An include runs downwards: to a lower floor, to a lower folder inside od, never in a circle of folders. A toolkit is known to ui and
desk alone. Without arguments the tree is checked; exit 1 if anything is wrong.
"""

import pathlib
import re
import sys

import source_tree

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^">]+)[">]', re.MULTILINE)
OD_FOLDERS = ("base", "ge", "cm", "field", "evaluate", "fonts", "gi", "dxf", "db")
TOOLKIT = re.compile(r"^(Q[A-Z]\w*$|Qt\w*/|X11/|xcb/|gtk|gdk|wayland|windows\.h$|GL/)")

# What each floor may include beside itself. The desk loads the module at run time and knows nothing of its inside.
ALLOWED = {
    "od": (),
    "mtext": ("od",),
    "host": ("od",),
    "micui": ("od",),
    "editor": ("od", "mtext", "host", "micui"),
    "ui": ("od", "mtext", "host", "micui", "editor"),
    "commands": ("od", "mtext", "host", "micui", "editor", "ui"),
    "desk": ("od", "mtext", "host"),
}
WITH_TOOLKIT = ("ui", "desk")
# The text library stands alone but for these; only its bridge to entities knows the whole drawing library.
OD_FOR_MTEXT = ("base", "field")


def folder_of(path):
    return str(pathlib.PurePosixPath(path).parent)


def breaks_floor(file, included):
    """The rule that an include of a file of the tree breaks, or None."""
    here, there = pathlib.PurePosixPath(file).parts, pathlib.PurePosixPath(included).parts
    if there[0] not in source_tree.FLOORS:
        return "is not a path from the root"
    if here[0] != there[0]:
        if there[0] not in ALLOWED[here[0]]:
            return f"runs upwards from {here[0]} to {there[0]}"
        if here[0] == "mtext" and here[1] != "entity" and there[1] not in OD_FOR_MTEXT:
            return f"takes od/{there[1]} into the text library"
        return None
    if here[0] == "od" and len(there) > 2 and OD_FOLDERS.index(there[1]) > OD_FOLDERS.index(here[1]):
        return f"runs upwards from od/{here[1]} to od/{there[1]}"
    return None


def breaks_rule(file, kind, included, exists):
    if kind == '"':
        return breaks_floor(file, included) or (None if exists(included) else "names no file")
    if TOOLKIT.match(included) and pathlib.PurePosixPath(file).parts[0] not in WITH_TOOLKIT:
        return "brings in a toolkit"
    return None


def circles(arrows):
    """Folders that include each other in a circle, one list a circle. Arrows: folder to the set of folders it includes."""
    index, low, stack, found = {}, {}, [], []
    for root in sorted(arrows):
        if root in index:
            continue
        work = [(root, iter(sorted(arrows[root])))]
        index[root] = low[root] = len(index)
        stack.append(root)
        while work:
            folder, targets = work[-1]
            for target in targets:
                if target not in index:
                    index[target] = low[target] = len(index)
                    stack.append(target)
                    work.append((target, iter(sorted(arrows.get(target, ())))))
                    break
                if target in stack:
                    low[folder] = min(low[folder], index[target])
            else:
                work.pop()
                if work:
                    low[work[-1][0]] = min(low[work[-1][0]], low[folder])
                if low[folder] == index[folder]:
                    circle = stack[stack.index(folder):]
                    del stack[stack.index(folder):]
                    if len(circle) > 1:
                        found.append(sorted(circle))
    return found


def check(files):
    """What is wrong with a tree, as sentences. `files` maps paths from the root to their text."""
    wrong, arrows = [], {}
    for file, text in files.items():
        arrows.setdefault(folder_of(file), set())
        for kind, included in INCLUDE.findall(text):
            rule = breaks_rule(file, kind, included, files.__contains__)
            if rule:
                wrong.append(f'{file}: the include of {included} {rule}')
            elif kind == '"' and folder_of(included) != folder_of(file):
                arrows[folder_of(file)].add(folder_of(included))
    wrong += ["these folders include each other in a circle: " + ", ".join(circle) for circle in circles(arrows)]
    return wrong


def main():
    files = {str(path): (source_tree.ROOT / path).read_text(encoding="utf-8")
             for path in source_tree.sources(source_tree.FLOORS)}
    wrong = check(files)
    for sentence in wrong:
        print(sentence)
    print(f"{len(files)} files read, {len(wrong)} includes or circles are wrong")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
