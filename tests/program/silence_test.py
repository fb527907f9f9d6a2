"""What takes connections and never answers keeps no window away, or the user can read what the start waits for."""
import os
import signal
import socket
import subprocess
import time
import unittest

from program_case import ProgramCase
from desktop import wait_until
from session import DIALOG, Session


class Silence(ProgramCase):
    def setUp(self):
        super().setUp()
        self.host.write_data("User")

    def silent(self, family, address):
        """A server that never looks at who has connected; returns its socket."""
        server = socket.socket(family)
        self.addCleanup(server.close)
        server.bind(address)
        server.listen()
        return server

    def silent_bus(self, name):
        self.silent(socket.AF_UNIX, str(self.folder / name))
        return f"unix:path={self.folder / name},guid=0123456789abcdef0123456789abcdef"

    def silent_port(self):
        """One that can be the port of a display."""
        while True:
            port = self.silent(socket.AF_INET, ("127.0.0.1", 0)).getsockname()[1]
            if port > 6000:
                return port

    def wait_for_dialog(self, session):
        """As the user sees it, for assistive tools may be left out."""
        return Session(self.user, session.process).wait_for(DIALOG)

    def expect_told(self, words):
        """One line, after ten seconds, and the start still waits."""
        wait_until(self.standard_error, f"'{words}'")
        self.assertEqual(self.standard_error(), f"tarvis: no window is shown yet; the start has waited 10 s for {words}\n")

    def expect_left_out(self, environment, name, address):
        """The dialog shows all the same, and one line says what is missing. On a busy machine another one may follow."""
        session = self.start("User", environment=environment)
        self.wait_for_dialog(session)
        self.assertEqual(self.standard_error().splitlines()[0],
                         f"tarvis: the {name} does not answer, so it is left out: {address}")
        self.user.press_until("Escape", DIALOG, 0)
        self.expect_end(session.process)

    def test_is_reported_for_the_display(self):
        display = f"127.0.0.1:{self.silent_port() - 6000}"
        self.start("User", environment={"DISPLAY": display})
        self.expect_told(f"the display {display}")

    def test_is_reported_for_the_print_system(self):
        self.host.prepare(pdf_printer=False)
        self.start("User", environment={"CUPS_SERVER": f"127.0.0.1:{self.silent_port()}"})
        self.expect_told("the print system")

    def test_counts_as_no_printer_after_half_a_minute_for_the_print_system(self):
        self.host.prepare(pdf_printer=False)
        session = self.start("User", environment={"CUPS_SERVER": f"127.0.0.1:{self.silent_port()}"})
        begin = time.monotonic()
        session.wait_for("Print", seconds=90)
        self.assertIn("tarvis: the print system does not answer, so no printer is known\n", self.standard_error())
        self.assertLess(time.monotonic() - begin, 90)
        self.answer_and_end(session, 0)

    def test_keeps_nobody_waiting_who_counts_the_pdf_as_a_printer(self):
        session = self.start("User", environment={"CUPS_SERVER": f"127.0.0.1:{self.silent_port()}"})
        session.wait_for(DIALOG)
        self.assertEqual(self.standard_error(), "")

    def test_is_reported_for_the_window_manager(self):
        root = subprocess.run(["xprop", "-root", "_OPENBOX_PID"], env={**os.environ, **self.display.environment},
                              capture_output=True, text=True, check=True).stdout
        manager = int(root.split()[-1])
        os.kill(manager, signal.SIGSTOP)
        self.addCleanup(os.kill, manager, signal.SIGCONT)
        session = self.start("User")
        self.expect_told("the window manager, which was asked to show a window")
        os.kill(manager, signal.SIGCONT)
        session.wait_for(DIALOG)

    def test_makes_the_program_do_without_the_session_bus(self):
        bus = self.silent_bus("silent")
        self.expect_left_out({"DBUS_SESSION_BUS_ADDRESS": bus}, "message bus of the session", bus)

    def test_makes_the_program_do_without_the_session_bus_in_its_usual_place(self):
        self.silent_bus("bus")
        self.expect_left_out({"DBUS_SESSION_BUS_ADDRESS": None}, "message bus of the session",
                             f"unix:path={self.folder}/bus")

    def test_makes_the_program_do_without_the_bus_of_the_assistive_tools(self):
        bus = self.silent_bus("silent")
        self.expect_left_out({"AT_SPI_BUS_ADDRESS": bus}, "message bus of the assistive tools", bus)


if __name__ == "__main__":
    unittest.main()
