"""The cover letter, edited by keys down to the choice of its logo in the file dialog, and help on the way."""
import os
import unittest

from program_case import ProgramCase  # also finds the modules of tests/host
from bitmap import Bitmap
from desktop import wait_until
from host import HELP_CONTEXT
from saved_pdf import is_colourful, words_in_a_row
from session import DIALOG

EDITOR = "Cover"
FILE_CHOICE = "Open"
OK = "alt+o"  # Enter would press the button that opened the editor, which has the focus again
LOGO_LABEL = "Place to store for the logo files + File name:"


class CoverEditing(ProgramCase):
    def setUp(self):
        super().setUp()
        self.host.write_data("JogTbl")
        self.pictures = self.folder / "pictures"
        self.pictures.mkdir()
        self.logo = self.pictures / "our logo.bmp"
        picture = Bitmap(120, 40)
        picture.fill(0, 0, 120, 40, 0xC02020)
        picture.save(self.logo)
        (self.pictures / "prices.txt").write_text("no picture")

    def open_editor(self, **options):
        session = self.start("JogTbl", **options)
        session.wait_for(DIALOG)
        self.user.press("alt+a", "alt+e")
        session.wait_for(EDITOR)
        return session

    def logo_text(self):
        return self.widget(EDITOR, "text", LOGO_LABEL).text

    def choose(self, session, name, key):
        """Opens the file dialog by its button's key, fills in a name, and answers by a key."""
        self.user.press("alt+r")
        session.wait_for(FILE_CHOICE)
        self.user.fill_in(str(name))
        wait_until(lambda: self.widget(FILE_CHOICE, "text", "File name:").text == str(name), f"the name {name}")
        self.user.press_until(key, FILE_CHOICE, 0)
        session.wait_for(EDITOR)

    def test_chooses_a_logo_that_is_printed_on_the_letter(self):
        session = self.open_editor()
        self.choose(session, self.logo, "Return")
        self.assertEqual(self.logo_text(), str(self.logo))
        self.user.press("alt+m")
        self.user.write("Northport Motion Ltd.")
        self.user.press("alt+o")
        session.confirm_dialog(OK)
        pdf = self.folder / "document.pdf"
        session.save_pdf(pdf)
        self.assertEqual(session.close_preview(), 0)
        self.assertTrue(is_colourful(pdf, 1))
        self.assertIn("Northport Motion Ltd.", words_in_a_row(pdf))
        lines = self.host.options_file.read_bytes().split(b"\r\n")
        self.assertIn(b"DrowLogo," + bytes(self.logo), lines)
        self.assertIn(b"DrowCorp,Northport Motion Ltd.", lines)

    def test_a_cancelled_choice_leaves_the_path(self):
        self.host.write_cover()
        session = self.start("JogTbl")
        session.wait_for(DIALOG)
        self.user.press("alt+a", "alt+a", "alt+e")  # back to the first addressee
        session.wait_for(EDITOR)
        before = self.logo_text()
        self.assertEqual(before, str(self.folder / "logo.bmp"))
        self.choose(session, self.logo, "Escape")
        self.assertEqual(self.logo_text(), before)

    def test_the_file_dialog_shows_pictures_only_and_all_kinds_of_them(self):
        session = self.open_editor()
        self.user.press("alt+r")
        session.wait_for(FILE_CHOICE)
        self.user.fill_in(str(self.pictures))
        self.user.press("Return")
        shown = wait_until(lambda: self.names_in_the_file_dialog() & {"our logo.bmp", "prices.txt"}, "the folder's files")
        self.assertEqual(shown, {"our logo.bmp"})
        kinds = [name.split()[0] for name in self.names_in_the_file_dialog() if " Image (" in name]
        self.assertEqual(sorted(kinds), ["BMP", "CUR", "DIB", "EMF", "GIF", "ICO", "JPG", "WMF"])

    def test_the_file_dialog_starts_in_the_folder_of_the_present_logo(self):
        self.host.write_cover(named=self.pictures / "old logo.bmp")
        session = self.start("JogTbl")
        session.wait_for(DIALOG)
        self.user.press("alt+e")
        session.wait_for(EDITOR)
        self.user.press("alt+r")
        session.wait_for(FILE_CHOICE)
        wait_until(lambda: "our logo.bmp" in self.names_in_the_file_dialog(), "the files beside the present logo")

    def test_a_path_that_never_answers_is_not_felt(self):
        pipe = self.pictures / "pipe.bmp"
        os.mkfifo(pipe)
        session = self.open_editor()
        self.user.press("alt+p")
        self.user.fill_in(str(pipe))
        self.user.press("alt+o")
        session.wait_for(DIALOG)
        self.user.press("alt+e")
        session.wait_for(EDITOR)
        self.assertEqual(self.logo_text(), str(pipe))

    def names_in_the_file_dialog(self):
        return {widget.name for widget in self.program.window(FILE_CHOICE).all()}

    def test_cancel_forgets_what_was_chosen(self):
        session = self.open_editor()
        self.choose(session, self.logo, "Return")
        self.user.press_until("Escape", EDITOR, 0)
        session.confirm_dialog(OK)
        self.assertEqual(session.close_preview(), 0)
        self.assertIn(b"\r\nDrowLogo,\r\n", self.host.options_file.read_bytes())

    def test_help_opens_in_both_dialogs_but_not_in_the_preview(self):
        opened = self.folder / "opened"
        page = f"file://{self.host.help_file}#{HELP_CONTEXT}\n"

        def wait_for_pages(count):
            wait_until(lambda: opened.exists() and opened.read_text() == page * count, f"page {count} of help")

        session = self.open_editor(environment=self.note_opened(opened))
        self.user.press("F1")
        wait_for_pages(1)
        self.user.press_until("Escape", EDITOR, 0)
        session.wait_for(DIALOG)
        self.user.press("F1")
        wait_for_pages(2)
        session.confirm_dialog(OK)
        self.user.press("F1")
        self.edit_items(session)
        self.user.press("F1")
        wait_for_pages(3)
        session.confirm_dialog(OK)
        self.assertEqual(session.close_preview(), 0)
        wait_for_pages(3)


if __name__ == "__main__":
    unittest.main()
