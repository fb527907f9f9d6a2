"""Files that come out of the preview, saved or printed, and that the dialogs for them leave no other file."""
import os
import stat
import unittest

from program_case import ON_A_FULL_DISK, ProgramCase
from desktop import wait_until
from saved_pdf import page_count
from session import PREVIEW


class Output(ProgramCase):
    def setUp(self):
        super().setUp()
        self.home = self.folder / "home"
        self.home.mkdir()

    def environment(self):
        return {**super().environment(), "HOME": str(self.home), "XDG_CONFIG_HOME": None, "XDG_DATA_HOME": None,
                "XDG_CACHE_HOME": str(self.folder / "cache")}

    def start_preview(self, through=(), environment=None):
        self.host.write_data("JogTbl")
        session = self.start("JogTbl", through=through, environment=environment)
        session.confirm_dialog()
        return session

    def files_at_home(self):
        return sorted(str(path.relative_to(self.home)) for path in self.home.rglob("*") if not path.is_dir())

    def ask_to_print_into_a_file(self, session, replace):
        """Without a printer the dialog proposes a file; what it proposes is taken."""
        session.wait_for(PREVIEW)
        self.user.press("ctrl+p")
        session.wait_for("Print")
        if replace:
            self.user.press_until("Return", "Print", 2)  # the question bears the dialog's title
        self.user.press_until("alt+y" if replace else "Return", "Print", 0)

    def proposed_file(self, session):
        """Prints into the file that is proposed, and returns its path."""
        self.ask_to_print_into_a_file(session, replace=False)
        names = wait_until(lambda: [name for name in self.files_at_home() if name.endswith(".pdf")], "the file")
        session.wait_for(PREVIEW)
        return self.home / names[0]


class PrintedFile(Output):
    def test_is_the_pdf_of_the_document(self):
        session = self.start_preview()
        printed = self.proposed_file(session)
        self.assertEqual(printed.suffix, ".pdf")
        wait_until(lambda: printed.read_bytes().rstrip().endswith(b"%%EOF"), "the whole file")
        saved = self.folder / "saved.pdf"
        session.save_pdf(saved)
        self.assertEqual(page_count(printed), page_count(saved))
        self.assertLess(abs(printed.stat().st_size - saved.stat().st_size), 100)
        self.assertEqual(session.close_preview(), 0)

    def test_keeps_the_one_before_on_a_full_disk(self):
        session = self.start_preview()
        printed = self.proposed_file(session)
        self.assertEqual(session.close_preview(), 0)
        printed.write_bytes(b"the one before")

        session = self.start_preview(ON_A_FULL_DISK)
        self.ask_to_print_into_a_file(session, replace=True)
        self.wait_for_words("The PDF was not saved.")
        self.wait_for_words(f"\"{printed}\" can't be written")
        self.user.press("Return")
        wait_until(lambda: len(self.program.windows()) == 1, "the message to go")
        self.assertEqual(session.close_preview(), 0)
        self.assertEqual(self.files_at_home(), [printed.name])
        self.assertEqual(printed.read_bytes(), b"the one before")


class SavedFile(Output):
    def test_has_the_name_that_was_typed_quotes_and_all(self):
        session = self.start_preview()
        target = self.home / 'the "first" axis.pdf'
        session.save_pdf(target)
        self.assertEqual(session.close_preview(), 0)
        self.assertEqual(self.files_at_home(), [target.name])

    def test_is_opened_or_its_folder_from_the_line_that_says_where_it_is(self):
        opened = self.folder / "opened"
        session = self.start_preview(environment=self.note_opened(opened))
        target = self.home / "saved.pdf"
        session.save_pdf(target)
        self.wait_for_words(f"Saved as {target}")
        self.widget(PREVIEW, "button", "Open").press()
        self.assertEqual(self.wait_for_opened(opened, 1), [f"file://{target}"])
        self.widget(PREVIEW, "button", "Show in folder").press()
        self.assertEqual(self.wait_for_opened(opened, 2), [f"file://{target}", f"file://{self.home}"])
        self.assertEqual(session.close_preview(), 0)

    def test_never_takes_the_place_of_a_fifo(self):
        fifo = self.home / "fifo.pdf"
        os.mkfifo(fifo)
        session = self.start_preview()
        self.user.press("ctrl+s")
        session.wait_for("Save as PDF")
        self.user.fill_in(str(fifo))
        self.user.press_until("Return", "Save as PDF", 2)  # the refusal bears the dialog's title
        self.wait_for_words("is not an ordinary file and is not replaced")
        self.user.press_until("Return", "Save as PDF", 1)
        self.user.press_until("Escape", "Save as PDF", 0)
        self.assertEqual(session.close_preview(), 0)
        self.assertTrue(stat.S_ISFIFO(fifo.stat().st_mode))


class OtherFile(Output):
    def test_does_not_stay_in_the_users_home(self):
        session = self.start_preview()
        session.save_pdf(self.home / "saved.pdf")
        self.assertEqual(session.close_preview(), 0)
        self.assertEqual(self.files_at_home(), ["saved.pdf"])


if __name__ == "__main__":
    unittest.main()
