"""A long benchmark keeps its results when a start goes wrong."""
import contextlib
import io
import sys
import unittest
from types import SimpleNamespace
from unittest import mock

from program_case import ROOT

sys.path.insert(0, str(ROOT / "bench"))

import program_bench  # noqa: E402

JOB = program_bench.Job("200 rows", "User", parameters=200)
OPTIONS = SimpleNamespace(build=None, runs=3)


class Measurements:
    """A measurement that goes wrong in these of its runs, counted from 0."""
    __name__ = "measure_start"

    def __init__(self, wrong):
        self._wrong = wrong
        self.runs = 0

    def __call__(self, options, job, *way):
        self.runs += 1
        if self.runs - 1 in self._wrong:
            raise AssertionError("nothing came up on the screen within 30 s")
        return {program_bench.START: 100.0}


class ProgramBench(unittest.TestCase):
    def medians(self, measure):
        """The medians of three runs, and what was said meanwhile."""
        with contextlib.redirect_stderr(io.StringIO()) as said:
            return program_bench.medians(3, measure, OPTIONS, JOB), said.getvalue().splitlines()

    def test_tries_a_start_again_and_says_so(self):
        measure = Measurements(wrong={1})
        result, said = self.medians(measure)
        self.assertEqual(result, {program_bench.START: 100.0})
        self.assertEqual(measure.runs, 4)
        self.assertEqual(said, ["200 rows, measure_start: nothing came up on the screen within 30 s; trying again"])

    def test_goes_on_without_a_measurement_that_always_goes_wrong(self):
        result, said = self.medians(Measurements(wrong=range(100)))
        self.assertEqual(result, {})
        self.assertEqual(sum("left out" in line for line in said), 3)

    def test_prints_the_table_of_what_it_has(self):
        good, wrong = Measurements(wrong=()), Measurements(wrong=range(100))
        measures = {"measure_program": wrong, "measure_document": good, "measure_empty_dialog": wrong,
                "measure_whole_process": lambda _: None, "measure_wide_screen": lambda _: None,
                "open_held_queue": lambda: None,
                "part_benchmarks": lambda *_: [("a part [ms]", 1.0)]}
        with mock.patch.multiple(program_bench, **measures), mock.patch.object(sys, "argv", ["bench"]), \
                contextlib.redirect_stderr(io.StringIO()), contextlib.redirect_stdout(io.StringIO()) as printed:
            program_bench.main()
        self.assertRegex(printed.getvalue(), r"start to visible dialog \[ms\] +\|( +100 \(x 1\.00\) \|){3}")
        self.assertIn("a part [ms]", printed.getvalue())

    def test_compares_what_a_print_queue_gets_with_the_pdf(self):
        measured = {"PDF [ms]": 50.0, program_bench.PDF: 40.0, program_bench.SPOOLED[0]: 44.0}
        self.assertEqual(program_bench.beside_pdf(measured), {"handed to a print queue [times as long as the PDF]": 1.1})

    def test_does_not_wait_for_a_program_that_has_ended(self):
        screen = program_bench.Screen(None)
        screen._pixels = b"white" * 400
        with self.assertRaisesRegex(AssertionError, "ended with status 1"):
            screen.wait_for_run(program_bench.BLACK, 400, 0, SimpleNamespace(poll=lambda: 1, returncode=1))


if __name__ == "__main__":
    unittest.main()
