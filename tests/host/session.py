"""One run of the program with a user at it: dialog, preview, PDF, printer, way out."""
from desktop import Timeout, wait_until

DIALOG = "Printing Item Setting"
PREVIEW = "Print Preview"


class Session:
    """`process` is the program just started at the display where `user` sits. `is_ready` says more exactly than the
    display can whether the program itself knows that its window of a title has the focus."""

    def __init__(self, user, process, is_ready=lambda title: True):
        self.user = user
        self.process = process
        self._is_ready = is_ready

    def wait_for(self, title, seconds=60):
        """Until the window has the focus. A program that ends instead is reported with its exit status."""
        try:
            return wait_until(lambda: self._focused(title), f"the window '{title}'", seconds)
        except Timeout as timeout:
            raise Timeout(f"{timeout}; shown are {self.user.titles()}") from None

    def _focused(self, title):
        if self.process.poll() is not None:
            raise Timeout(f"the program has ended with status {self.process.returncode}")
        return self.user.focused(title) if self._is_ready(title) else None

    def confirm_dialog(self, key="Return"):
        self.wait_for(DIALOG)
        self.user.press(key)
        return self.wait_for(PREVIEW)

    def save_pdf(self, path):
        """Saves as PDF by the keyboard."""
        path.unlink(missing_ok=True)
        self.ask_for_pdf(path)
        wait_until(lambda: path.exists() and path.read_bytes().rstrip().endswith(b"%%EOF"), f"{path}")
        self.wait_for(PREVIEW)

    def ask_for_pdf(self, path, replace=False):
        """Gives the order to save, `replace` of a file that is there; what comes of it is not waited for."""
        self.wait_for(PREVIEW)
        self.user.press("ctrl+s")
        self.wait_for("Save as PDF")
        self.user.fill_in(str(path))
        if replace:
            self.user.press_until("Return", "Save as PDF", 2)  # the question bears the dialog's title
        self.user.press_until("alt+y" if replace else "Return", "Save as PDF", 0)

    def print_all(self, queue, count=1):
        """Prints with the system's dialog as it comes up; returns the number of the print job."""
        self.wait_for(PREVIEW)
        self.user.press("ctrl+p")
        self.wait_for("Print")
        self.user.press("Return")
        job = queue.wait_for_job(count)
        self.wait_for(PREVIEW)
        return job

    def close_preview(self):
        """Closes the window as its own menu does; returns the exit status."""
        self.wait_for(PREVIEW)
        self.user.press("alt+F4")
        return self.process.wait(timeout=60)
