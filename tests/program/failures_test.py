"""Runs that fail end with the exact words, and keep the files that they must keep."""
import unittest

from bells import BellWatch
from program_case import ProgramCase


class Failures(ProgramCase):
    def test_five_beeps_are_heard_one_by_one_before_the_message(self):
        bells = BellWatch(self.display.name)
        self.addCleanup(bells.close)
        session = self.start(None, arguments=[])
        self.window(session, "Printing Error")
        times = bells.times()
        self.assertEqual(len(times), 5)
        for earlier, later in zip(times, times[1:]):
            self.assertGreaterEqual(later - earlier, 150)  # they have left the program 200 ms apart
        self.expect_failure(session, "Argument is wrong.")

    def test_no_argument_is_failure_1_and_deletes_nothing(self):
        self.host.write_data("User")
        self.expect_failure(self.start(None, arguments=[]), "Argument is wrong.")
        self.assertEqual(self.standard_error(), "tarvis: command line: no argument\n")
        self.assertEqual(self.files_left(), ["User.tmp"])

    def test_too_long_title_in_the_options_is_reported_over_the_dialog(self):
        self.host.options_file.write_bytes(b"File-Spec,4\r\nUserHeader,1,1,1,1,1," + b"x" * 41 + b"\r\n")
        session = self.start("User")
        text, _ = self.read_message(session, "Input Error")
        self.assertIn("Up to 40 Characters", text)
        self.assertIn("Printing Item Setting", [window.name for window in self.program.windows()])
        self.user.press("Return")
        session.wait_for("Printing Item Setting")
        self.user.press("Escape")
        self.expect_end(session.process)

    def test_unknown_edition_is_failure_1(self):
        self.expect_failure(self.start("User", edition=3), "Argument is wrong.")
        self.assertEqual(self.standard_error(), "tarvis: command line: no such edition: '3'\n")

    def test_mode_in_small_letters_is_failure_1_and_deletes_the_hosts_files(self):
        self.host.write_data("User")
        self.expect_failure(self.start(None, arguments=["user", "host.html", "1", "1"]), "Argument is wrong.")
        self.assertEqual(self.standard_error(), "tarvis: command line: no such mode of edition 1: 'user'\n")
        self.assertEqual(self.files_left(), [])

    def test_three_arguments_are_a_run_time_error_and_delete_nothing(self):
        self.host.write_data("User")
        self.expect_run_time_error(self.start(None, arguments=["User", "host.html", "1"]), "command line: argument 4: missing")
        self.assertEqual(self.files_left(), ["User.tmp"])

    def test_unknown_key_in_the_options_is_failure_10_and_names_the_line_on_standard_error(self):
        self.host.options_file.write_bytes(b"File-Spec,4\r\nColour,1\r\n")
        self.expect_failure(self.start("User"), "Printing Items Setting File is wrong.")
        self.assertIn("PrintOption.ToT", self.standard_error())
        self.assertIn("Colour", self.standard_error())
        self.assertTrue(self.host.options_file.exists())

    def test_unknown_key_in_the_parameter_file_is_failure_3_after_ok(self):
        (self.host.temp_folder / "User.tmp").write_bytes(b"File-Spec,3\r\nParameterNum,1\r\n")
        (self.host.temp_folder / "other.tmp").write_bytes(b"left by another run")
        session = self.start("User")
        session.wait_for("Printing Item Setting")
        self.user.press("Return")
        self.expect_failure(session, "Parameter File is wrong.")
        self.assertIn("ParameterNum", self.standard_error())
        self.assertEqual(self.files_left(), [])
        self.assertTrue(self.host.options_file.exists())

    def test_missing_parameter_file_is_failure_3(self):
        session = self.start("User")
        session.wait_for("Printing Item Setting")
        self.user.press("Return")
        self.expect_failure(session, "Parameter File is wrong.")

    def test_bad_number_in_the_parameter_file_is_a_run_time_error_and_deletes_nothing(self):
        (self.host.temp_folder / "User.tmp").write_bytes(b"File-Spec,3\r\nUserNum,many\r\n")
        session = self.start("User")
        session.wait_for("Printing Item Setting")
        self.user.press("Return")
        self.expect_run_time_error(session, "User.tmp", "UserNum", "many")
        self.assertEqual(self.files_left(), ["User.tmp"])

    def test_a_missing_printer_is_reported_and_the_run_ends(self):
        self.host.prepare(pdf_printer=False)
        self.host.write_data("User")
        session = self.start("User")
        text, _ = self.read_message(session, "Print")
        self.assertIn("No printer is installed.", text)
        self.answer_and_end(session, 0)
        self.assertEqual(self.files_left(), [])
        self.assertFalse(self.host.options_file.exists())

    def test_settings_need_no_printer(self):
        self.host.prepare(pdf_printer=False)
        session = self.start("PrnSetting")
        session.wait_for("Printing Item Setting")
        self.answer_and_end(session, 0)
        self.assertTrue(self.host.options_file.exists())


if __name__ == "__main__":
    unittest.main()
