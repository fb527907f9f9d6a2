"""Folders on a file system that answers late: all that is promised comes, only later, and windows work meanwhile.

`tools/reliability folders` runs this; it needs a system that lets file systems be mounted.
"""
import unittest

from pdf_case import DAY, PdfCase
from program_case import ProgramCase
from desktop import wait_until
from host import MODES, Host
from late_folder import LateFolder
from session import PREVIEW

LATE = 0.2  # seconds that each answer takes
VERY_LATE = 2.0


class LateCase:
    def mount(self, name):
        late = LateFolder(self.folder / f"{name}-itself", self.folder / name)
        self.addCleanup(late.close)
        wait_until(late.is_there, "the file system")
        return late


class Pdf(LateCase, PdfCase):
    def test_is_the_same_from_and_into_folders_that_answer_late(self):
        late = self.mount("late")
        host = Host(late.mount / "host")
        host.prepare(pdf_printer=False)
        host.write_data("Trace", 3)
        host.write_cover()
        pdf = late.mount / "document.pdf"
        made = []
        for seconds in (0, LATE, LATE):  # made, made late, replaced late
            late.answer_after(seconds)
            done = self.run_program("--date", DAY, "Trace", MODES["Trace"][0], pdf,
                                    environment={"TARVIS_CONFIG": str(host.configuration)})
            self.assertEqual((done.returncode, done.stderr), (0, b""))
            late.answer_after(0)
            made.append(pdf.read_bytes())
            self.assertEqual(sorted(path.name for path in late.mount.iterdir()), ["document.pdf", "host"])
        self.assertEqual(made[1:], [made[0]] * 2)


class Windows(LateCase, ProgramCase):
    def test_lead_from_the_dialog_to_the_end_if_the_host_answers_late(self):
        late = self.mount("late")
        self.host = Host(late.mount / "host")
        self.host.prepare()
        self.host.write_data("Trace")
        late.answer_after(LATE)
        session = self.start("Trace")
        session.confirm_dialog()
        self.assertEqual(session.close_preview(), 0)
        late.answer_after(0)
        self.assertEqual(self.files_left(), [])
        self.assertEqual(self.standard_error(), "")

    def test_show_that_a_pdf_is_being_saved_and_can_cancel_it(self):
        late = self.mount("late")
        self.host.write_data("JogTbl")
        session = self.start("JogTbl")
        session.confirm_dialog()
        pdf = late.mount / "document.pdf"
        session.ask_for_pdf(pdf)
        wait_until(pdf.exists, "the PDF")
        session.wait_for(PREVIEW)
        before = pdf.read_bytes()
        self.user.press("ctrl+s")
        session.wait_for("Save as PDF")
        self.user.fill_in(str(pdf))
        self.user.press_until("Return", "Save as PDF", 2)
        late.answer_after(VERY_LATE)
        self.user.press_until("alt+y", "Save as PDF", 0)
        self.wait_for_words("Saving as PDF")
        self.user.press("Escape")
        late.answer_after(0)
        session.wait_for(PREVIEW)
        wait_until(lambda: len(self.program.windows()) == 1, "the progress to go")
        self.assertTrue(pdf.read_bytes() == before or pdf.read_bytes().rstrip().endswith(b"%%EOF"))
        self.assertEqual([path.name for path in late.mount.iterdir()], [pdf.name])
        self.assertEqual(session.close_preview(), 0)


if __name__ == "__main__":
    unittest.main()
