"""A person drags the handles of a text in columns and types into it, saves, and finds all of it again the next day.

Once in a drawing whose columns are linked texts, once in one that keeps them in the text itself: each keeps its form.
"""

import sys

import drawing_records
import made_drawing
import story
from desk import Desk

VERSIONS = {"linked": made_drawing.LINKED, "embedded": made_drawing.EMBEDDED}
WORDS = "Hall and stairs up to the roof and down to the cellar, with a landing at every floor"
COLUMNS = 3


def open_text(desk, shown):
    desk.click(*shown.first(made_drawing.is_letter, desk.view_box()), repeat=2)
    desk.until_changed(shown, "no session is to be seen", least=2000)
    desk.key("ctrl+Home")
    return desk.settle()


def drag(desk, name, begin, end):
    before = desk.settle()
    desk.drag(begin, end)
    desk.until_changed(before, f"{name}: nothing follows the mouse", least=200)
    desk.settle()


def drag_columns(desk, places, text):
    """Makes the columns narrower by the dot, then lower by the handle at the foot of the first."""
    pixel = 1 / places.pixels_per_unit
    drag(desk, "dot", places.in_text(text.width + 4.5 * pixel, 12 * pixel), places.in_text(20, 12 * pixel))
    # The attachment point stays, and with it the left side of the first column.
    depth = -text.column_height
    drag(desk, "height", places.in_text(0, depth - 4 * pixel), places.in_text(0, depth + 4))


def check_form(drawing, name):
    records = [record for record in drawing_records.records(drawing) if record[0] == (b"0", b"MTEXT")]
    embedded = [record for record in records if (b"101", b"Embedded Object") in record]
    linking = [record for record in records if (b"1000", b"ACAD_MTEXT_COLUMNS_BEGIN") in record]
    assert len(records) == (COLUMNS if name == "linked" else 1), f"{len(records)} texts"
    assert len(embedded) == (0 if name == "linked" else 1), "the columns changed their form"
    assert len(linking) == (1 if name == "linked" else 0), "the columns changed their form"
    if name == "linked":
        assert all(drawing_records.text_of(record) for record in records), "a column has no text of its own"
    assert drawing_records.contents(drawing) == "Up " + WORDS, drawing_records.contents(drawing)


def main():
    name = sys.argv.pop(1)
    options = story.arguments()
    text = made_drawing.Text(WORDS, width=25, columns=COLUMNS, column_height=16)
    sheet = made_drawing.Sheet(text, version=VERSIONS[name])
    drawing = story.made(options.folder, sheet)
    with Desk(options.program, drawing, options.folder) as desk:
        shown = desk.settle()
        places = made_drawing.Places(shown, sheet)
        open_text(desk, shown)
        drag_columns(desk, places, text)
        desk.type("Up ")
        desk.key("ctrl+Home")
        edited = desk.settle()
        story.keep_picture(desk, options, "1-edited.png")
        desk.key("ctrl+Return")
        closed = desk.settle()
        story.keep_picture(desk, options, "2-closed.png")
        desk.line("Save")
        desk.wait_until_saved(drawing)
        assert desk.quit() == 0, "the program did not end well"
    check_form(drawing, name)
    with Desk(options.program, drawing, options.folder) as desk:
        again = desk.settle()
        assert again.differences(closed, desk.view_box()) == 0, "the saved drawing looks different"
        open_text(desk, again)
        assert desk.comes_to(edited), "the saved columns are not those that were dragged"
        story.keep_picture(desk, options, "3-again.png")
        desk.key("ctrl+Return")
        assert desk.quit() == 0, "the program did not end well"


main()
