"""A person opens a drawing, zooms, edits one text of it in place, and saves: that text alone is different."""

import time

import story
from desk import Desk

options = story.arguments()
place = story.choose(options, ("137,258", "207,296"), ("11500,10500", "21500,15500"))
drawing = story.prepared(options.folder, place)

with Desk(options.program, drawing, options.folder) as desk:
    x, y = desk.view_middle()
    before_wheel = desk.settle()
    desk.click(x, y, button=4)
    assert before_wheel.pixels != desk.settle().pixels, "the wheel changed nothing"

    story.show(desk, place)
    shown = desk.settle()
    desk.line("MTextEdit")
    desk.click(x, y)
    time.sleep(story.CARET_BLINK)
    opened = desk.picture()
    assert shown.differences(opened, desk.view_box()) > 0, "no session is to be seen"

    frames = []
    for _ in range(12):
        frames.append(desk.picture())
        time.sleep(story.CARET_BLINK / 4)
    blinks = [frames[0].differences(frame, desk.view_box()) for frame in frames[1:]]
    assert any(blinks), "no caret blinks"
    assert max(blinks) < 2000, f"{max(blinks)} pixels are more than a caret"

    desk.type("Typed here")
    time.sleep(1)
    typed = desk.picture()
    desk.key("space")
    time.sleep(1)
    moved = typed.differences(desk.picture(), desk.view_box())
    assert moved > 1000, f"{moved} pixels changed: the last character that was typed is not painted"
    story.keep_picture(desk, options, "edit-one-text.png")
    assert opened.differences(desk.picture(), desk.view_box()) > 100, "typing changed nothing in the view"
    desk.key("ctrl+Return")
    desk.line("Save")
    desk.wait_until_saved(drawing)
    story.check_edit(place, drawing, b"Typed here ")
    assert drawing.with_name("drawing.dxf.bak").read_bytes() == place.file.read_bytes(), "no backup was kept"
    assert desk.quit() == 0, "the program did not end well"
