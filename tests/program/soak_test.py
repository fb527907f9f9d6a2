"""The program used on and on: dialog, preview, PDF, print, back to the dialog, other items and data; at last closed.

`tools/reliability soak [--rounds N] [--seed S]` does this a thousand times. Several rounds are one run of the program,
with random choices and random data of a host; memory, open files and time of a round must stay level in each run, and
nothing may be left in any folder. The figures are put below build/reliability, with a picture of them.
"""
import argparse
import random
import unittest

from pdf_case import PRINTING_MODES
from print_queue import PrintQueue
from program_case import ROOT, ProgramCase
from random_data import RandomData
from saved_pdf import page_count
from session import DIALOG, PREVIEW
from soak import Watch, judged, keep
from desktop import wait_until

FOLDER = ROOT / "build" / "reliability"  # for the figures
ROUNDS_OF_A_RUN = range(25, 51)
ITEMS = "Printing Items"  # the tab, which the wizard has not
CHANGES = 3  # of items, at most, in each round
# Whoever frees memory gives it back at once, so that what the process holds is what the program holds.
GIVING_BACK = {"MALLOC_ARENA_MAX": "1", "MALLOC_TRIM_THRESHOLD_": "0", "MALLOC_MMAP_THRESHOLD_": "65536"}
# What the toolkit's dialogs and the library of fonts keep for the user, in place of what they kept before.
KEPT_AT_HOME = ("home/.config/QtProject.conf", "home/.local/share/user-places.xbel", "cache/")


class Soak(ProgramCase):
    def setUp(self):
        super().setUp()
        self.queue = PrintQueue(holds_jobs=True)
        self.addCleanup(self.queue.close)
        for name in ("home", "temporary", "saved"):
            (self.folder / name).mkdir()
        self.source = random.Random(CHOSEN.seed)
        self.data = RandomData(self.source, self.host)
        self.host.write_cover()
        self.taken, self.total, self.printed = [], 0, 0

    def environment(self):
        return {**super().environment(), **self.queue.environment, **GIVING_BACK, "HOME": str(self.folder / "home"),
                "TMPDIR": str(self.folder / "temporary"), "XDG_CACHE_HOME": str(self.folder / "cache")}

    def files(self):
        """Of all folders that a run could leave something in."""
        names = {str(path.relative_to(self.folder)) for path in self.folder.rglob("*") if not path.is_dir()}
        return {name for name in names if not name.startswith(KEPT_AT_HOME)}

    def change_items(self, session):
        """Ticks and unticks boxes of one tab or the other. A box can be grey, by what has been ticked before."""
        if self.source.random() < 0.7 and self.window(session, DIALOG).find("page tab", ITEMS):
            self.user.press("alt+p")
            self.widget(DIALOG, "page tab list", ITEMS)  # it is named after the tab that shows
        for _ in range(self.source.randrange(CHANGES + 1)):
            boxes = [box for box in self.window(session, DIALOG).all() if box.role == "check box"
                     and box.has("showing") and box.has("enabled")]
            box = self.source.choice(boxes)
            was_checked = box.has("checked")
            box.press()
            wait_until(lambda box=box, was=was_checked: box.has("checked") != was, f"the mark of '{box.name}' to change")

    def save(self, session):
        pdf = self.folder / "saved" / f"document {self.total}.pdf"
        session.save_pdf(pdf)
        self.assertGreater(page_count(pdf), 0)
        pdf.unlink()

    def print_on_held_queue(self, session):
        self.user.press("ctrl+p")
        session.wait_for("Print")
        self.user.press("Return")
        wait_until(self.queue.jobs_waiting, "the print job")
        session.wait_for(PREVIEW)
        self.queue.cancel_jobs()
        self.printed += 1

    def do_round(self, session):
        self.change_items(session)
        session.confirm_dialog()
        self.save(session)
        self.print_on_held_queue(session)
        self.total += 1

    def run_once(self, number, rounds):
        """One run of the program, of so many rounds."""
        mode = self.source.choice(PRINTING_MODES)
        self.data.write(mode)
        session = self.start(mode)
        session.wait_for(DIALOG)
        watch = Watch(session.process.pid, number, mode)
        for left in reversed(range(rounds)):
            self.do_round(session)
            if left:
                self.data.write(mode)
                self.edit_items(session)
                self.taken.append(watch.take(self.total))
        self.assertEqual(session.close_preview(), 0)
        self.assertEqual(self.standard_error(), "")
        self.data.take_away_pictures()

    def use_on_and_on(self):
        before, number = self.files() | {"stderr.txt", "base/bin/PrintOption.ToT"}, 0
        while self.total < CHOSEN.rounds:
            number += 1
            self.run_once(number, min(self.source.choice(ROUNDS_OF_A_RUN), CHOSEN.rounds - self.total))
            self.assertEqual(self.files() - before, set())
            print(f"{self.total} rounds in {number} runs", flush=True)
            keep(self.taken, FOLDER)

    def test_stays_level_and_leaves_nothing(self):
        try:
            self.use_on_and_on()
        finally:
            if self.taken:
                self.report()
        self.assertEqual([words for words, _, _, is_level in judged(self.taken) if not is_level], [])

    def report(self):
        table, picture = keep(self.taken, FOLDER)
        print(f"{self.total} rounds with seed {CHOSEN.seed}, {self.printed} prints: {table}, {picture}")
        for words, line, mean, is_level in judged(self.taken):
            print(f"{words}: {mean:.4g} at the mean, {line} in each round: {'level' if is_level else 'NOT LEVEL'}")


def chosen():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--rounds", type=int, default=1000)
    parser.add_argument("--seed", type=int, default=1)
    return parser.parse_args()


if __name__ == "__main__":
    CHOSEN = chosen()
    unittest.main(argv=[__file__])
