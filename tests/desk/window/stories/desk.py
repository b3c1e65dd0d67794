"""The program in a window of its own, driven as a person drives it."""

import os
import subprocess
import sys
import time

import picture
from display import Display, needed


class Desk:
    """Starts `scribe FILE` on a display of its own and sends keys and mouse events to it."""

    def __init__(self, program, drawing, folder):
        self.display = Display()
        self.folder = folder
        self.environment = dict(os.environ, DISPLAY=self.display.name, QT_QPA_PLATFORM="xcb",
                                XDG_CONFIG_HOME=str(folder / "config"), QT_SCALE_FACTOR="1", LC_ALL="C.UTF-8")
        self.log = open(folder / "scribe.log", "wb")
        self.process = subprocess.Popen([str(program), str(drawing)], env=self.environment, cwd=folder,
                                        stdout=self.log, stderr=self.log)
        self.window = self.wait_for_window()
        self.tool("windowsize", "--sync", self.window, "1280", "800")
        self.tool("windowmove", self.window, "0", "0")
        self.tool("windowfocus", "--sync", self.window)
        self.settle()

    def tool(self, *words):
        command = [needed("xdotool"), *[str(word) for word in words]]
        done = subprocess.run(command, env=self.environment, capture_output=True, text=True, timeout=60)
        return done.stdout

    def wait_for_window(self):
        for _ in range(300):
            if self.process.poll() is not None:
                sys.exit(f"scribe ended before its window opened, see {self.folder}/scribe.log")
            found = self.tool("search", "--onlyvisible", "--class", "scribe").split()
            if found:
                return found[0]
            time.sleep(0.1)
        sys.exit("the window did not open within 30 seconds")

    def picture(self):
        return picture.take(self.display.name)

    def settle(self, box=None, patience=20):
        """Waits until the display stands still, and gives its picture; a blinking caret is given 20 tries."""
        before = self.picture()
        for _ in range(patience):
            time.sleep(0.1)
            now = self.picture()
            if before.differences(now, box or (0, 0, now.width, now.height)) == 0:
                return now
            before = now
        return before

    def type(self, text):
        self.tool("type", "--delay", "12", text)
        self.settle()

    def key(self, *chords):
        for chord in chords:
            self.tool("key", "--delay", "12", chord)
        self.settle()

    def line(self, text):
        """Types a line at the prompt and ends it with Enter."""
        self.tool("type", "--delay", "12", text)
        self.key("Return")

    def click(self, x, y, button=1, repeat=1):
        self.tool("mousemove", "--sync", x, y)
        self.tool("click", "--repeat", repeat, "--delay", "60", button)
        self.settle()

    def close(self):
        """Ends the program by its window, and gives its exit code."""
        if self.process.poll() is None:
            self.tool("windowclose", self.window)
        try:
            code = self.process.wait(timeout=20)
        except subprocess.TimeoutExpired:
            self.process.kill()
            code = self.process.wait()
        self.log.close()
        self.display.close()
        return code
