"""However a run is made to end, no half file stays, and what the desktop takes away meanwhile is reported."""
import signal
import unittest

from program_case import ProgramCase  # also finds the modules of tests/host
import servo_pack
from desktop import User, VirtualDisplay, wait_until
from print_file import PrintFile, write_parameters
from print_queue import QUEUE, PrintQueue
from saved_pdf import page_count
from session import DIALOG, PREVIEW


class Signals(ProgramCase):
    """The system asks the program to end: the user logs out, the machine goes down."""

    def start_dialog(self, **options):
        self.host.write_data("User")
        session = self.start("User", **options)
        session.wait_for(DIALOG)
        return session

    def end(self, session, request=signal.SIGTERM, status=0, left=()):
        """Asks the program to end and expects it to, with no file left but these."""
        session.process.send_signal(request)
        self.expect_end(session.process, status)
        self.assertEqual(self.files_left(), [*left])

    def test_end_the_dialog_as_cancel_does(self):
        for request in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
            with self.subTest(request=request.name):
                session = self.start_dialog()
                self.end(session, request)
                self.assertFalse(self.host.options_file.exists())
                self.assertEqual(self.standard_error(), "")

    def test_end_the_preview_as_its_closing_does(self):
        session = self.start_dialog()
        session.confirm_dialog()
        written = self.host.options_file.read_bytes()
        self.end(session)
        self.assertEqual(self.host.options_file.read_bytes(), written)

    def test_end_a_window_above_another(self):
        session = self.start_dialog()
        session.confirm_dialog()
        self.user.press("ctrl+s")
        session.wait_for("Save as PDF")
        self.end(session)

    def test_end_a_numbered_failure_as_its_answer_does(self):
        self.host.write_data("User")
        session = self.start("user", edition=1)
        session.wait_for("Printing Error")
        self.end(session)

    def test_end_a_run_time_failure_as_its_answer_does(self):
        self.host.write_data("User")
        session = self.start(None, arguments=["User"])
        session.wait_for("Run-time error")
        self.end(session, status=1, left=["User.tmp"])

    def test_are_ignored_if_the_caller_ignores_them(self):
        session = self.start_dialog(through=("sh", "-c", 'trap "" HUP; exec "$@"', "sh"))
        session.process.send_signal(signal.SIGHUP)
        session.confirm_dialog()
        self.assertEqual(session.close_preview(), 0)

    def test_leave_no_half_pdf(self):
        file = PrintFile("Parameter File", servo_pack.MODELS, "long.prm")
        write_parameters(file, list(servo_pack.PARAMETERS) * 100, servo_pack.SWITCHES, "")
        file.write(self.host.temp_folder / "User.tmp")
        target = self.folder / "target"
        target.mkdir()
        session = self.start("User")
        session.confirm_dialog()
        session.ask_for_pdf(target / "document.pdf")
        self.end(session)
        for path in target.iterdir():  # it may have been in time
            self.assertEqual(path.name, "document.pdf")
            self.assertGreater(page_count(path), 100)


class LostDisplay(ProgramCase):
    def setUp(self):
        super().setUp()
        self.lost = VirtualDisplay()
        self.addCleanup(self.lost.close)
        self.user = User(self.lost.environment)
        self.host.write_data("User")

    def environment(self):
        return {**super().environment(), **self.lost.environment}

    def lose(self, session):
        self.lost.close()
        self.expect_end(session.process, 1)
        # The toolkit has two wordings, by which of its threads sees the end first.
        self.assertRegex(self.standard_error(), r"(?m)^The X11 connection broke(: I/O error| \(error 1\))")
        self.assertEqual(self.files_left(), ["User.tmp"])

    def test_ends_the_dialog_with_a_message_and_touches_no_file(self):
        session = self.start("User")
        session.wait_for(DIALOG)
        self.lose(session)
        self.assertFalse(self.host.options_file.exists())

    def test_ends_the_preview_with_a_message_and_touches_no_file(self):
        session = self.start("User")
        session.confirm_dialog()
        self.lose(session)
        self.assertTrue(self.host.options_file.exists())

    def test_ends_a_message_box_with_a_message_and_touches_no_file(self):
        session = self.start(None, arguments=["user", "host.html", "1", "1"])
        session.wait_for("Printing Error")
        self.lose(session)


class LostPrinter(ProgramCase):
    def setUp(self):
        super().setUp()
        self.queue = PrintQueue()
        self.addCleanup(self.queue.close)

    def environment(self):
        return {**super().environment(), **self.queue.environment}

    def test_is_reported_while_its_dialog_is_open_and_the_preview_stays(self):
        self.host.write_data("User")
        session = self.start("User")
        session.confirm_dialog()
        self.user.press("ctrl+p")
        session.wait_for("Print")
        self.queue.remove_queue()
        self.user.press("Return")
        self.wait_for_words("The document was not printed.")
        self.wait_for_words(f'The printer "{QUEUE}" did not take the document')
        self.user.press("Return")
        wait_until(lambda: [window.name for window in self.program.windows()] == [PREVIEW], "the message to go")
        session.save_pdf(self.folder / "document.pdf")
        self.assertEqual(session.close_preview(), 0)
        self.assertEqual(self.files_left(), [])

    def test_keeps_the_pdf_as_an_output_after_the_start(self):
        self.host.write_data("User")
        session = self.start("User")
        session.confirm_dialog()
        self.queue.remove_queue()
        session.save_pdf(self.folder / "document.pdf")
        self.assertEqual(session.close_preview(), 0)


if __name__ == "__main__":
    unittest.main()
