"""Finds the functions of a C++ file and counts their lines, by braces and not by grammar."""

import re

NOISE = re.compile(
    r'R"(?P<mark>[^(\s]*)\((?:.|\n)*?\)(?P=mark)"'  # raw string
    r'|"(?:\\.|[^"\\\n])*"'
    r"|(?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])+'"
    r"|//[^\n]*"
    r"|/\*(?:.|\n)*?\*/"
    r"|^[ \t]*#(?:[^\n]*\\\n)*[^\n]*",
    re.MULTILINE)
CONTAINER = re.compile(r"\b(namespace|class|struct|union|enum)\b[^()]*$|\bextern\s*$|\bextern\s*\"\"\s*$")
INITIALISER = re.compile(r"(\)\s*(noexcept\s*)?:(?!:)|,)\s*[\w:<>, ]*\w$")


def without_noise(text):
    """The text with comments, strings and preprocessor lines emptied; its lines stay."""
    return NOISE.sub(lambda m: "\n" * m.group().count("\n"), text)


def kind_of(head):
    """What a brace opens behind `head`, the text since the last statement."""
    head = head.strip()
    if CONTAINER.search(head):
        return "container"
    if re.search(r"\)\s*(noexcept\s*)?:(?!:)", head) and INITIALISER.search(head):
        return "initialiser"
    if "(" in head and not re.search(r"=\s*$", head):
        return "function"
    return "other"


def function_lines(text):
    """(first line, number of lines) of each function body that does not lie in another one."""
    text = without_noise(text)
    found, stack, head, line = [], [], "", 1
    for sign in text:
        inside = any(kind in ("function", "other") for kind, _, _ in stack)
        if sign == "\n":
            line += 1
        if sign == "{":
            kind = "other" if inside else kind_of(head)
            first = line - head.lstrip().count("\n")
            stack.append((kind, first, head))
            head = ""
        elif sign == "}" and stack:
            kind, first, before = stack.pop()
            if kind == "function":
                found.append((first, line - first + 1))
            head = before + "()" if kind == "initialiser" else ""
        elif sign == ";":
            head = ""
        else:
            head = head + sign
    return found
