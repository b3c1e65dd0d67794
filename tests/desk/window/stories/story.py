"""What the stories have in common: their arguments, their drawing and what an edited text has to look like."""

import argparse
import pathlib
import shutil

import drawing_records
import picture

SHARED = "r2013_mtext_paragraphs_stacks_fields.dxf"


class Place:
    """A part of a drawing that is shown, with a text in its middle."""

    def __init__(self, file, window):
        self.file, self.window = file, window


def arguments():
    parser = argparse.ArgumentParser()
    path = lambda text: pathlib.Path(text).resolve()
    parser.add_argument("program", type=path)
    parser.add_argument("source", type=path, help="the folder of the project")
    parser.add_argument("folder", type=path, help="where the story works and leaves its pictures")
    parser.add_argument("--picture", type=path, help="copies the picture of the open text there")
    parser.add_argument("--sample", action="store_true", help="takes the sample drawing in any case")
    return parser.parse_args()


def choose(options, shared_window, sample_window):
    """The shared drawing with its window if it is there, else the sample with its own."""
    shared = options.source.parent / "shared" / "data" / SHARED
    if shared.exists() and not options.sample:
        return Place(shared, shared_window)
    if not options.sample:
        print(f"{shared} is absent, the story goes on with samples/first-floor.dxf")
    return Place(options.source / "samples" / "first-floor.dxf", sample_window)


def fresh(folder):
    """An empty folder in place of the one that was there."""
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    return folder


def prepared(folder, place):
    """A fresh folder with a copy of the drawing."""
    return pathlib.Path(shutil.copy(place.file, fresh(folder) / "drawing.dxf"))


def made(folder, sheet):
    """A fresh folder with a drawing of the story's own."""
    drawing = fresh(folder) / "drawing.dxf"
    sheet.write(drawing)
    return drawing


def show(desk, place):
    """Shows the part of the drawing in the whole view."""
    desk.line("Zoom")
    desk.line("Window")
    desk.line(place.window[0])
    desk.line(place.window[1])
    desk.settle()


def check_edit(place, drawing, typed):
    """The saved drawing differs from the old one in one multi-line text, by what was typed, and in the fields of that text."""
    pairs = [(before, after) for before, after in drawing_records.changed(place.file, drawing)
             if before[0] != (b"0", b"FIELD")]
    assert len(pairs) == 1, f"{len(pairs)} records changed instead of one"
    before, after = pairs[0]
    assert before[0] == (b"0", b"MTEXT"), f"a record of type {before[0][1]} changed"
    assert typed not in drawing_records.text_of(before)
    assert typed in drawing_records.text_of(after), drawing_records.text_of(after)
    old_text = drawing_records.text_of(before)
    new_text = drawing_records.text_of(after)
    assert len(new_text) > len(old_text), "the text did not grow"


def keep_picture(desk, options, name):
    """Leaves a picture in the story's folder, and where the caller wants it."""
    path = options.folder / name
    picture.save(desk.display.name, path)
    if options.picture:
        options.picture.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(path, options.picture)
