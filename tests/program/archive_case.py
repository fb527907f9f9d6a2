"""What the tests of archives share: PDFs that are kept, of which a validator and programs that read PDFs have no word to say."""
import subprocess

from pdf_case import DAY, PdfCase
from preflight import as_part_1, complaints

# Programs that read a whole document and say what they find wrong.
READERS = (("qpdf", "--check"),
           ("gs", "-q", "-dNOPAUSE", "-dBATCH", "-dPDFSTOPONERROR", "-sDEVICE=nullpage"),
           ("mutool", "draw", "-q", "-F", "trace", "-o", "/dev/null"),
           ("pdfinfo",),
           ("pdftotext",))
HOW_IT_WAS_BUILT = "warning: ICC support is not available"  # of mutool, on some releases


def words_about(pdf):
    """What the readers complain of."""
    words = []
    for reader in READERS:
        last = [pdf, "/dev/null"] if reader[0] == "pdftotext" else [pdf]
        done = subprocess.run([*reader, *last], capture_output=True, text=True, check=False)
        lines = [line for line in done.stderr.splitlines() if line != HOW_IT_WAS_BUILT]
        words += [f"{reader[0]}: {line}" for line in lines]
        if done.returncode != 0:
            words.append(f"{reader[0]}: status {done.returncode} {done.stdout[-300:]}")
    return words


class ArchiveCase(PdfCase):
    def setUp(self):
        super().setUp()
        self.kept = self.folder / "kept"
        self.kept.mkdir()

    def keep(self, name, mode, *options, **run):
        self.make(mode, "--date", DAY, *options, **run).rename(self.kept / f"{name}.pdf")

    def kept_documents(self):
        return sorted(self.kept.glob("*.pdf"))

    def expect_archives(self, wanted=()):
        """`wanted`: names of documents of which the validator complains, with a pattern of each of its lines."""
        documents = self.kept_documents()
        self.assertEqual({pdf.name: words_about(pdf) for pdf in documents}, {pdf.name: [] for pdf in documents})
        changed = self.folder / "changed"
        changed.mkdir()
        found = complaints([as_part_1(pdf, changed / pdf.name) for pdf in documents])
        for name, pattern in dict(wanted).items():
            lines = found.pop(name)
            self.assertTrue(lines)
            for line in lines:
                self.assertRegex(line, pattern)
        self.assertEqual({name: lines for name, lines in found.items() if lines}, {})
