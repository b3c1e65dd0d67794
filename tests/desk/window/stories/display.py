"""A display of its own for one story: an Xvfb server that ends with the story."""

import os
import shutil
import subprocess
import sys


def needed(program):
    """Ends the test with a sentence when a program of the suite is not installed."""
    if shutil.which(program) is None:
        sys.exit(f"{program} is missing: install the packages xvfb, x11-xkb-utils, xdotool and imagemagick.")
    return program


class Display:
    """Starts an Xvfb server on a free display number."""

    def __init__(self, size="1280x800"):
        needed("Xvfb")
        reading, writing = os.pipe()
        command = ["Xvfb", "-displayfd", str(writing), "-screen", "0", size + "x24", "-nolisten", "tcp", "-noreset"]
        self.server = subprocess.Popen(command, pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            number = answer.readline().strip()
        if not number:
            sys.exit("Xvfb did not start.")
        self.name = ":" + number

    def close(self):
        self.server.terminate()
        self.server.wait()
