#!/usr/bin/env python3
"""run_targets.py BUILD_FOLDER SECONDS [TARGET...]: runs every fuzz target for so many seconds, or those that are named.

Prints one line for each target, and ends with 1 when one of them found something. What a target learns is kept in
BUILD_FOLDER/grown and used in the next run; inputs that broke a law are kept in BUILD_FOLDER/findings.
"""

import os
import pathlib
import re
import subprocess
import sys

import make_corpus

HERE = pathlib.Path(__file__).resolve().parent
LONGEST_INPUT = {"dxf_read": 16384}
SANITIZERS = {"ASAN_OPTIONS": "allocator_may_return_null=1",
              "LSAN_OPTIONS": f"suppressions={HERE.parent / 'cmake' / 'leak_suppressions.txt'}:print_suppressions=0"}
WITH_CODES = ("read_text", "text_round_trip", "edit_sequence", "letters_json")
REASON = re.compile(r"^Broken law: .*|^.*runtime error: .*|^==\d+==\s*ERROR: .*|^SUMMARY: .*", re.MULTILINE)


def arguments(build, target, seconds):
    """The command line of one run, without its program."""
    grown, findings = build / "grown" / target, build / "findings" / target
    grown.mkdir(parents=True, exist_ok=True)
    findings.mkdir(parents=True, exist_ok=True)
    dictionary = [f"-dict={HERE / 'format_codes.dict'}"] if target in WITH_CODES else []
    return [str(grown), str(build / "corpus" / target), *dictionary, f"-max_total_time={seconds}",
            f"-max_len={LONGEST_INPUT.get(target, 4096)}", "-len_control=10", "-rss_limit_mb=2048", "-timeout=25",
            f"-artifact_prefix={findings}/", "-print_final_stats=1"]


def last_number(pattern, text):
    found = re.findall(pattern, text)
    return int(found[-1]) if found else 0


def run(build, target, seconds):
    """Runs one target, and returns what to say of it and whether it found nothing."""
    command = [str(build / "bin" / f"fuzz_{target}"), *arguments(build, target, seconds)]
    ended = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False,
                           env={**os.environ, **SANITIZERS})
    log = ended.stdout.decode("utf-8", "replace")
    (build / f"{target}.log").write_text(log, encoding="utf-8")
    executions = last_number(r"stat::number_of_executed_units:\s+(\d+)", log)
    if ended.returncode == 0:
        if executions == 0:
            return f"{target}: NOTHING WAS RUN, see {build / target}.log", False
        return f"{target}: {executions} executions in {seconds} s, no finding", True
    reason = REASON.search(log)
    kept = re.findall(r"Test unit written to (\S+)", log)
    return (f"{target}: FINDING after {executions} executions: {reason.group() if reason else 'it ended'}; "
            f"the input is {kept[-1] if kept else 'not known'}, the log {build / target}.log"), False


def main():
    if len(sys.argv) < 3 or not sys.argv[2].isdigit():
        sys.exit("usage: run_targets.py BUILD_FOLDER SECONDS [TARGET...]")
    build, seconds = pathlib.Path(sys.argv[1]).resolve(), int(sys.argv[2])
    clean = True
    for target in sys.argv[3:] or make_corpus.SEEDS:
        line, fine = run(build, target, seconds)
        print(line, flush=True)
        clean = clean and fine
    return 0 if clean else 1


if __name__ == "__main__":
    sys.exit(main())
