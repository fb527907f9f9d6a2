"""Killed at whatever moment: the old file or the new one is there, whole, and the next save takes away what is left over.

A few moments are tried here; `tools/reliability kills` tries a thousand, spread over the calls to the system.
"""
import shutil
import signal
import unittest

from call_faults import ERRORS, moments_of
from leftovers import age_leftovers
from pdf_ends import EVERY, OLDER, PdfEnds

MOMENTS = 1000 if EVERY else 3
OF_SAVING = ("openat", "write", "close", "fsync", "fchmodat", "rename")
WITHOUT_ERRORS = ("munmap", "exit_group")


def spread(moments, count):
    """That many of them at even distances, the last ones always among them: they write the file."""
    return [moments[-1 - index * len(moments) // count] for index in range(min(count, len(moments)))]


class KilledPdf(PdfEnds):
    """tarvis-pdf."""

    def kill_at(self, moment):
        """Whether the new file was there already, and whether something was left over."""
        folder = self.output / str(moment).replace(" ", "-")
        done = self.run_into(folder, moment.killing())
        self.assertEqual(done.returncode, -signal.SIGKILL, moment)
        pdf = folder / "document.pdf"
        content = pdf.read_bytes()
        self.assertIn(content, (OLDER, self.reference), moment)
        left = age_leftovers(folder, pdf.name)
        self.assertEqual({path.name for path in folder.iterdir()}, {pdf.name, *(path.name for path in left)}, moment)
        if left:
            self.assertEqual(self.run_again(folder).returncode, 0)
            self.assertEqual([path.name for path in folder.iterdir()], [pdf.name], moment)
            self.assertEqual(pdf.read_bytes(), self.reference, moment)
        shutil.rmtree(folder)
        return content == self.reference, bool(left)

    def test_leaves_the_old_pdf_or_the_new_one(self):
        self.prepare("Trace")
        moments = self.moments(moments_of, (*ERRORS, *WITHOUT_ERRORS) if EVERY else OF_SAVING)
        ends = [self.kill_at(moment) for moment in spread(moments, MOMENTS)]
        self.assertEqual(len(ends), MOMENTS)
        self.assertTrue(any(left for _, left in ends), "no kill came while the file was written")
        print(f"{len(ends)} kills: the new PDF {sum(new for new, _ in ends)} times, left over {sum(left for _, left in ends)} times")


if __name__ == "__main__":
    unittest.main()
