"""One run from the host's start to its end, by keys: dialog, preview, PDF, paper, back to the dialog, close."""
import unittest

from program_case import EDITING, ProgramCase  # also finds the modules of tests/host
from desktop import wait_until
from print_queue import PrintQueue
from saved_pdf import fact_of, page_count, text_of, words_of
from session import DIALOG, PREVIEW

TWIPS = 20.0  # to the point
PAPER_LEFT = 1440
ROW_PITCH = 295
DIGIT_WIDTH = 8.5 * 0.556 * TWIPS


class WholeRun(ProgramCase):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.queue = PrintQueue()
        cls.addClassCleanup(cls.queue.close)

    def environment(self):
        return {**super().environment(), **self.queue.environment}

    def test_goes_from_launch_to_exit(self):
        self.host.write_data("User")
        (self.host.temp_folder / "graph of another run.emf").write_bytes(b"x")
        session = self.start("User")
        self.turn_off_the_unit_column(session)
        first = self.folder / "first.pdf"
        session.confirm_dialog()
        session.save_pdf(first)
        self.expect_document(first, with_units=False)
        job = session.print_all(self.queue)
        self.expect_printed(job, first)

        self.press_until_focused(session, PREVIEW, "button", EDITING)
        self.user.press("space")
        self.turn_on_the_unit_column(session)
        second = self.folder / "second.pdf"
        session.confirm_dialog()
        session.save_pdf(second)
        self.expect_document(second, with_units=True)

        self.assertEqual(session.close_preview(), 0)
        self.assertEqual(self.files_left(), [])
        options = self.host.options_file.read_bytes().decode("cp1252").split("\r\n")
        self.assertEqual(options[0], "File-Spec,4")
        self.assertIn("UserOption,1,1,1,1,1", options)
        self.assertEqual(self.standard_error(), "")

    def turn_off_the_unit_column(self, session):
        dialog = self.window(session, DIALOG)
        self.assertIsNotNone(dialog.find("page tab", "Header & Footer"))
        self.user.press("alt+p")  # the tab "Printing Items"
        unit = wait_until(lambda: dialog.find("check box", "Unit"), "the tab of the printing items")
        self.assertTrue(unit.has("checked"))
        self.press_until_focused(session, DIALOG, "check box", "Unit")
        self.user.press("space")
        wait_until(lambda: not unit.has("checked"), "the mark to go")

    def turn_on_the_unit_column(self, session):
        dialog = self.window(session, DIALOG)
        self.user.press("alt+p")
        unit = wait_until(lambda: dialog.find("check box", "Unit"), "the tab of the printing items")
        self.assertFalse(unit.has("checked"), "the dialog has forgotten what was confirmed")
        self.press_until_focused(session, DIALOG, "check box", "Unit")
        self.user.press("space")
        wait_until(lambda: unit.has("checked"), "the mark")

    def expect_document(self, pdf, with_units):
        self.assertEqual(fact_of(pdf, "Title"), "Parameters")  # the function's title in the options
        self.assertEqual(fact_of(pdf, "Author"), "Demo Host Ver.2.00")  # who made the data file
        words = words_of(pdf, 1)
        table_top = next(top for word, _, _, top, _ in words if word == "No.")
        places = {}
        for word, left, right, top, _ in words:
            if top > table_top - 0.05:
                places.setdefault(word, (left, right))
        self.expect_centred(places, "No.", 142, 708)
        self.expect_centred(places, "Name", 850, 3827)
        self.expect_centred(places, "S-000", 135, 705)
        self.expect_left(places, "Basic", 850 + 30)
        self.expect_right(places, "0x0011", 4677 + 1134 - 30)
        self.assertEqual("Unit" in places, with_units)
        if with_units:
            self.expect_centred(places, "Unit", 5811, 1984)
        self.expect_plain_rows_a_pitch_apart(pdf)
        self.expect_foot(words, pdf)
        self.assertIn("Parameters List", text_of(pdf))
        self.assertIn("Printing Date : ", text_of(pdf))
        self.assertIn("File Name : axis1.prm", text_of(pdf))

    def near(self, points, twips):
        self.assertLessEqual(abs(points - (PAPER_LEFT + twips) / TWIPS), 0.05)

    def expect_centred(self, places, word, left, width):
        self.near((places[word][0] + places[word][1]) / 2, left + width / 2)

    def expect_left(self, places, word, twips):
        self.near(places[word][0], twips)

    def expect_right(self, places, word, twips):
        self.near(places[word][1], twips)

    def expect_plain_rows_a_pitch_apart(self, pdf):
        tops = {word: (page, top) for page in range(1, page_count(pdf) + 1)
                for word, _, _, top, _ in words_of(pdf, page) if word in ("S-006", "S-007")}
        self.assertEqual(tops["S-006"][0], tops["S-007"][0])
        self.assertLessEqual(abs(tops["S-007"][1] - tops["S-006"][1] - ROW_PITCH / TWIPS), 0.05)

    def expect_foot(self, words, pdf):
        """"Page", the number, "/" and the count are at the foot of the paper."""
        pages = page_count(pdf)
        self.assertIn(pages, (3, 4))
        foot = [word for word in words if word[3] > (16838 - 720 - 480) / TWIPS]
        self.assertEqual([word[0] for word in foot], ["Page", "1/", str(pages)])  # number and slash touch
        self.near(foot[0][1], 7370)
        self.near(foot[1][1], 7935 + 420 - DIGIT_WIDTH)
        self.near(foot[2][1], 8505)

    def expect_printed(self, job, saved):
        """What the queue received says the same on as many pages, and its back end made a file of it."""
        received, printed = self.folder / "received.pdf", self.folder / "printed.pdf"
        self.queue.received(job, received)
        self.assertEqual(page_count(received), page_count(saved))
        self.assertEqual(text_of(received).split(), text_of(saved).split())
        self.queue.printed(printed)
        self.assertEqual(page_count(printed), page_count(saved))

    def test_dialog_and_preview_alternate_and_cancel_ends_without_writing(self):
        self.host.write_data("User")
        session = self.start("User")
        for _ in range(3):
            session.confirm_dialog()
            self.edit_items(session)
        written = self.host.options_file.read_bytes()
        self.user.press("Escape")
        self.assertEqual(session.process.wait(timeout=30), 0)
        self.assertEqual(self.host.options_file.read_bytes(), written)
        self.assertEqual(self.files_left(), [])

    def test_settings_are_saved_for_every_function(self):
        session = self.start("PrnSetting")
        dialog = self.window(session, DIALOG)
        self.assertTrue(dialog.find("combo box").has("enabled"))
        self.user.press("Return")
        self.assertEqual(session.process.wait(timeout=30), 0)
        lines = self.host.options_file.read_bytes().decode("cp1252").split("\r\n")
        self.assertEqual(len([line for line in lines if "Header," in line]), 9)

    def test_f1_opens_the_help_at_the_context_number(self):
        opened = self.folder / "opened"
        session = self.start("User", environment=self.note_opened(opened))
        session.wait_for(DIALOG)
        self.user.press("F1")
        self.assertEqual(self.wait_for_opened(opened, 1), [f"file://{self.host.help_file}#1200"])


if __name__ == "__main__":
    unittest.main()
