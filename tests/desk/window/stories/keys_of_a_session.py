"""While a text is edited every key is the session's; questions stand before what would be lost."""

import time

import story
from desk import Desk

options = story.arguments()
options.sample = True
place = story.choose(options, None, ("7400,6500", "9400,7600"))
drawing = story.prepared(options.folder, place)
backup = drawing.with_name("drawing.dxf.bak")
untouched = drawing.read_bytes()

with Desk(options.program, drawing, options.folder) as desk:
    story.show(desk, place)
    x, y = desk.view_middle()
    desk.click(x, y, repeat=2)
    time.sleep(story.CARET_BLINK)
    panel = (0, 690, 1280, 745)
    before = desk.picture()
    desk.type("mine")
    desk.key("ctrl+s", "ctrl+q", "ctrl+o", "alt+f")
    time.sleep(1)
    assert desk.process.poll() is None, "a shortcut ended the program"
    assert not backup.exists(), "a shortcut saved the drawing"
    assert before.differences(desk.picture(), panel) == 0, "keys reached the command line"

    desk.key("Escape")
    time.sleep(1)
    desk.key("Escape")
    time.sleep(1)
    desk.type("still")
    story.keep_picture(desk, options, "keys-of-a-session.png")
    desk.key("ctrl+Return")
    time.sleep(1)

    assert desk.quit(answer="Escape", patience=2) is None, "a cancelled question ended the program"
    desk.line("Save")
    desk.wait_until_saved(drawing)
    story.check_edit(place, drawing, b"minestill")
    assert backup.read_bytes() == untouched
    assert desk.quit() == 0, "the program did not end well"
