"""A person opens a drawing, zooms, edits one text of it in place, and saves: that text alone is different."""

import story
from desk import Desk

options = story.arguments()
place = story.choose(options, ("137,258", "207,296"), ("11500,10500", "21500,15500"))
drawing = story.prepared(options.folder, place)

# The picture of the README shows the toolbar, too, above the text.
place_of_toolbar = {"toolbar_place": (40, 60)} if options.picture else {}

with Desk(options.program, drawing, options.folder, **place_of_toolbar) as desk:
    x, y = desk.view_middle()
    before_wheel = desk.settle()
    desk.click(x, y, button=4)
    desk.until_changed(before_wheel, "the wheel changed nothing")

    story.show(desk, place)
    shown = desk.settle()
    desk.line("MTextEdit")
    desk.click(x, y)
    desk.until_changed(shown, "no session is to be seen", least=2000)
    opened = desk.settle()

    blinked = desk.until_changed(opened, "no caret blinks")
    blink = opened.differences(blinked, desk.view_box())
    assert blink < 2000, f"{blink} pixels are more than a caret"

    desk.key("Prior")
    desk.type("Typed here")
    desk.until_changed(opened, "typing changed nothing in the view", least=1000)
    typed = desk.settle()
    desk.key("space")
    desk.until_changed(typed, "the last character that was typed is not painted", least=1000)
    story.keep_picture(desk, options, "edit-one-text.png")
    desk.key("ctrl+Return")
    desk.line("Save")
    desk.wait_until_saved(drawing)
    story.check_edit(place, drawing, b"Typed here ")
    assert drawing.with_name("drawing.dxf.bak").read_bytes() == place.file.read_bytes(), "no backup was kept"
    assert desk.quit() == 0, "the program did not end well"
