"""A person with a German keyboard types letters by dead keys and signs by AltGr."""

import subprocess

import drawing_records
import story
from desk import Desk
from display import needed

options = story.arguments()
options.sample = True
place = story.choose(options, None, ("7400,6500", "9400,7600"))
drawing = story.prepared(options.folder, place)


class GermanDesk(Desk):
    """The keyboard has its layout before the program starts."""

    def open_window(self):
        subprocess.run([needed("setxkbmap"), "-display", self.display.name, "de"], check=True, timeout=60)
        super().open_window()

    def with_alt_gr(self, *keys):
        self.tool("keydown", "ISO_Level3_Shift")
        for key in keys:
            self.tool("key", "--delay", "12", key)
        self.tool("keyup", "ISO_Level3_Shift")
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
    # Esc in the middle of a composition drops the composition; what follows is typed as it is.
    desk.key("dead_acute", "Escape", "x")
    desk.key("ctrl+Return")
    desk.line("Save")
    desk.wait_until_saved(drawing)
    _, after = drawing_records.changed(place.file, drawing)[0]
    text = drawing_records.text_of(after).decode("utf-8")
    assert "éô@€" in text, text
    assert "€x" in text, text
    assert desk.quit() == 0, "the program did not end well"
