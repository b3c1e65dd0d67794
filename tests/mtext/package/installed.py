"""The text library, installed from a build into a folder that goes away."""

import contextlib
import pathlib
import subprocess
import sys
import tempfile


@contextlib.contextmanager
def installed(build):
    """The prefix that `cmake --install` filled."""
    with tempfile.TemporaryDirectory(dir=build) as prefix:
        done = subprocess.run(["cmake", "--install", build, "--component", "mtext", "--prefix", prefix],
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if done.returncode:
            sys.exit(done.stdout)
        yield pathlib.Path(prefix)


def headers(prefix):
    """Every installed header by the name that an include gives it."""
    folder = prefix / "include/scribe"
    return {str(path.relative_to(folder)): path.read_text(encoding="utf-8") for path in sorted(folder.rglob("*.h"))}
