"""While a text is edited every key is the session's; questions stand before what would be lost."""

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
    shown = desk.settle()
    windows = desk.windows()
    x, y = desk.view_middle()
    desk.click(x, y, repeat=2)
    desk.until_changed(shown, "no session is to be seen", least=2000)
    panel = (0, 690, 1280, 745)
    before = desk.settle()
    desk.type("mine")
    desk.key("ctrl+s", "ctrl+q", "ctrl+o", "ctrl+o", "alt+f")  # overlined and back
    desk.until_changed(before, "typing changed nothing in the view", least=1000)
    desk.settle()
    assert desk.process.poll() is None, "a shortcut ended the program"
    assert not backup.exists(), "a shortcut saved the drawing"
    assert before.differences(desk.picture(), panel) == 0, "keys reached the command line"

    desk.key("Escape")
    desk.answer("Escape", windows)
    asked = desk.settle()
    desk.type("still")
    desk.until_changed(asked, "the session does not go on", least=1000)
    desk.settle()
    story.keep_picture(desk, options, "keys-of-a-session.png")
    desk.key("ctrl+Return")
    desk.settle()

    assert desk.quit(answer="Escape", patience=2) is None, "a cancelled question ended the program"
    desk.line("Save")
    desk.wait_until_saved(drawing)
    story.check_edit(place, drawing, b"minestill")
    assert backup.read_bytes() == untouched
    assert desk.quit() == 0, "the program did not end well"
