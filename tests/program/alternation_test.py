"""Dialog and preview take turns in one run without end."""
import re
import unittest
from pathlib import Path

from program_case import ProgramCase  # also finds the modules of tests/host
import servo_pack
from print_file import PrintFile, write_parameters
from saved_pdf import page_count, words_in_a_row

ROUNDS = 10
SETTLED = 4  # rounds after which fonts, icons and pictures are all there
GROWTH = 1024  # kilobytes; a dialog or preview that stays in memory in each round takes ten times as much and more

# Whoever frees memory gives it back at once, so that what the process holds is what the program holds.
GIVING_BACK = {"MALLOC_ARENA_MAX": "1", "MALLOC_TRIM_THRESHOLD_": "0", "MALLOC_MMAP_THRESHOLD_": "65536",
               "ASAN_OPTIONS": "quarantine_size_mb=0:thread_local_quarantine_size_kb=0:malloc_context_size=2"}


class Alternation(ProgramCase):
    def memory_of(self, session):
        """In kilobytes."""
        status = Path(f"/proc/{session.process.pid}/status").read_text()
        return int(re.search(r"VmRSS:\s+(\d+) kB", status)[1])

    def saved_words(self, session):
        session.save_pdf(self.folder / "document.pdf")
        return words_in_a_row(self.folder / "document.pdf")

    def alternate(self, mode, edition=None):
        session = self.start(mode, edition, environment=GIVING_BACK)
        session.confirm_dialog()
        words, held = self.saved_words(session), []
        for _ in range(ROUNDS):
            self.edit_items(session)
            held.append(self.memory_of(session))  # of the dialog: a preview paints on in the background for a while
            session.confirm_dialog()
        self.assertLess(held[-1] - held[SETTLED - 1], GROWTH, f"kilobytes by round: {held}")
        self.assertEqual(self.saved_words(session), words)
        self.assertEqual(session.close_preview(), 0)
        self.assertEqual(self.files_left(), [])
        self.assertEqual(self.standard_error(), "")

    def test_keeps_its_memory_with_a_parameter_list(self):
        self.host.write_data("User")
        self.alternate("User")

    def test_keeps_its_memory_with_curves_that_overlap(self):
        self.host.write_data("Trace", 3)
        self.alternate("Trace")

    def test_keeps_its_memory_with_a_long_list(self):
        file = PrintFile("Parameter File", servo_pack.MODELS, "long.prm")
        write_parameters(file, list(servo_pack.PARAMETERS) * 30, servo_pack.SWITCHES, "")
        file.write(self.host.temp_folder / "User.tmp")
        self.alternate("User")
        self.assertGreater(page_count(self.folder / "document.pdf"), 30)


if __name__ == "__main__":
    unittest.main()
