"""A folder on a file system that answers late, as a server at the end of a slow line does."""
import os
import subprocess
import sys
from pathlib import Path

SERVER = Path(__file__).with_name("late_file_system.py")


class LateFolder:
    """Shows the folder `source` as `mount`, both of which are made."""

    def __init__(self, source, mount):
        self.mount = Path(mount)
        self._delay = Path(f"{mount}.delay")
        for folder in (source, mount):
            Path(folder).mkdir(parents=True)
        self.answer_after(0)
        self._server = subprocess.Popen([sys.executable, SERVER, str(source), str(mount), str(self._delay)])

    def is_there(self):
        return os.path.ismount(self.mount)

    def answer_after(self, seconds):
        """Whoever waits at this moment still waits as long as before."""
        new = self._delay.with_suffix(".new")
        new.write_text(str(seconds))
        new.replace(self._delay)

    def close(self):
        self.answer_after(0)
        self._server.terminate()  # it unmounts what it serves
        self._server.wait(timeout=60)
        if self.is_there():  # somebody still uses it
            subprocess.run(["umount", "--lazy", str(self.mount)], check=True)
