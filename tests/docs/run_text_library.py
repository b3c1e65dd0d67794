#!/usr/bin/env python3
"""run_text_library.py BUILD COMPILER [FLAG...]: does what docs/text-library.md tells, and compares what the programs print.

The commands of the guide run as they stand there, in a folder of their own, whose home is that folder too. Only the library is not built
anew: its preset is configured, which has to find Boost and look for nothing else, and BUILD stands where it would have built.
"""

import json
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

import guide

ROOT = pathlib.Path(__file__).resolve().parents[2]


def configure_errors(command, folder):
    """What is wrong with a command that configures the library, as sentences."""
    done = subprocess.run([*shlex.split(command), "-B", folder], cwd=ROOT, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    if done.returncode:
        return [f"{command} ended with {done.returncode}: {done.stdout}"]
    found = re.findall(r"^(\w+)_DIR:PATH=/", (folder / "CMakeCache.txt").read_text(encoding="utf-8"), re.MULTILINE)
    return [f"{command} looks for {package}" for package in found if not package.lower().startswith("boost")]


def build_errors(command):
    """What is wrong with a command that builds the library."""
    presets = json.loads((ROOT / "CMakePresets.json").read_text(encoding="utf-8"))["buildPresets"]
    named = shlex.split(command)[-1] in [preset["name"] for preset in presets]
    return [] if named else [f"there is no such preset: {command}"]


def preset_errors(commands, folder):
    wrong = []
    for command in commands:
        wrong += build_errors(command) if "--build" in command else configure_errors(command, folder)
    return wrong


def commands_of(document):
    """The commands of the guide: those that build the library, and all others."""
    lines = [line for block in guide.blocks(document) if block.language == "sh" for line in block.text.splitlines()]
    return [line for line in lines if "--preset" in line], [line for line in lines if "--preset" not in line]


def prepare(folder, build, compiler):
    """Makes `folder` look as the guide takes it to look, and gives the environment to run in."""
    (folder / "build").mkdir()
    (folder / "build/text-library").symlink_to(build)
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
    build, compiler = pathlib.Path(sys.argv[1]).resolve(), [shutil.which(sys.argv[2]), *sys.argv[3:]]
    document = (ROOT / "docs/text-library.md").read_text(encoding="utf-8")
    printed = {block.name: block.text for block in guide.blocks(document) if block.language == "text"}
    presets, others = commands_of(document)
    with tempfile.TemporaryDirectory(dir=build) as name:
        folder = pathlib.Path(name)
        environment = prepare(folder, build, compiler)
        wrong = preset_errors(presets, folder / "configured")
        transcript = run(["sh", "-c", "set -e\n" + "\n".join(others)], folder, environment)
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
