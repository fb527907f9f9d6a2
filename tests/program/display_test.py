"""The virtual display, which demo, tests and benchmarks share, is handed over only when windows can show on it."""
import os
import signal
import subprocess
import tempfile
import unittest
from pathlib import Path
from unittest import mock

import program_case  # noqa: F401  finds the modules of tests/host
from desktop import VirtualDisplay, wait_until

# As on a busy machine: announces itself, and is a second over reading its configuration before it cares for windows.
SLOW_MANAGER = """#!/bin/sh
PATH={path}
mkfifo {folder}/configuration
(sleep 1; : > {folder}/ready; cat /etc/xdg/openbox/rc.xml > {folder}/configuration) &
exec openbox --config-file {folder}/configuration
"""


class Display(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def put_before_the_systems_own(self, name, text):
        """Makes the environment find a command of the test's own."""
        command = self.folder / name
        command.write_text(text)
        command.chmod(0o755)
        patch = mock.patch.dict(os.environ, {"PATH": f"{self.folder}:{os.environ['PATH']}"})
        patch.start()
        self.addCleanup(patch.stop)

    def test_waits_for_a_window_manager_that_takes_care_of_windows(self):
        self.put_before_the_systems_own("openbox", SLOW_MANAGER.format(path=os.environ["PATH"], folder=self.folder))
        display = VirtualDisplay()
        self.addCleanup(display.close)
        self.assertTrue((self.folder / "ready").exists())

    def test_keeps_its_state_when_the_last_client_leaves(self):
        """A server that starts anew then throws out a program that comes at this moment."""
        display = VirtualDisplay()
        self.addCleanup(display.close)

        def properties(*names):
            return subprocess.run(["xprop", "-root", *names], env={**os.environ, **display.environment},
                                  capture_output=True, text=True, check=True).stdout
        manager = int(properties("_OPENBOX_PID").split()[-1])
        properties("-f", "MARK", "8s", "-set", "MARK", "kept")
        os.kill(manager, signal.SIGTERM)
        wait_until(lambda: Path(f"/proc/{manager}/stat").read_text().split()[2] == "Z", "the window manager's end")
        self.assertIn("kept", properties("MARK"))


if __name__ == "__main__":
    unittest.main()
