#!/usr/bin/env python3
"""run_text_library.py BUILD COMPILER [FLAG...]: does what docs/text-library.md tells, and compares what the programs print.

The commands of the guide run as they stand there, in a folder of their own, whose home is that folder too. Only those that build the
library do not run: BUILD has it already, and stands where they would have put it.
"""

import json
import os
import pathlib
import shlex
import subprocess
import sys
import tempfile

import guide

ROOT = pathlib.Path(__file__).resolve().parents[2]


def built_already(command, build):
    """Whether a command builds the library. One that could not do so is an error."""
    words = shlex.split(command)
    if "--preset" not in words:
        return False
    presets = json.loads((ROOT / "CMakePresets.json").read_text(encoding="utf-8"))["configurePresets"]
    if words[words.index("--preset") + 1] not in [preset["name"] for preset in presets]:
        sys.exit(f"there is no such preset: {command}")
    targets = words[words.index("--target") + 1:] if "--target" in words else []
    known = (build / "build.ninja").read_text(encoding="utf-8")
    if any(f"build {target}: phony" not in known for target in targets):
        sys.exit(f"there is no such target: {command}")
    return True


def script(document, build):
    """All commands of the guide, as one shell script."""
    commands = [line for block in guide.blocks(document) if block.language == "sh" for line in block.text.splitlines()]
    return "\n".join(["set -e", *(command for command in commands if not built_already(command, build))])


def prepare(folder, build, compiler):
    """Makes `folder` look as the guide takes it to look, and gives the environment to run in."""
    (folder / "build").mkdir()
    (folder / "build/release").symlink_to(build)
    (folder / "examples").symlink_to(ROOT / "examples")
    (folder / "bin").mkdir()
    wrapper = folder / "bin/c++"
    wrapper.write_text(f"#!/bin/sh\nexec {shlex.join(compiler)} \"$@\"\n", encoding="utf-8")
    wrapper.chmod(0o755)
    return {**os.environ, "HOME": str(folder), "PATH": f"{folder / 'bin'}:{os.environ['PATH']}", "CXX": str(wrapper),
            "CMAKE_GENERATOR": "Ninja"}


def run(command, folder, environment):
    done = subprocess.run(command, cwd=folder, env=environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    if done.returncode:
        sys.exit(f"{done.stdout}\n{command} ended with {done.returncode}")
    return done.stdout


def main():
    build, compiler = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2:]
    document = (ROOT / "docs/text-library.md").read_text(encoding="utf-8")
    printed = {block.name: block.text for block in guide.blocks(document) if block.language == "text"}
    wrong = []
    with tempfile.TemporaryDirectory(dir=build) as name:
        folder = pathlib.Path(name)
        environment = prepare(folder, build, compiler)
        transcript = run(["sh", "-c", script(document, build)], folder, environment)
        if transcript.count(printed["first_steps"]) != 2:
            wrong.append("first_steps does not print what the guide says, built by cmake and by pkg-config alike")
        programs = {**printed, "first_steps_static": printed["first_steps"]}
        for program, expected in programs.items():
            if run([folder / "build/examples" / program], folder, environment) != expected:
                wrong.append(f"{program} does not print what the guide says")
    for sentence in wrong:
        print(sentence)
    print(f"{len(programs)} programs run, {len(wrong)} are wrong")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
