"""A person drags the handles of a text: its width, the height and the gutter of its columns, the dot, a corner; sets,
moves and removes a tab stop; and drags the three indents. Each drag is undone, and the view looks as before.

The text is one of those below: with one column or two, turned, centred, and on a display of double density.
"""

import sys

import drawing_records
import made_drawing
import story
from desk import Desk

WORDS = "Hall and stairs up to the roof and down to the cellar, with a landing at every floor"
TEXTS = {
    "one_column": made_drawing.Text(WORDS, width=40),
    "two_columns": made_drawing.Text(WORDS, width=30, columns=2, column_height=25),
    "turned": made_drawing.Text(WORDS, at=(15, 30), width=40, turn=20),
    "facing": made_drawing.Text(WORDS, at=(30, 30), width=40, turn=30),
    "centred": made_drawing.Text(WORDS, at=(60, 60), width=40, attachment=2),
    "double_density": made_drawing.Text(WORDS, width=30, columns=2, column_height=25),
}


LINE_OF_A_FACING_TEXT = 13  # pixels


class FacingPlaces:
    """Where points of a text are that is shown facing the screen: below its ruler, at a size that can be read."""

    def __init__(self, picture, box, text):
        left, _, _, bottom = picture.box_of(lambda pixel: pixel == (149, 164, 191), box)
        self.origin = left + 20, bottom + 4
        self.pixels_per_unit = LINE_OF_A_FACING_TEXT / text.height

    def in_text(self, x, y):
        return (round(self.origin[0] + x * self.pixels_per_unit), round(self.origin[1] - y * self.pixels_per_unit))


class Hand:
    """Drags gadgets that are told in pixels of the gadgets and in drawing units from the top left of the text."""

    def __init__(self, desk, places, text, options, density):
        self.desk, self.places, self.text, self.options = desk, places, text, options
        self.pixel = density / places.pixels_per_unit
        self.step = 0

    def at(self, x, y, right=0, up=0):
        """A point of the text, and from there as many pixels of the gadgets to the right and up."""
        return self.places.in_text(x + right * self.pixel, y + up * self.pixel)

    def drag(self, name, begin, *ways, least=200):
        """Drags, looks at it before and after the release, takes it back, and compares."""
        self.step += 1
        self.desk.key("Prior")  # ends the run of drags, so that this one is an undo step of its own
        before = self.desk.settle()
        self.desk.press(*begin)
        self.desk.move(*ways)
        during = self.desk.until_changed(before, f"{name}: nothing follows the mouse", least=least)
        self.keep(f"{name}-dragged")
        self.desk.release()
        self.desk.settle()
        self.keep(f"{name}-done")
        self.take_back(name, before)
        return during

    def take_back(self, name, before):
        for _ in range(4):
            self.desk.key("ctrl+z")
            if self.desk.comes_to(before):
                return
        raise AssertionError(f"{name}: undo does not lead back to what was before")

    def keep(self, name):
        story.keep_picture(self.desk, self.options, f"{self.step:02}-{name}.png")


def drag_box(hand):
    text = hand.text
    total = text.width * text.columns + text.gutter * (text.columns - 1)
    sizer = hand.at(total, 0, right=10, up=16)
    hand.drag("width", sizer, hand.at(total + 4, 0, right=10, up=16), hand.at(total + 8, 0, up=16))
    depth = text.column_height if text.columns > 1 else 0
    height = hand.at(0, -depth, up=-4)
    hand.drag("height", height, hand.at(0, -depth - 3), hand.at(0, -depth - 6), least=100)
    hand.drag("corner", hand.at(text.width, -depth, right=-3, up=3),
              hand.at(text.width - 2, -depth - 3), hand.at(text.width - 6, -depth - 6))
    if text.columns > 1:
        dot = hand.at(text.width, 0, right=4.5, up=12)
        hand.drag("dot", dot, hand.at(text.width - 3, 0, up=12), hand.at(text.width - 6, 0, up=12))


def drag_ruler(hand):
    stop = hand.at(10, 0, up=14)
    moved = hand.at(20, 0, up=14)
    hand.drag("stop", stop, hand.at(15, 0, up=14), moved, least=20)
    hand.desk.drag(stop, moved)
    hand.drag("stop-removed", moved, hand.at(20, 0, up=20), hand.at(20, -14), least=20)
    hand.drag("first-line", hand.at(0, 0, up=24), hand.at(5, 0, up=24), hand.at(7.5, 0, up=24))
    hand.drag("left", hand.at(0, 0, right=2, up=11), hand.at(5, 0, up=11), hand.at(7.5, 0, up=11))
    hand.drag("right", hand.at(hand.text.width, 0, right=-2, up=11), hand.at(hand.text.width - 5, 0, up=11),
              hand.at(hand.text.width - 7.5, 0, up=11))


def check_saved(drawing, columns):
    """Only the stop that was left in place is new, in each column that has text: all else was taken back."""
    pairs = drawing_records.changed(drawing.with_name("drawing.dxf.bak"), drawing)
    assert 1 <= len(pairs) <= columns, f"{len(pairs)} records changed"
    rest = lambda record: [group for group in record if group[0] != b"1"]
    written = ""
    for before, after in pairs:
        assert rest(before) == rest(after), "more than the contents changed"
        text = drawing_records.text_of(after).decode("utf-8")
        assert text.startswith("\\pxt8;"), text
        written += text.removeprefix("\\pxt8;")
    assert written == WORDS, written


def main():
    name = sys.argv.pop(1)
    options = story.arguments()
    text = TEXTS[name]
    sheet = made_drawing.Sheet(text)
    drawing = story.made(options.folder, sheet)
    density = 2 if name == "double_density" else 1
    with Desk(options.program, drawing, options.folder, density=density) as desk:
        shown = desk.settle()
        places = made_drawing.Places(shown, sheet)
        desk.click(*shown.first(made_drawing.is_letter, desk.view_box()), repeat=2)
        desk.until_changed(shown, "no session is to be seen", least=2000)
        opened = desk.settle()
        if name == "facing":
            places = FacingPlaces(opened, desk.view_box(), text)
        hand = Hand(desk, places, text, options, density)
        drag_box(hand)
        drag_ruler(hand)
        desk.key("ctrl+Return")
        desk.line("Save")
        desk.wait_until_saved(drawing)
        check_saved(drawing, text.columns)
        assert desk.quit() == 0, "the program did not end well"


main()
