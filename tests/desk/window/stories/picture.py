"""Pictures of the display, looked at as arrays of pixels."""

import subprocess

from display import needed


class Picture:
    """A picture of width x height pixels of three bytes."""

    def __init__(self, ppm):
        kind, size, depth, self.pixels = ppm.split(b"\n", 3)
        assert kind == b"P6" and depth == b"255", "the picture is no binary pixmap"
        self.width, self.height = (int(number) for number in size.split())

    def at(self, x, y):
        start = (y * self.width + x) * 3
        return tuple(self.pixels[start:start + 3])

    def row(self, y, left, right):
        return self.pixels[(y * self.width + left) * 3:(y * self.width + right) * 3]

    def box_of(self, holds, box):
        """The box around all pixels within `box` for which `holds` is true: left, top, right, bottom, all of them in it."""
        left, top, right, bottom = box
        found = [(x, y) for y in range(top, bottom) for x in range(left, right) if holds(self.at(x, y))]
        assert found, "no pixel of that colour is to be seen"
        columns, rows = [x for x, _ in found], [y for _, y in found]
        return min(columns), min(rows), max(columns), max(rows)

    def first(self, holds, box):
        """The first pixel within `box`, row by row, for which `holds` is true."""
        left, top, right, bottom = box
        return next((x, y) for y in range(top, bottom) for x in range(left, right) if holds(self.at(x, y)))

    def differences(self, other, box):
        """How many pixels differ within box = (left, top, right, bottom)."""
        left, top, right, bottom = box
        count = 0
        for y in range(top, bottom):
            mine, theirs = self.row(y, left, right), other.row(y, left, right)
            if mine != theirs:
                count += sum(mine[i:i + 3] != theirs[i:i + 3] for i in range(0, len(mine), 3))
        return count


def take(display):
    """A picture of the whole display."""
    command = [needed("import"), "-display", display, "-window", "root", "-depth", "8", "ppm:-"]
    return Picture(subprocess.run(command, check=True, capture_output=True).stdout)


def save(display, path):
    """Writes a picture of the whole display as PNG."""
    subprocess.run([needed("import"), "-display", display, "-window", "root", str(path)], check=True)
