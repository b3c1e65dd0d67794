"""What runs the fuzz targets has to tell a finding from a clean run; programs that only print stand in for the targets."""

import pathlib
import tempfile
import unittest

import run_targets

STATISTICS = "echo 'stat::number_of_executed_units: 1234' >&2"


class RunTargets(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.build = pathlib.Path(folder.name)
        (self.build / "bin").mkdir()

    def run_target(self, script):
        program = self.build / "bin" / "fuzz_read_text"
        program.write_text("#!/bin/sh\n" + script)
        program.chmod(0o755)
        return run_targets.run(self.build, "read_text", 7)

    def test_a_clean_run_tells_its_executions(self):
        self.assertEqual(self.run_target(STATISTICS), ("read_text: 1234 executions in 7 s, no finding", True))

    def test_a_finding_tells_the_law_and_the_input(self):
        line, clean = self.run_target(
            "echo 'Broken law: a word has a character'; echo 'Test unit written to found/crash-1'\n" + STATISTICS + "\nexit 77")
        self.assertFalse(clean)
        self.assertIn("FINDING after 1234 executions: Broken law: a word has a character", line)
        self.assertIn("found/crash-1", line)

    def test_what_a_sanitizer_says_is_told(self):
        line, clean = self.run_target("echo '/a/b.cpp:3:4: runtime error: 1e+300 is outside the range'; exit 1")
        self.assertFalse(clean)
        self.assertIn("runtime error: 1e+300 is outside the range", line)

    def test_a_run_without_executions_is_not_clean(self):
        line, clean = self.run_target("exit 0")
        self.assertFalse(clean)
        self.assertIn("NOTHING WAS RUN", line)

    def test_the_time_and_the_bounds_reach_the_target(self):
        self.run_target("echo \"$@\"")
        log = (self.build / "read_text.log").read_text()
        for expected in ("-max_total_time=7", "-max_len=4096", "-rss_limit_mb=2048", "-timeout=25", "grown/read_text"):
            self.assertIn(expected, log)


if __name__ == "__main__":
    unittest.main()
