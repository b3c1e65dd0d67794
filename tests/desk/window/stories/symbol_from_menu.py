"""A person opens the menu of a text with the right button, takes a degree sign from it, undoes it, and takes it again.

Then the menu is shown on a light ground too.
"""

import story
from desk import Desk
from text_menu import choose_degree, open_menu

options = story.arguments()
options.sample = True
place = story.choose(options, None, ("7400,6500", "9400,7600"))
drawing = story.prepared(options.folder, place)


with Desk(options.program, drawing, options.folder) as desk:
    story.show(desk, place)
    shown = desk.settle()
    x, y = desk.view_middle()
    desk.click(x, y, repeat=2)
    desk.until_changed(shown, "no session is to be seen", least=2000)
    desk.key("Next")
    opened = desk.settle()

    windows = desk.windows()
    open_menu(desk, x, y)
    desk.key("Escape")
    desk.until(lambda: desk.windows() <= windows, "Esc does not close the menu")
    closed = opened.differences(desk.settle(), desk.view_box())
    assert closed < 2000, f"{closed} pixels are more than a caret, a menu that was closed changed the text"

    chosen = choose_degree(desk, x, y, look=lambda: story.keep_picture(desk, options, "menu-on-dark.png"))
    sign = opened.differences(chosen, desk.view_box())
    assert sign > 100, f"no sign is to be seen, {sign} pixels changed"
    desk.key("ctrl+z")
    undone = desk.settle()
    left = opened.differences(undone, desk.view_box())
    assert left < 2000, f"{left} pixels are more than a caret, the sign was not undone"

    choose_degree(desk, x, y)
    desk.type("C")
    desk.key("ctrl+Return")
    desk.line("Save")
    desk.wait_until_saved(drawing)
    story.check_edit(place, drawing, b"%%dC")

    desk.key("alt+v", "d")
    light = desk.settle()
    desk.click(x, y, repeat=2)
    desk.until_changed(light, "no session is to be seen on a light ground", least=2000)
    open_menu(desk, x, y)
    story.keep_picture(desk, options, "menu-on-light.png")
    desk.key("Escape", "Escape")
    desk.settle()
    assert desk.quit() == 0, "the program did not end well"
