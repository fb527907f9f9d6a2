"""A test that leaves itself out is listed as skipped, not as passed."""
import json
import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAM_TESTS = Path(__file__).resolve().parents[1] / "program"
sys.path.insert(0, str(PROGRAM_TESTS))

from passed_before import PassedBefore  # noqa: E402


class Skipped(unittest.TestCase):
    def test_roads_that_were_driven_before_are_skipped_in_the_list_of_tests(self):
        with tempfile.TemporaryDirectory() as folder:
            programs = [Path(folder) / name for name in ("tarvis", "tarvis-pdf")]
            for program in programs:
                program.write_text("a program that is never started")
            PassedBefore(*programs).keep()
            done = subprocess.run([PROGRAM_TESTS / "run", PROGRAM_TESTS / "roads_test.py"], check=False,
                                  env={**os.environ, **dict(zip(("TARVIS_PROGRAM", "TARVIS_PDF"), map(str, programs)))}, capture_output=True, text=True)
        self.assertIn("was driven with this program", done.stdout)
        self.assertEqual(done.returncode, self.skipped_status("roads_test"))

    def skipped_status(self, name):
        """The exit status for which ctest lists this test as skipped."""
        listed = subprocess.run(["ctest", "--test-dir", os.environ["TARVIS_BUILD"], "--show-only=json-v1"],
                              check=True, capture_output=True, text=True)
        test = next(test for test in json.loads(listed.stdout)["tests"] if test["name"] == name)
        return next((entry["value"] for entry in test["properties"] if entry["name"] == "SKIP_RETURN_CODE"), None)


if __name__ == "__main__":
    unittest.main()
