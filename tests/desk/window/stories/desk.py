"""The program in a window of its own, driven as a person drives it."""

import os
import subprocess
import sys
import time

import picture
from display import Display, needed


# Off the display, so that the toolbar of a session hides nothing that a story looks at.
OUT_OF_SIGHT = (-3000, 0)


class Desk:
    """Starts `scribe FILE` and sends keys and mouse events to it; on a display of its own, or on that of another desk.

    Places are pixels of the display; on one of `density` 2 the window has twice as many of them each way.
    """

    def __init__(self, program, drawing, folder, beside=None, density=1, toolbar_place=OUT_OF_SIGHT):
        self.process = None
        self.folder = folder
        self.beside = beside
        self.density = density
        self.log = open(folder / f"{drawing.stem}.log", "wb")
        self.display = beside.display if beside else Display(f"{1280 * density}x{800 * density}")
        self.environment = dict(os.environ, DISPLAY=self.display.name, QT_QPA_PLATFORM="xcb",
                                XDG_CONFIG_HOME=str(folder / "config"), QT_SCALE_FACTOR=str(density), LC_ALL="C.UTF-8")
        self.put_toolbar(*toolbar_place)
        try:
            self.process = subprocess.Popen([str(program), str(drawing)], env=self.environment, cwd=folder,
                                            stdout=self.log, stderr=self.log)
            self.open_window()
        except BaseException:
            self.end()
            raise

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.end()

    def put_toolbar(self, x, y):
        """Has the toolbars of sessions stand at a place of the screen, as if one had been left there."""
        self.toolbar_place = x, y
        profile = self.folder / "config" / "scribe" / "profile.ini"
        profile.parent.mkdir(parents=True, exist_ok=True)
        profile.write_text(f"[SCRIBE]\nptpos.x={x}\nptpos.y={y}\n", encoding="utf-8")

    def open_window(self):
        self.window = self.wait_for_window()
        self.tool("windowsize", "--sync", self.window, 1280 * self.density, 800 * self.density)
        self.tool("windowmove", self.window, "0", "0")
        self.tool("windowfocus", "--sync", self.window)
        self.settle()

    def turn_to(self):
        """Brings the window to the front, with the keyboard."""
        self.tool("windowraise", self.window)
        self.tool("windowfocus", "--sync", self.window)
        self.settle()

    def tool(self, *words):
        command = [needed("xdotool"), *[str(word) for word in words]]
        done = subprocess.run(command, env=self.environment, capture_output=True, text=True, timeout=60)
        return done.stdout

    def wait_for_window(self):
        for _ in range(300):
            if self.process.poll() is not None:
                sys.exit(f"scribe ended before its window opened, see {self.log.name}")
            found = self.tool("search", "--all", "--onlyvisible", "--pid", self.process.pid, "--class", "scribe").split()
            if found:
                return found[0]
            time.sleep(0.1)
        sys.exit("the window did not open within 30 seconds")

    def picture(self):
        return picture.take(self.display.name)

    def settle(self, patience=20):
        """Waits until the display stands still, and gives its picture; a caret that blinks ends the patience."""
        before = self.picture()
        for _ in range(patience):
            time.sleep(0.1)
            now = self.picture()
            if before.pixels == now.pixels:
                return now
            before = now
        return before

    def until(self, holds, sentence, patience=60):
        """Waits until `holds()` is true, and gives what it gave; a slow machine takes longer, never too long."""
        end = time.monotonic() + patience
        while time.monotonic() < end:
            found = holds()
            if found:
                return found
            time.sleep(0.1)
        raise AssertionError(sentence)

    def until_changed(self, before, sentence, least=1):
        """Waits until at least `least` pixels of the view differ from the picture `before`; gives the new picture."""
        def changed():
            now = self.picture()
            return now if before.differences(now, self.view_box()) >= least else None
        return self.until(changed, sentence)

    def comes_to(self, wanted, patience=2.5):
        """Whether the view looks exactly like `wanted` before the patience ends, which outlasts a caret's blink."""
        end = time.monotonic() + patience
        while time.monotonic() < end:
            if self.picture().differences(wanted, self.view_box()) == 0:
                return True
            time.sleep(0.05)
        return False

    def windows(self):
        """How many windows the program shows, beside the toolbars of sessions."""
        return len(self.tool("search", "--onlyvisible", "--class", "scribe").split()) - self.toolbars()

    def toolbars(self):
        """How many toolbars the programs on the display show."""
        return len(self.tool("search", "--onlyvisible", "--name", "^Text formatting$").split())

    def answer(self, key, windows_before):
        """Waits for a question's box, answers it by a key, and waits until the box is gone."""
        self.until(lambda: self.windows() > windows_before, "no question is asked")
        self.settle()
        self.key(key)
        self.until(lambda: self.windows() <= windows_before, "the question does not go away")

    def rest(self):
        """Gives the program the time that a person needs to lift the hand."""
        time.sleep(0.3)

    def type(self, text):
        self.tool("type", "--delay", "12", text)
        self.rest()

    def key(self, *chords):
        for chord in chords:
            self.tool("key", "--delay", "12", chord)
        self.rest()

    def line(self, text):
        """Types a line at the prompt and ends it with Enter."""
        self.tool("type", "--delay", "12", text)
        self.key("Return")

    def click(self, x, y, button=1, repeat=1):
        self.tool("mousemove", x, y)
        self.tool("click", "--repeat", repeat, "--delay", "60", button)
        self.rest()

    def press(self, x, y):
        self.tool("mousemove", x, y)
        self.tool("mousedown", 1)
        self.rest()

    def move(self, *points):
        """Moves the pressed mouse to one point after the other."""
        for x, y in points:
            self.tool("mousemove", x, y)
            self.rest()

    def release(self):
        self.tool("mouseup", 1)
        self.rest()

    def drag(self, begin, end):
        """Presses, moves by way of the middle, and lets go."""
        self.press(*begin)
        self.move(((begin[0] + end[0]) // 2, (begin[1] + end[1]) // 2), end)
        self.release()

    def view_box(self):
        """The inner part of the drawing view: left, top, right, bottom."""
        return tuple(side * self.density for side in (10, 40, 1270, 640))

    def view_middle(self):
        """A pixel near the middle of the drawing view."""
        return 640 * self.density, 340 * self.density

    def wait_until_saved(self, drawing):
        """Waits for the backup that every save leaves."""
        backup = drawing.with_name(drawing.name + ".bak")
        self.until(backup.exists, "nothing was saved")

    def quit(self, answer=None, patience=60):
        """Types Quit, gives `answer`, a key, to its question, and gives the exit code; None if it goes on."""
        windows = self.windows()
        self.line("Quit")
        if answer:
            self.answer(answer, windows)
        try:
            return self.process.wait(timeout=patience)
        except subprocess.TimeoutExpired:
            return None

    def end(self):
        """Ends what is left of the program and its display."""
        if self.process and self.process.poll() is None:
            self.process.kill()
            self.process.wait()
        self.log.close()
        if not self.beside:
            self.display.close()
