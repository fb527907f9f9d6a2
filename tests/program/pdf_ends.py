"""Runs of tarvis-pdf that something goes wrong with, and which of their ends are promised."""
import os
import shutil
import subprocess
import sys
from collections import Counter
from concurrent.futures import ThreadPoolExecutor

from pdf_case import DAY, PdfCase, files_below

from host import MODES, OVERLAPPING

EVERY = os.environ.get("TARVIS_LONG") == "1"  # the whole of it is asked for, which takes long; a sample otherwise
JOBS = int(os.environ.get("TARVIS_JOBS", "2"))
OLDER = b"the PDF of yesterday"
HANGS_AFTER = 60  # seconds
COUNTED_AFTER = 1800  # seconds, with a look at the chain of functions at each call


def letters_on_pages(pdf):
    """In no order: what is beside what depends on how wide the font is."""
    text = subprocess.run(["pdftotext", "-raw", "-", "-"], input=pdf, capture_output=True, check=True).stdout
    return [sorted(b"".join(page.split())) for page in text.split(b"\f")]


def words_of(done):
    return done.stderr.decode(errors="replace").strip()


class PdfEnds(PdfCase):
    """Each run replaces an older PDF in a folder of its own. Several run side by side."""

    def prepare(self, mode):
        self.mode = mode
        self.host.write_data(mode, 3 if mode in OVERLAPPING else 0)
        self.host.write_cover()
        self.reference = self.make(mode, "--date", DAY).read_bytes()
        self.before = files_below(self.host.folder)
        self.pdf.unlink()

    def run_into(self, folder, through=(), **run):
        folder.mkdir()
        pdf = folder / "document.pdf"
        pdf.write_bytes(OLDER)
        return self.run_again(folder, through=through, **run)

    def run_again(self, folder, **run):
        return self.run_program("--date", DAY, self.mode, MODES[self.mode][0], folder / "document.pdf",
                                **{"timeout": HANGS_AFTER, **run})

    def is_right(self, pdf, may_change_fonts):
        """Where the library that looks for fonts can't read its rules, texts of graphs may come in another font."""
        return pdf == self.reference or may_change_fonts and letters_on_pages(pdf) == letters_on_pages(self.reference)

    def wrong_with(self, folder, done, may_change_fonts=False):
        """What is wrong with the end of a run; empty if it is promised."""
        files = {name.name: content for name, content in files_below(folder).items()}
        pdf = files.pop("document.pdf", None)
        if files:
            return f"{list(files)} left beside the PDF"
        if done.returncode == 0:
            return "" if self.is_right(pdf, may_change_fonts) else f"status 0 without the right PDF: {words_of(done)}"
        if done.returncode == 127 and "while loading shared libraries" in words_of(done):
            return "" if pdf == OLDER else "the older PDF has changed"  # the program has not begun
        if done.returncode not in (1, 2):
            return f"status {done.returncode}: {words_of(done)}"
        if pdf != OLDER:
            return "the older PDF has changed"
        if not any(line.startswith("tarvis-pdf: ") for line in words_of(done).splitlines()):
            return f"status {done.returncode} without a message: {words_of(done)}"
        return ""

    def expect_promised_ends(self, runs):
        """Of runs that each have a name and a command that becomes the program, and perhaps whether that may change fonts of
        graphs. Counts them by their exit status."""
        def end_of(run):
            name, through, *may_change_fonts = run
            folder = self.output / name.replace(" ", "-")
            done = self.run_into(folder, through)
            wrong = self.wrong_with(folder, done, *may_change_fonts)
            shutil.rmtree(folder)
            return done.returncode, f"{self.mode}: {name}: {wrong}" if wrong else ""

        ends, wrong = Counter(), []
        with ThreadPoolExecutor(JOBS) as pool:
            for status, words in pool.map(end_of, runs):
                ends[status] += 1
                if words:
                    wrong.append(words)
                    print(words, file=sys.stderr, flush=True)
        self.assertGreater(sum(ends.values()), 0)
        self.assertEqual(wrong, [])
        self.assertEqual(files_below(self.host.folder), self.before)
        return ends

    def moments(self, moments_of, *names, **options):
        """The moments of a run into a folder that is gone afterwards."""
        folder = self.output / "counted"
        moments = moments_of(lambda through: self.run_into(folder, through, timeout=COUNTED_AFTER), *names, **options)
        shutil.rmtree(folder)
        return moments
