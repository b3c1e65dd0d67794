"""A person inserts a date into a text by the dialog, and finds the field again after saving."""

import datetime

import drawing_records
import made_drawing
import story
from desk import Desk

options = story.arguments()
drawing = story.made(options.folder, made_drawing.Sheet(made_drawing.Text("Printed on ")))


def field_codes(path):
    """The codes of the fields of a drawing, without the containers."""
    found = []
    for record in drawing_records.records(path):
        values = dict((code, value) for code, value in reversed(record))
        if record[0] == (b"0", b"FIELD") and values.get(b"1") != b"_text":
            found.append(values[b"2"].decode())
    return found


def contents(path):
    return [drawing_records.text_of(each).decode() for each in drawing_records.records(path) if each[0] == (b"0", b"MTEXT")]


def choose(desk, keys):
    """Opens the menu of the text and takes a row by keys."""
    windows = desk.windows()
    desk.click(*desk.view_middle(), button=3)
    desk.until(lambda: desk.windows() > windows, "no menu opens")
    desk.settle()
    desk.key(*keys)
    desk.settle()


with Desk(options.program, drawing, options.folder) as desk:
    shown = desk.settle()
    desk.line("MTextEdit")
    desk.line("Last")
    desk.until_changed(shown, "no session is to be seen", least=300)
    desk.key("Next")
    windows = desk.windows()
    choose(desk, ["Up", "Return"])
    desk.until(lambda: desk.windows() > windows, "no dialog opens")
    desk.settle()
    story.keep_picture(desk, options, "1-insert-field.png")
    desk.key("Return")
    desk.until(lambda: desk.windows() <= windows, "the dialog does not go away")
    desk.settle()
    story.keep_picture(desk, options, "2-field-in-its-text.png")
    desk.type("!")
    desk.key("ctrl+Return")
    desk.line("Save")
    desk.wait_until_saved(drawing)
    today = datetime.date.today().isoformat()
    assert contents(drawing) == [f"Printed on {today}!"], contents(drawing)
    assert field_codes(drawing) == [r'\AcVar Date \f "yyyy-MM-dd"'], field_codes(drawing)
    assert desk.quit() == 0, "the program did not end well"

kept = drawing.read_bytes()
with Desk(options.program, drawing, options.folder) as desk:
    shown = desk.settle()
    desk.line("MTextEdit")
    desk.line("Last")
    desk.until_changed(shown, "no session is to be seen", least=300)
    desk.settle()
    story.keep_picture(desk, options, "3-field-opened-again.png")
    desk.key("ctrl+Return")
    desk.line("Save")
    desk.settle()
    assert drawing.read_bytes() == kept, "a text that nobody changed is not the same"
    assert desk.quit() == 0, "the program did not end well"
