"""A person double-clicks a rotated text and types into it."""

import story
from desk import Desk

options = story.arguments()
place = story.choose(options, ("670,290", "737,324"), ("16300,3600", "18900,5400"))
drawing = story.prepared(options.folder, place)

with Desk(options.program, drawing, options.folder) as desk:
    story.show(desk, place)
    shown = desk.settle()
    x, y = desk.view_middle()
    desk.click(x, y, repeat=2)
    desk.until_changed(shown, "no session is to be seen", least=2000)
    opened = desk.settle()
    desk.type("turned ")
    desk.until_changed(opened, "typing changed nothing in the view", least=1000)
    desk.settle()
    story.keep_picture(desk, options, "edit-rotated-text.png")
    desk.key("ctrl+Return")
    desk.line("Save")
    desk.wait_until_saved(drawing)
    story.check_edit(place, drawing, b"turned ")
    assert desk.quit() == 0, "the program did not end well"
