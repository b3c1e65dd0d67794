"""Small drawings that a story writes itself: a sheet with a red edge, and one multi-line text on it."""

import dataclasses
import math

RED = 1
LINKED, EMBEDDED = "AC1021", "AC1032"  # versions: where columns are texts that are linked, and where they are not


@dataclasses.dataclass
class Text:
    """A multi-line text. Lengths are drawing units, the turn is in degrees; attachment 1 is top left, 9 bottom right.
    Columns are static ones, all of one height; in drawings before R2018 each is a text of its own, and all stands in
    the first."""

    contents: str
    at: tuple = (10, 60)
    height: float = 2.5
    width: float = 60
    attachment: int = 1
    turn: float = 0
    columns: int = 1
    gutter: float = 5
    column_height: float = 20

    def groups(self, version):
        """The text's groups, in the form of a drawing of that version."""
        if self.columns > 1 and version >= EMBEDDED:
            yield from [*self.own_groups(0xA5, self.at, self.contents), *self.embedded_groups()]
            return
        yield from self.own_groups(0xA5, self.at, self.contents)
        if self.columns == 1:
            return
        yield from self.column_groups()
        turn = math.radians(self.turn)
        for i in range(1, self.columns):
            along = (self.width + self.gutter) * (i - (self.attachment - 1) % 3 / 2 * (self.columns - 1))
            place = self.at[0] + along * math.cos(turn), self.at[1] + along * math.sin(turn)
            yield from [*self.own_groups(0xA5 + i, place, ""), (1001, "ACAD"), *self.height_groups()]

    def own_groups(self, handle, at, contents):
        turn = math.radians(self.turn)
        yield from [(0, "MTEXT"), (5, f"{handle:X}"), (100, "AcDbEntity"), (8, "0"), (100, "AcDbMText")]
        yield from [(10, at[0]), (20, at[1]), (30, 0), (40, self.height), (41, self.width)]
        yield from [(46, self.column_height if self.columns > 1 else 0), (71, self.attachment), (72, 1)]
        yield from [(1, contents), (11, math.cos(turn)), (21, math.sin(turn)), (31, 0), (73, 1), (44, 1)]

    def embedded_groups(self):
        turn = math.radians(self.turn)
        yield from [(101, "Embedded Object"), (70, self.attachment), (10, math.cos(turn)), (20, math.sin(turn)), (30, 0)]
        yield from [(11, self.at[0]), (21, self.at[1]), (31, 0), (40, self.width), (41, self.column_height)]
        yield from [(42, (self.width + self.gutter) * self.columns - self.gutter), (43, self.column_height), (71, 1)]
        yield from [(72, self.columns), (44, self.width), (45, self.gutter), (73, 0), (74, 0)]

    def column_groups(self):
        yield from [(1001, "ACAD"), (1000, "ACAD_MTEXT_COLUMN_INFO_BEGIN")]
        for code, value in [(75, 1), (79, 0), (76, self.columns), (78, 0)]:
            yield from [(1070, code), (1070, value)]
        for code, value in [(48, self.width), (49, self.gutter)]:
            yield from [(1070, code), (1040, value)]
        yield from [(1000, "ACAD_MTEXT_COLUMN_INFO_END"), (1000, "ACAD_MTEXT_COLUMNS_BEGIN")]
        yield from [(1070, 47), (1070, self.columns)]
        for i in range(1, self.columns):
            yield 1005, f"{0xA5 + i:X}"
        yield 1000, "ACAD_MTEXT_COLUMNS_END"
        yield from self.height_groups()

    def height_groups(self):
        yield from [(1000, "ACAD_MTEXT_DEFINED_HEIGHT_BEGIN"), (1070, 46), (1040, self.column_height)]
        yield 1000, "ACAD_MTEXT_DEFINED_HEIGHT_END"


class Sheet:
    """A sheet with its edge drawn in red, so that a story finds the drawing's points on the display."""

    def __init__(self, text, width=120, height=70, version=LINKED):
        self.text, self.width, self.height, self.version = text, width, height, version

    def write(self, path):
        lines = [f"{code}\n{value}\n" for code, value in self.groups()]
        path.write_text("".join(lines), encoding="utf-8")

    def groups(self):
        yield from [(0, "SECTION"), (2, "HEADER"), (9, "$ACADVER"), (1, self.version), (0, "ENDSEC")]
        yield from [(0, "SECTION"), (2, "ENTITIES")]
        corners = [(0, 0), (self.width, 0), (self.width, self.height), (0, self.height)]
        for number, corner in enumerate(corners):
            yield from [(0, "LINE"), (5, f"A{number}"), (100, "AcDbEntity"), (8, "0"), (62, RED), (100, "AcDbLine")]
            yield from [(10, corner[0]), (20, corner[1]), (30, 0)]
            end = corners[(number + 1) % 4]
            yield from [(11, end[0]), (21, end[1]), (31, 0)]
        yield from self.text.groups(self.version)
        yield from [(0, "ENDSEC"), (0, "EOF")]


class Places:
    """Where points of a sheet are on the display, read from the red edge in a picture."""

    def __init__(self, picture, sheet):
        self.sheet = sheet
        whole = (0, 0, picture.width, picture.height)
        self.left, self.top, self.right, self.bottom = picture.box_of(is_red, whole)

    def pixel(self, x, y):
        """The pixel of a point of the drawing."""
        across = (self.right - self.left) / self.sheet.width
        down = (self.bottom - self.top) / self.sheet.height
        return round(self.left + x * across), round(self.bottom - y * down)

    def in_text(self, x, y, text=None):
        """The pixel of a point in coordinates of the text: from its top left corner, y upwards."""
        text = text or self.sheet.text
        turn = math.radians(text.turn)
        total = text.width * text.columns + text.gutter * (text.columns - 1)
        x -= total / 2 * ((text.attachment - 1) % 3)
        return self.pixel(text.at[0] + x * math.cos(turn) - y * math.sin(turn),
                          text.at[1] + x * math.sin(turn) + y * math.cos(turn))

    @property
    def pixels_per_unit(self):
        return (self.right - self.left) / self.sheet.width


def is_letter(pixel):
    """Whether a pixel is one of the text, which is white."""
    return min(pixel) > 200


def is_red(pixel):
    red, green, blue = pixel
    return red > 150 and green < 90 and blue < 90
