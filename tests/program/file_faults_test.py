"""Files that vanish, change or can't be written while the program runs: reported where that is required, and nothing is lost."""
import os
import shutil
import unittest

from program_case import AS_A_USER, ON_A_FULL_DISK, ProgramCase
from desktop import wait_until
from saved_pdf import words_in_a_row
from session import DIALOG

OPTIONS_BEFORE = b"File-Spec,4\r\nDrowCorp,Northport Motion Ltd.\r\n"


class FileFaults(ProgramCase):
    def confirm(self, session):
        session.wait_for(DIALOG)
        self.user.press("Return")

    def saved_words(self, session):
        pdf = self.folder / "document.pdf"
        session.save_pdf(pdf)
        return words_in_a_row(pdf)


class TemporaryFolder(FileFaults):
    def test_is_a_missing_file_after_ok_if_it_never_was(self):
        shutil.rmtree(self.host.temp_folder)
        session = self.start("User")
        self.confirm(session)
        self.expect_failure(session, "Parameter File is wrong.")
        self.assertTrue(self.host.options_file.exists())

    def test_ends_the_dialog_of_a_program_table_if_it_never_was(self):
        shutil.rmtree(self.host.temp_folder)
        self.expect_failure(self.start("IdxTbl"), "Program Table File is wrong.")
        self.assertFalse(self.host.options_file.exists())

    def test_is_not_needed_for_settings(self):
        shutil.rmtree(self.host.temp_folder)
        session = self.start("PrnSetting")
        self.confirm(session)
        self.expect_end(session.process)
        self.assertTrue(self.host.options_file.exists())

    def test_is_missing_after_ok_if_it_goes_while_the_dialog_is_open(self):
        self.host.write_data("Trace")
        session = self.start("Trace")
        session.wait_for(DIALOG)
        shutil.rmtree(self.host.temp_folder)
        self.confirm(session)
        self.expect_failure(session, "Tracing File is wrong.")

    def test_takes_nothing_from_the_document_if_it_goes_while_the_preview_is_open(self):
        self.host.write_data("Mecha")
        session = self.start("Mecha")
        session.confirm_dialog()
        before = self.saved_words(session)
        shutil.rmtree(self.host.temp_folder)
        self.assertEqual(self.saved_words(session), before)
        self.assertEqual(session.close_preview(), 0)
        self.assertEqual(self.standard_error(), "")

    def test_is_missed_by_the_next_preview_if_it_goes_while_one_is_open(self):
        self.host.write_data("JogTbl")
        session = self.start("JogTbl")
        session.confirm_dialog()
        shutil.rmtree(self.host.temp_folder)
        self.edit_items(session)
        self.confirm(session)
        self.expect_failure(session, "Jog Speed Table File is wrong.")
        self.assertTrue(self.host.options_file.exists())


class DataFile(FileFaults):
    def test_shows_after_the_next_ok_if_it_is_written_again_while_the_preview_is_open(self):
        self.host.write_data("JogTbl")
        data = self.host.temp_folder / "IdxJogTbl.tmp"
        session = self.start("JogTbl")
        session.confirm_dialog()
        data.write_bytes(data.read_bytes().replace(b"Speeds grow by 40 %", b"Nothing is as it was"))
        self.assertIn("Speeds grow by 40 %", self.saved_words(session))
        self.edit_items(session)
        session.confirm_dialog()
        text = self.saved_words(session)
        self.assertIn("Nothing is as it was", text)
        self.assertNotIn("Speeds grow", text)
        self.assertEqual(session.close_preview(), 0)

    def test_can_not_be_read_if_it_is_a_folder(self):
        (self.host.temp_folder / "User.tmp").mkdir()
        session = self.start("User")
        self.confirm(session)
        self.expect_failure(session, "Parameter File is wrong.")
        self.assertIn("User.tmp", self.standard_error())
        self.assertEqual(self.files_left(), ["User.tmp"])  # only files are deleted

    def test_is_refused_by_its_size_of_five_gigabytes(self):
        data = self.host.temp_folder / "User.tmp"
        data.touch()
        os.truncate(data, 5_000_000_000)
        session = self.start("User")
        self.confirm(session)
        self.expect_failure(session, "Parameter File is wrong.")
        self.assertIn("tarvis: User.tmp: too large: 5000000000 bytes, where 33554432 are read at most", self.standard_error())
        self.assertEqual(self.files_left(), [])

    def test_is_not_waited_for_if_it_is_a_pipe(self):
        os.mkfifo(self.host.temp_folder / "Trace.tmp")
        session = self.start("Trace")
        self.confirm(session)
        self.expect_failure(session, "Tracing File is wrong.")
        self.assertEqual(self.files_left(), [])

    def test_is_wrong_if_it_may_not_be_read(self):
        self.host.write_data("User")
        (self.host.temp_folder / "User.tmp").chmod(0)
        session = self.start("User", through=AS_A_USER)
        self.confirm(session)
        self.expect_failure(session, "Parameter File is wrong.")
        self.assertEqual(self.files_left(), [])

    def test_stays_if_it_can_not_be_deleted_and_the_run_ends_all_the_same(self):
        self.host.write_data("User")
        self.addCleanup(self.host.temp_folder.chmod, 0o755)
        self.host.temp_folder.chmod(0o555)
        session = self.start("User", through=AS_A_USER)
        session.confirm_dialog()
        self.assertEqual(session.close_preview(), 0)
        self.assertEqual(self.files_left(), ["User.tmp"])
        self.assertEqual(self.standard_error(), "")


class Picture(FileFaults):
    # mode, what goes between dialog and preview, what is reported; black and white is chosen
    LOST = [("Trace", "TraceGraph.emf", "Graph File (Black & White) is not found."),
            ("Trace", "TraceNote.emf", "Explanatory File is not found."),
            ("RealTrace", "RealTraceGraph.emf", "Graph File (Black & White) is not found."),
            ("Mecha", "MechaPhase.emf", "Graph File (Black & White) is not found."),
            ("UPWizard", "schematic.bmp", "Parameter Wizard BMP File is not found.")]

    def lose(self, mode, name):
        self.host.write_data(mode)
        session = self.start(mode)
        session.wait_for(DIALOG)
        (self.host.temp_folder / name).unlink()
        return session

    def test_is_reported_by_its_kind_if_it_goes_while_the_dialog_is_open(self):
        for mode, name, words in self.LOST:
            with self.subTest(mode=mode, name=name):
                session = self.lose(mode, name)
                self.confirm(session)
                self.expect_failure(session, words)
                self.assertEqual(self.data_files_left(), [])

    def test_is_reported_as_one_in_colour(self):
        session = self.lose("Sim", "SimGraphC.emf")
        self.user.press("alt+c")
        self.confirm(session)
        self.expect_failure(session, "Graph File (Color) is not found.")

    def test_is_not_missed_if_it_is_not_chosen(self):
        session = self.lose("Sim", "SimGraphC.emf")
        session.confirm_dialog()
        self.assertEqual(session.close_preview(), 0)

    def test_is_reported_each_time_for_the_cover_letter(self):
        self.host.write_cover()
        for _ in range(2):
            self.host.write_data("JogTbl")
            session = self.start("JogTbl")
            session.wait_for(DIALOG)
            (self.folder / "logo.bmp").unlink(missing_ok=True)
            self.confirm(session)
            self.expect_failure(session, "Logo Mark File is not found.")
            self.assertIn(b"logo.bmp", self.host.options_file.read_bytes())

    def test_is_a_run_time_error_that_names_it_if_it_is_no_picture(self):
        self.host.write_data("Mecha")
        (self.host.temp_folder / "MechaGain.emf").write_bytes(b"no curve")
        session = self.start("Mecha")
        self.confirm(session)
        self.expect_run_time_error(session, "MechaGain.emf")
        self.assertIn("Mecha.tmp", self.files_left())


class OptionsFile(FileFaults):
    def setUp(self):
        super().setUp()
        self.before = [self.host.options_file, *self.host.system_folder.iterdir()]

    def beside_options(self):
        """Files that the host didn't put beside the options."""
        return [path.name for path in self.host.system_folder.iterdir() if path not in self.before]

    def run_to_the_end(self, through):
        """No message comes, the choice holds for this run, and the preview comes."""
        self.host.write_data("JogTbl")
        session = self.start("JogTbl", through=through)
        session.wait_for(DIALOG)
        self.user.press("alt+c")
        wait_until(lambda: self.widget(DIALOG, "radio button", "Color").has("checked"), "the choice")
        session.confirm_dialog()
        self.edit_items(session)
        self.assertTrue(self.widget(DIALOG, "radio button", "Color").has("checked"))
        session.confirm_dialog()
        self.assertEqual(session.close_preview(), 0)
        self.assertEqual(self.standard_error(), "")

    def in_a_folder_without_leave(self):
        self.addCleanup(self.host.system_folder.chmod, 0o755)
        self.host.system_folder.chmod(0o555)
        self.run_to_the_end(AS_A_USER)

    def test_does_not_matter_for_this_run_if_it_can_not_be_made(self):
        self.in_a_folder_without_leave()
        self.assertFalse(self.host.options_file.exists())
        self.assertEqual(self.data_files_left(), [])

    def test_stays_as_it_is_in_a_folder_without_permission(self):
        self.host.options_file.write_bytes(OPTIONS_BEFORE)
        self.in_a_folder_without_leave()
        self.assertEqual(self.host.options_file.read_bytes(), OPTIONS_BEFORE)

    def test_stays_as_it_is_on_a_full_disk(self):
        self.host.options_file.write_bytes(OPTIONS_BEFORE)
        self.run_to_the_end(ON_A_FULL_DISK)
        self.assertEqual(self.host.options_file.read_bytes(), OPTIONS_BEFORE)
        self.assertEqual(self.beside_options(), [])

    def test_is_not_made_on_a_full_disk(self):
        self.run_to_the_end(ON_A_FULL_DISK)
        self.assertFalse(self.host.options_file.exists())
        self.assertEqual(self.beside_options(), [])

    def test_keeps_mode_and_owner(self):
        self.host.options_file.write_bytes(OPTIONS_BEFORE)
        self.host.options_file.chmod(0o640)
        if os.geteuid() == 0:  # anyone else owns whatever he writes
            os.chown(self.host.options_file, 12345, 12345)
        before = self.host.options_file.stat()
        self.run_to_the_end(())
        after = self.host.options_file.stat()
        self.assertNotEqual(self.host.options_file.read_bytes(), OPTIONS_BEFORE)
        self.assertEqual((after.st_mode, after.st_uid, after.st_gid), (before.st_mode, before.st_uid, before.st_gid))
        self.assertEqual(self.beside_options(), [])

    def test_is_written_where_a_link_leads(self):
        real = self.folder / "my options"
        real.write_bytes(OPTIONS_BEFORE)
        self.host.options_file.symlink_to(real)
        self.run_to_the_end(())
        self.assertTrue(self.host.options_file.is_symlink())
        self.assertIn(b"DrowCorp,Northport Motion Ltd.\r\n", real.read_bytes())
        self.assertIn(b"ColorType,1\r\n", real.read_bytes())

    def test_is_missing_where_a_link_to_nowhere_is_in_its_place(self):
        self.host.options_file.symlink_to(self.folder / "nowhere")
        self.run_to_the_end(())
        self.assertTrue(self.host.options_file.is_symlink())
        self.assertFalse((self.folder / "nowhere").exists())

    def test_is_missing_where_a_pipe_is_in_its_place(self):
        os.mkfifo(self.host.options_file)
        self.run_to_the_end(())
        self.assertTrue(self.host.options_file.is_fifo())

    def test_is_failure_10_and_stays_if_it_may_not_be_read(self):
        self.host.options_file.write_bytes(OPTIONS_BEFORE)
        self.host.options_file.chmod(0)
        session = self.start("PrnSetting", through=AS_A_USER)
        self.expect_failure(session, "Printing Items Setting File is wrong.")
        self.assertEqual(self.host.options_file.read_bytes(), OPTIONS_BEFORE)

    def test_is_missing_where_a_folder_is_in_its_place(self):
        self.host.options_file.mkdir()
        self.run_to_the_end(())
        self.assertTrue(self.host.options_file.is_dir())


class SavedPdf(FileFaults):
    def setUp(self):
        super().setUp()
        self.target = self.folder / "target"
        self.target.mkdir()

    def start_preview(self, through):
        self.host.write_data("JogTbl")
        session = self.start("JogTbl", through=through)
        session.confirm_dialog()
        return session

    def expect_refusal(self, session):
        """The preview shows the reason, and stays for another try."""
        self.wait_for_words("The PDF was not saved.")
        self.wait_for_words(f"\"{self.target}/document.pdf\" can't be written")
        self.user.press("Return")
        wait_until(lambda: len(self.program.windows()) == 1, "the message to go")
        self.assertEqual(session.close_preview(), 0)

    def test_creates_nothing_on_a_full_disk(self):
        session = self.start_preview(ON_A_FULL_DISK)
        session.ask_for_pdf(self.target / "document.pdf")
        self.expect_refusal(session)
        self.assertEqual(list(self.target.iterdir()), [])

    def test_keeps_the_one_before_on_a_full_disk(self):
        before = self.target / "document.pdf"
        before.write_bytes(b"the one before")
        session = self.start_preview(ON_A_FULL_DISK)
        session.ask_for_pdf(before, replace=True)
        self.expect_refusal(session)
        self.assertEqual([(path.name, path.read_bytes()) for path in self.target.iterdir()],
                         [("document.pdf", b"the one before")])

    def test_is_reported_with_its_reason_in_a_folder_without_permission(self):
        self.target.chmod(0o555)
        session = self.start_preview(AS_A_USER)
        session.ask_for_pdf(self.target / "document.pdf")
        self.expect_refusal(session)
        self.assertEqual(list(self.target.iterdir()), [])


if __name__ == "__main__":
    unittest.main()
