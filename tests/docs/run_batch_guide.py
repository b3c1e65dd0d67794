#!/usr/bin/env python3
"""run_batch_guide.py PROGRAM: does what docs/batch.md tells, in a folder of its own with copies of the sample.

Its commands run as they stand there, one after the other; so do its makefile and its job script, which is sent twice, as it may be.
Only GNU parallel, which needs other machines, is left out.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

import guide

ROOT = pathlib.Path(__file__).resolve().parents[2]
PLANS = ["plans/a.dxf", "plans/b.dxf", "plan-1.dxf", "plan-2.dxf", "archive/2024/c.dxf"]


def commands_of(document):
    """The commands that stand in indented lines."""
    lines = [line[4:] for line in document.splitlines() if line.startswith("    ")]
    return [line for line in lines if line.startswith(("scribe batch ", "jq "))]


def prepare(folder, program):
    """Makes `folder` look as the guide takes it to look, and gives the environment to run in."""
    for plan in PLANS:
        (folder / plan).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(ROOT / "samples/first-floor.dxf", folder / plan)
    (folder / "tidy.scr").write_text("TCase\nTitle\n", encoding="utf-8")
    (folder / "drawings.txt").write_text("plan-1.dxf\nplan-2.dxf\n", encoding="utf-8")
    (folder / "reports").mkdir()
    (folder / "bin").mkdir()
    (folder / "bin/scribe").symlink_to(program)
    return {**os.environ, "PATH": f"{folder / 'bin'}:{os.environ['PATH']}"}


class Guide:
    """Runs things in the folder of the guide."""

    def __init__(self, folder, program):
        self.folder = folder
        self.environment = prepare(folder, program)

    def run(self, command, **variables):
        done = subprocess.run(["sh", "-c", command], cwd=self.folder, env={**self.environment, **variables},
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if done.returncode:
            sys.exit(f"{done.stdout}\n{command} ended with {done.returncode}")
        return done.stdout

    def make(self, makefile):
        (self.folder / "Makefile").write_text(makefile, encoding="utf-8")
        self.run("make all")
        return [f"make did not write {name}" for name in ["new/a.dxf", "new/b.dxf"] if not (self.folder / name).exists()]

    def send(self, script):
        """Sends a job script for each drawing, and once more, which must not do anything again."""
        done = []
        for _ in range(2):
            for task in "12":
                self.run(script, SLURM_ARRAY_TASK_ID=task)
            done.append([(self.folder / name).read_bytes() for name in ["plan-1.dxf", "plan-2.dxf"]])
        return [] if done[0] == done[1] else ["the job script does a drawing twice"]


def main():
    document = (ROOT / "docs/batch.md").read_text(encoding="utf-8")
    blocks = {block.language: block.text for block in guide.blocks(document)}
    commands = commands_of(document)
    with tempfile.TemporaryDirectory() as name:
        work = Guide(pathlib.Path(name), pathlib.Path(sys.argv[1]).resolve())
        work.run("scribe batch 'TCase Upper' plans --dry-run --report report.json")
        wrong = work.make(blocks["make"]) + work.send(blocks["sh"])
        for command in commands:
            if not work.run(command) and "jq" in command and "failed" not in command:
                wrong.append(f"{command} prints nothing")
    for sentence in wrong:
        print(sentence)
    print(f"{len(commands)} commands run, {len(wrong)} things are wrong")
    return 1 if wrong or not commands else 0


if __name__ == "__main__":
    sys.exit(main())
