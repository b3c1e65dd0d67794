"""The fenced blocks of a Markdown document."""

import dataclasses
import re

FENCE = re.compile(r"^```(\w*) ?(.*)\n((?:.*\n)*?)```$", re.MULTILINE)


@dataclasses.dataclass
class Block:
    language: str
    name: str  # what follows the language: a file, or a program
    text: str  # whole lines
    line: int  # of the opening fence, from 1


def blocks(document):
    return [Block(match[1], match[2], match[3], document.count("\n", 0, match.start()) + 1)
            for match in FENCE.finditer(document)]
