"""A person with a German keyboard types letters by dead keys and signs by AltGr."""

import subprocess

import drawing_records
import story
from desk import Desk
from display import needed

ALT_GR = "108"  # the code of the key to the right of the space bar

options = story.arguments()
options.sample = True
place = story.choose(options, None, ("7400,6500", "9400,7600"))
drawing = story.prepared(options.folder, place)


class GermanDesk(Desk):
    """A desk whose keyboard has another layout."""

    def open_window(self):
        # A layout goes to the device that was used last, and a device brings its own; so that of the story is used first.
        self.tool("key", "Shift_L")
        subprocess.run([needed("setxkbmap"), "-display", self.display.name, "de"], check=True, timeout=60)
        super().open_window()

    def with_alt_gr(self, *keys):
        self.tool("keydown", ALT_GR)
        self.rest()
        self.key(*keys)
        self.tool("keyup", ALT_GR)
        self.rest()



with GermanDesk(options.program, drawing, options.folder) as desk:
    story.show(desk, place)
    shown = desk.settle()
    desk.click(*desk.view_middle(), repeat=2)
    desk.until_changed(shown, "no session is to be seen", least=2000)
    desk.key("Prior")
    opened = desk.settle()
    desk.key("dead_acute", "e")
    desk.key("dead_circumflex", "o")
    desk.with_alt_gr("q", "e")
    desk.until_changed(opened, "typing changed nothing in the view", least=500)
    desk.settle()
    story.keep_picture(desk, options, "dead-keys.png")
    desk.key("ctrl+Return")
    desk.line("Save")
    desk.wait_until_saved(drawing)
    _, after = drawing_records.changed(place.file, drawing)[0]
    text = drawing_records.text_of(after).decode("utf-8")
    assert "éô@€" in text, text
    assert desk.quit() == 0, "the program did not end well"
