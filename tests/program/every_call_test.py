"""Whatever call to the system fails: tarvis-pdf makes the right PDF, or it says why not and leaves every file as it was.

The calls that write the PDF are tried here. `tools/reliability calls [MODE...] [--each]` tries the calls of every mode with
every error: one call of each place, which is what the same chain of functions calls; each single one with `--each`.
"""
import random
import sys
import unittest
from collections import Counter

from call_faults import ERRORS, moments_by_place, moments_of, tracing
from pdf_case import PRINTING_MODES, output_of
from pdf_ends import EVERY, PdfEnds

CHOSEN = [mode for mode in PRINTING_MODES if mode in sys.argv]
EACH = "--each" in sys.argv
TRIED = (CHOSEN or PRINTING_MODES) if EVERY else ["JogTbl"]
OF_WRITING = ("write", "fsync", "rename", "fchmodat")


class EveryCall(PdfEnds):
    def tried(self, mode):
        if not EVERY:
            return self.moments(moments_of, OF_WRITING)
        places = self.moments(moments_by_place)
        if EACH:
            return [moment for moments in places for moment in moments]
        source = random.Random(mode)
        return [source.choice(moments) for moments in places]

    def test_may_fail(self):
        total = Counter()
        for mode in TRIED:
            with self.subTest(mode=mode):
                self.setUp()
                self.prepare(mode)
                moments = self.tried(mode)
                ends = self.expect_promised_ends((f"{moment} with {error}", moment.failing(error), moment.looks_for_fonts)
                                                 for moment in moments for error in ERRORS[moment.call])
                print(f"{mode}: {len(moments)} calls, {sum(ends.values())} runs, by exit status {dict(ends)}", flush=True)
                total += ends
        print(f"{sum(total.values())} runs, by exit status {dict(total)}")


class Font(PdfEnds):
    def test_is_named_if_it_can_not_be_opened_and_no_other_is_taken(self):
        self.prepare("JogTbl")
        for style in ("Regular", "Bold"):
            path = output_of("fc-match", "--format=%{file}", f"Liberation Sans:style={style}")
            done = self.run_into(self.output / style, tracing("--inject=openat:error=EIO", "-P", path, call="openat"))
            self.assertEqual(done.stderr.decode(), "tarvis-pdf: run-time error: Liberation Sans: a font can't be loaded\n")
            self.assertEqual(done.returncode, 1)


if __name__ == "__main__":
    unittest.main(argv=[argument for argument in sys.argv if argument not in (*CHOSEN, "--each")])
