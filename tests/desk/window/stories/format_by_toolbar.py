"""A person formats a paragraph with the toolbar alone, and takes it all back step by step to the text of the start."""

import made_drawing
import story
from desk import Desk
from toolbar import Toolbar

options = story.arguments()
sheet = made_drawing.Sheet(made_drawing.Text("Ratio 1/2\\PSecond line", width=80))
drawing = story.made(options.folder, sheet)
LINE = 2.5 * 5 / 3


class Stages:
    """What was done, each with the picture of the view before it."""

    def __init__(self, desk, bar):
        self.desk, self.bar, self.before = desk, bar, []

    def do(self, name, act, select=None):
        """Selects, all if not told otherwise, and does a thing that changes the text; keeps a picture of the outcome."""
        self.desk.key("Prior")  # ends the run of edits: what the toolbar does on end is one step
        (select or self.select_all)()
        before = self.desk.settle()
        act()
        self.desk.until_changed(before, f"{name}: nothing changed in the view", least=20)
        self.desk.settle()
        story.keep_picture(self.desk, options, f"{len(self.before) + 1}-{name}.png")
        self.before.append((name, before))

    def select_all(self):
        self.desk.key("ctrl+a")

    def undo_all(self):
        """Undoes stage after stage; each leads back to how the text looked before it."""
        for name, before in reversed(self.before):
            for _ in range(4):
                self.bar.press("undo")
                if self.desk.comes_to(before):
                    break
            else:
                raise AssertionError(f"{name}: undo does not lead back to what was before")


with Desk(options.program, drawing, options.folder, toolbar_place=(20, 700)) as desk:
    places = made_drawing.Places(desk.settle(), sheet)
    desk.click(*places.in_text(2, -1), repeat=2)
    bar = Toolbar(desk)
    story.keep_picture(desk, options, "0-opened.png")
    stages = Stages(desk, bar)

    stages.do("font", lambda: bar.type_into("font", "DejaVu Serif"))
    stages.do("bold", lambda: bar.press("bold"))
    stages.do("color", lambda: bar.choose("color", rows_down=2))
    stages.do("stack", lambda: bar.press("stack"), select=lambda: desk.click(*places.in_text(11, -1), repeat=2))
    stages.do("list", lambda: bar.choose("numbering", rows_down=3))
    stages.do("count-restarts", lambda: bar.choose("numbering", rows_down=1), select=lambda: desk.key("Prior"))
    stages.do("spacing", lambda: bar.ask("spacing", 5, "space", "Tab", "Tab", "ctrl+a", "2", "Return"))
    stages.do("columns", lambda: bar.ask("columns", 5, "alt+s", "Tab", "ctrl+a", "3", "Return"))
    stages.do("attachment", lambda: bar.choose("attachment", rows_down=4))
    stages.undo_all()

    Stages(desk, bar).do("size", lambda: bar.type_into("size", "4"))
    desk.type("Typed into the view again")
    desk.key("ctrl+Return")
    desk.line("Save")
    desk.wait_until_saved(drawing)
    saved = drawing.read_text(encoding="utf-8")
    assert "Typed into the view again" in saved, "what was typed behind the toolbar's back is not saved"
    assert desk.quit() == 0, "the program did not end well"
