"""A person writes three single-line texts, one of them elsewhere, edits one by a double click and stretches one."""

import drawing_records
import made_drawing
import story
from desk import Desk


class EmptySheet:
    """What lies on a sheet that nobody has written on."""

    def groups(self, version):
        return []


def texts(path):
    """The single-line texts of a drawing by their letters: group codes and the values that they had first."""
    found = {}
    for record in drawing_records.records(path):
        if record[0] == (b"0", b"TEXT"):
            groups = {int(code): value for code, value in reversed(record)}
            found[groups[1].decode()] = groups
    return found


options = story.arguments()
sheet = made_drawing.Sheet(EmptySheet())
drawing = story.made(options.folder, sheet)

with Desk(options.program, drawing, options.folder) as desk:
    places = made_drawing.Places(desk.settle(), sheet)

    before = desk.settle()
    desk.line("dText")
    desk.click(*places.pixel(10, 50))
    desk.move(places.pixel(10, 55), places.pixel(20, 60))
    desk.until_changed(before, "no rubber line runs to the cursor", least=20)
    story.keep_picture(desk, options, "1-rubber-line.png")
    desk.line("5")
    desk.line("0")
    empty = desk.settle()
    desk.type("Upper line")
    desk.key("Return")
    desk.type("Lower line")
    desk.until_changed(empty, "what is typed is not to be seen", least=500)
    story.keep_picture(desk, options, "2-typed.png")
    desk.click(*places.pixel(70, 20))
    desk.type("Elsewhere")
    desk.key("ctrl+Return")
    story.keep_picture(desk, options, "3-elsewhere.png")

    written = desk.settle()
    desk.click(*places.pixel(12, 52), repeat=2)
    desk.until_changed(written, "a double click opens no session", least=500)
    desk.type("Edited")
    desk.key("ctrl+Return")
    story.keep_picture(desk, options, "4-edited.png")

    desk.line("TextFit")
    desk.click(*places.pixel(72, 22))
    fitted = desk.settle()
    desk.move(places.pixel(80, 25), places.pixel(100, 20))
    desk.until_changed(fitted, "the text does not follow the cursor", least=200)
    story.keep_picture(desk, options, "5-stretching.png")
    desk.click(*places.pixel(115, 20))
    story.keep_picture(desk, options, "6-stretched.png")

    desk.line("Save")
    desk.wait_until_saved(drawing)
    saved = texts(drawing)
    assert sorted(saved) == ["Edited", "Elsewhere", "Lower line"], sorted(saved)
    near = lambda group, wanted: abs(float(group) - wanted) < 0.5
    assert near(saved["Edited"][10], 10) and near(saved["Edited"][20], 50), "the edited text has moved"
    assert abs(float(saved["Edited"][20]) - float(saved["Lower line"][20]) - 5 * 5 / 3) < 1e-9, "no line below"
    assert near(saved["Elsewhere"][10], 70) and near(saved["Elsewhere"][20], 20), "it is not where it was clicked"
    assert float(saved["Elsewhere"][41]) > 1.2, "the text was not stretched"
    assert desk.quit() == 0, "the program did not end well"
