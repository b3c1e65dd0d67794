"""A person copies formatted text from one window to another, and to and from another program.

The first window has a text with formats. The second takes it in, then plain text and HTML from a program beside it; what it copies in
turn that program gets as text and as HTML. At last a text is pasted into the drawing itself.
"""

import subprocess

import drawing_records
import made_drawing
import story
from desk import Desk
from display import needed

options = story.arguments()
source = story.made(options.folder, made_drawing.Sheet(made_drawing.Text(r"plain {\C1;red}{\H2x;big}")))
target = options.folder / "target.dxf"
made_drawing.Sheet(made_drawing.Text("Hall")).write(target)


def contents(path):
    """The contents of the multi-line texts of a drawing, and of its single-line ones."""
    records = drawing_records.records(path)
    return [drawing_records.text_of(each).decode() for each in records if each[0] in ((b"0", b"MTEXT"), (b"0", b"TEXT"))]


def give(desk, data, kind):
    """Another program puts bytes on the clipboard."""
    command = [needed("xclip"), "-selection", "clipboard", "-in", "-target", kind]
    subprocess.run(command, input=data, env=desk.environment, check=True, timeout=60,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def taken(desk, kind):
    """What another program gets from the clipboard."""
    command = [needed("xclip"), "-selection", "clipboard", "-out", "-target", kind]
    return subprocess.run(command, env=desk.environment, check=True, timeout=60, capture_output=True).stdout.decode()


def open_text(desk):
    """Opens the text of the sheet and selects all of it."""
    desk.turn_to()
    shown = desk.settle()
    desk.line("MTextEdit")
    desk.line("Last")
    desk.until_changed(shown, "no session is to be seen", least=300)
    desk.key("ctrl+a")


def end_text(desk, path):
    """Ends the session, saves, and gives what the drawing then holds."""
    desk.key("ctrl+Return")
    backup = path.with_name(path.name + ".bak")
    backup.unlink(missing_ok=True)
    desk.line("Save")
    desk.wait_until_saved(path)
    return contents(path)


with Desk(options.program, source, options.folder) as first:
    open_text(first)
    first.key("ctrl+c")
    with Desk(options.program, target, options.folder, beside=first) as second:
        open_text(second)
        second.key("ctrl+v")
        story.keep_picture(second, options, "1-formats-of-another-window.png")
        formatted = end_text(second, target)
        assert formatted == [r"plain {\C1;red\H2x;\c4294967295;big}"], formatted

        give(second, "Größe {1}\n2".encode(), "UTF8_STRING")
        open_text(second)
        second.key("ctrl+v")
        assert end_text(second, target) == [r"Größe \{1\}\P2"], contents(target)

        give(second, b"<p>an <u>underlined</u> word</p><ul><li>item</ul>", "text/html")
        open_text(second)
        second.key("ctrl+v")
        story.keep_picture(second, options, "2-html.png")
        pasted = end_text(second, target)
        assert pasted == ["an {\\Lunderlined} {}word\\P\u2022^Iitem"], pasted

        open_text(second)
        second.key("ctrl+c")
        plain = taken(second, "UTF8_STRING")
        assert plain.startswith("an underlined word"), plain
        html = taken(second, "text/html")
        assert "text-decoration:underline" in html and "underlined" in html, html
        second.key("ctrl+Return")

        give(second, b"\xff\x00\xfe garbage \x80", "text/html")
        open_text(second)
        second.key("Next", "ctrl+v")
        second.type("!")
        assert end_text(second, target) == [pasted[0] + "!"], contents(target)

        give(second, b"Dropped", "UTF8_STRING")
        empty = second.settle()
        second.click(900, 500)
        second.key("ctrl+v")
        second.tool("mousemove", *second.view_middle())
        second.until_changed(empty, "no text hangs on the cursor", least=100)
        story.keep_picture(second, options, "3-text-on-the-cursor.png")
        second.click(*second.view_middle())
        second.line("Save")
        second.until(lambda: "Dropped" in contents(target), "no text was pasted into the drawing")
        assert second.quit() == 0, "the second program did not end well"
    first.turn_to()
    first.key("Escape")
    assert first.quit() == 0, "the first program did not end well"
