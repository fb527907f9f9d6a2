"""tarvis-pdf.exe under wine makes the PDF that tarvis-pdf makes here: the same words at the same places.

windows.sh runs it. TARVIS_PDF is the program of this machine, TARVIS_PDF_EXE that for Windows, TARVIS_WINE what runs it.
"""
import os
import re
import subprocess
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "program"))

from pdf_case import DAY, PRINTING_MODES, PROGRAM, PdfCase, output_of  # noqa: E402
from host import MODES  # noqa: E402

NATIVE = [PROGRAM]
WINDOWS = [os.environ["TARVIS_WINE"], os.environ["TARVIS_PDF_EXE"]]
OPTIONS = ["--code-page", "1252", "--paper", "A4", "--date", DAY]
FARTHEST = 0.05  # points
WORD = re.compile(r'<word xMin="([\d.-]+)" yMin="([\d.-]+)" xMax="([\d.-]+)" yMax="([\d.-]+)">(.*?)</word>|<(page) ')


def words_of(pdf):
    """Each word with its four edges; a new page is a word without edges."""
    return [(found[5] or found[4], [float(edge) for edge in found[:4] if edge])
            for found in WORD.findall(output_of("pdftotext", "-bbox", pdf, "-"))]


class WindowsPdf(PdfCase):
    def make(self, program, mode, name):
        # Names of files in the data are full paths of this machine, which are paths of wine's current drive.
        done = subprocess.run([*program, *OPTIONS, "--data", str(self.host.temp_folder), mode, str(MODES[mode][0]), name],
                              check=False, capture_output=True, text=True, cwd=self.folder, timeout=600)
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        return words_of(self.folder / name)

    def test_every_mode_has_the_same_words_at_the_same_places(self):
        for mode in PRINTING_MODES:
            with self.subTest(mode=mode):
                self.host.write_data(mode)
                native = self.make(NATIVE, mode, "native.pdf")
                windows = self.make(WINDOWS, mode, "windows.pdf")
                self.assertEqual([word for word, _ in windows], [word for word, _ in native])
                distance = max(abs(edge - other) for (_, edges), (_, others) in zip(native, windows)
                               for edge, other in zip(edges, others))
                print(f"{mode}: {len(native)} words and pages, at most {distance:.3f} pt apart", flush=True)
                self.assertLessEqual(distance, FARTHEST)


if __name__ == "__main__":
    unittest.main()
