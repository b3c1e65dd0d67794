"""A person writes a list, breaks the column, edits with three carets, selects words, inserts a sign, and undoes all.

Every stage is undone again step by step and looks as it did before, then it is all redone and saved.
"""

import drawing_records
import made_drawing
import story
from desk import Desk
from text_menu import choose_degree

options = story.arguments()
sheet = made_drawing.Sheet(made_drawing.Text("Hall\\PStairs up\\PRoof", width=45, columns=2, column_height=45))
drawing = story.made(options.folder, sheet)
WRITTEN = (r"Cellar\P%%d\PtoRoof\P\pxi-3,l3,t3;1.^IWalls\P\pi-5,l6,t6;1.1.^IBrick\P1.2.^IGlass\P"
           r"\pi-3,l3,t3;2.^IDoors\P\pi0,l0,tz;\P\NBeside")
LINE = 2.5 * 5 / 3


class Stages:
    """What was done, each with the picture before it; a picture of each is kept."""

    def __init__(self, desk):
        self.desk, self.pictures, self.undone = desk, [], 0

    def do(self, name, act):
        before = self.desk.settle()
        act()
        self.desk.until_changed(before, f"{name}: nothing changed in the view", least=50)
        self.desk.settle()
        story.keep_picture(self.desk, options, f"{len(self.pictures) + 1}-{name}.png")
        self.pictures.append((name, before))

    def undo(self):
        """Undoes stage after stage; each takes a few steps and then looks exactly as before, caret and all."""
        for name, before in reversed(self.pictures):
            for _ in range(8):
                self.desk.key("ctrl+z")
                self.undone += 1
                if self.desk.comes_to(before):
                    break
            else:
                raise AssertionError(f"{name}: undo does not lead back to what was before")


def write_list(desk):
    desk.key("Next", "Return")
    desk.type("1.")
    desk.key("Tab")
    desk.type("Walls")
    desk.key("Return", "Tab")
    desk.type("Brick")
    desk.key("Return")
    desk.type("Glass")
    desk.key("Return", "shift+Tab")
    desk.type("Doors")
    desk.key("Return", "Return")


def break_column(desk):
    desk.key("Next", "ctrl+t")
    desk.type("Beside")


def three_carets(desk, places):
    desk.key("Prior", "ctrl+alt+Down")
    desk.tool("keydown", "ctrl")
    desk.click(*places.in_text(0, -2.4 * LINE))
    desk.tool("keyup", "ctrl")


with Desk(options.program, drawing, options.folder) as desk:
    places = made_drawing.Places(desk.settle(), sheet)
    desk.click(*places.in_text(2, -1), repeat=2)
    desk.key("Next")
    stages = Stages(desk)
    stages.do("list", lambda: write_list(desk))
    stages.do("column", lambda: break_column(desk))
    three_carets(desk, places)
    stages.do("carets", lambda: desk.type("to"))
    desk.key("Escape", "Home")  # a caret key ends the run of typing, so that the next letters are a step of their own
    desk.click(*places.in_text(2, -0.4 * LINE), repeat=2)
    stages.do("double-click", lambda: desk.type("Cellar"))
    desk.drag(places.in_text(0, -1.4 * LINE), places.in_text(30, -1.4 * LINE))
    stages.do("drag", lambda: desk.key("Delete"))
    stages.do("sign", lambda: choose_degree(desk, *places.in_text(2, -1.4 * LINE)))
    done = desk.settle()
    stages.undo()
    story.keep_picture(desk, options, "undone.png")

    desk.key(*["ctrl+y"] * stages.undone)
    assert desk.comes_to(done), "redo does not lead back to the end"
    desk.key("ctrl+Return")
    desk.line("Save")
    desk.wait_until_saved(drawing)
    text = drawing_records.contents(drawing)
    assert text == WRITTEN, text
    assert desk.quit() == 0, "the program did not end well"
