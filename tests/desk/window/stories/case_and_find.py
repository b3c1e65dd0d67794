"""A person changes the case of a text by the dialog, finds words in it and replaces them: the saved text says so."""

import drawing_records
import story
from desk import Desk

options = story.arguments()
options.sample = True
place = story.choose(options, None, ("11500,10500", "21500,15500"))
drawing = story.prepared(options.folder, place)

with Desk(options.program, drawing, options.folder) as desk:
    story.show(desk, place)
    windows = desk.windows()
    desk.line("TCase")
    desk.settle()
    desk.click(*desk.view_middle())
    desk.settle()
    desk.key("Return")
    desk.until(lambda: desk.windows() > windows, "no dialog is shown")
    desk.settle()
    story.keep_picture(desk, options, "case-dialog.png")
    desk.key("Down", "Down")
    desk.key("Return")
    desk.until(lambda: desk.windows() <= windows, "the dialog does not go away")
    desk.settle()

    for answer in ("TextFind", "DIMENSIONS", "Replace", "measures", "eXit"):
        desk.line(answer)
    desk.settle()
    story.keep_picture(desk, options, "replaced.png")
    desk.line("Save")
    desk.wait_until_saved(drawing)
    pairs = drawing_records.changed(place.file, drawing)
    assert len(pairs) == 1, f"{len(pairs)} records changed instead of one"
    text = drawing_records.text_of(pairs[0][1])
    assert b"ALL measures ARE IN MILLIMETRES" in text, text
    assert desk.quit() == 0, "the program did not end well"
