"""Under whatever limit it runs: tarvis-pdf makes the right PDF, or it says why not and leaves every file as it was.

A few limits are tried here; `tools/reliability limits` goes through them in small steps.
"""
import unittest

from pdf_ends import EVERY, PdfEnds

MEGABYTE = 1 << 20


def limited(option, value):
    """The command that becomes a program under one limit."""
    return (f"{option} {value}", ("prlimit", f"--{option}={value}", "--"))


class LimitedRuns(PdfEnds):
    def expect_promised_ends_with_either(self, option, values):
        """Some of the runs make the PDF, and some don't. With fewer than eight files open at once, the library that looks for fonts
        leaves out its rules without a word, which no program notices."""
        self.prepare("Mecha")
        ends = self.expect_promised_ends(limited(option, value) for value in values)
        print(f"{option}: {sum(ends.values())} runs, by exit status {dict(ends)}")
        self.assertIn(0, ends)
        self.assertGreater(len(ends), 1)


class Limits(LimitedRuns):
    def test_may_be_reached_in_open_files(self):
        self.expect_promised_ends_with_either("nofile", [3, 4, *range(8, 17)] if EVERY else (4, 16))

    def test_may_be_reached_in_the_size_of_files(self):
        self.expect_promised_ends_with_either("fsize", range(0, MEGABYTE + 1, MEGABYTE // 256) if EVERY else (0, 4096, MEGABYTE))


class LimitsOfMemory(LimitedRuns):
    def begins(self, limit):
        """With less, the system's loader or a library breaks off before the program's first step."""
        return self.run_program("--version", through=limited("as", limit)[1]).returncode == 0

    def test_may_be_reached_in_memory(self):
        least = next(limit for limit in range(40 * MEGABYTE, 300 * MEGABYTE, MEGABYTE) if self.begins(limit))
        print(f"as: the program begins with {least // MEGABYTE} MB")
        self.expect_promised_ends_with_either("as", range(least, 300 * MEGABYTE, MEGABYTE))


if not EVERY:
    del LimitsOfMemory  # the sanitizers of a developer's build need more memory than there is; the long tests have none

if __name__ == "__main__":
    unittest.main()
