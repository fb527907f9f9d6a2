"""A virtual display with a window manager, and a user at it: waits for windows, presses keys, takes screenshots."""
import ctypes
import os
import signal
import subprocess
import threading
import time

import image_magick

DESKTOPS = 3  # another number than any window manager starts with
MIDDLE_BUTTON = 2
WHEEL_DOWN = 5


class Timeout(AssertionError):
    """Something that was waited for did not come."""


def wait_until(reached, what, seconds=60):
    """Asks again and again until `reached` gives something true, and returns that."""
    end = time.monotonic() + seconds
    pause = threading.Event()
    while True:
        answer = reached()
        if answer:
            return answer
        if time.monotonic() > end:
            raise Timeout(f"waited {seconds} s for {what}")
        pause.wait(0.02)


def end_with_parent():
    """To be run in a new process: it is killed when the one that started it ends, however that comes about."""
    PR_SET_PDEATHSIG = 1
    ctypes.CDLL(None).prctl(PR_SET_PDEATHSIG, signal.SIGKILL)


class VirtualDisplay:
    """An X server of its own, until `close`. `server_options` are passed on to it. Keys don't repeat: on a busy machine
    there would be no telling how often."""

    def __init__(self, size="1280x1000", server_options=()):
        self.name = wait_until(lambda: self._start_server(size, server_options), "an X server")
        self.environment = {"DISPLAY": self.name}
        self._manager = self._start_manager()
        wait_until(self._manages, "the window manager")

    def _start_server(self, size, server_options):
        """The name of the display; nothing if another server that starts at this moment takes it away."""
        read_end, write_end = os.pipe()
        self._server = subprocess.Popen(["Xvfb", "-displayfd", str(write_end), "-screen", "0", f"{size}x24",
                                         "-nolisten", "tcp", "-noreset", "-r", *server_options],
                                        pass_fds=[write_end], stderr=subprocess.DEVNULL, preexec_fn=end_with_parent)
        os.close(write_end)
        with os.fdopen(read_end) as answer:
            number = answer.readline().strip()
        if number:
            return f":{number}"
        self._server.wait()
        return None

    def _start_manager(self):
        return subprocess.Popen(["openbox"], env={**os.environ, **self.environment}, stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL, preexec_fn=end_with_parent)

    def _manages(self):
        """Whether the window manager does what it is asked for. It announces itself long before that, and a window that
        comes up in between may stay unseen: the manager has read the request, but sleeps until the next one arrives. So
        it is asked for something harmless, which wakes it as well, until the answer is there."""
        if self._manager.poll() is not None:  # it gives up on a server that is slow to answer
            self._manager = self._start_manager()
        environment = {**os.environ, **self.environment}
        subprocess.run(["xdotool", "set_num_desktops", str(DESKTOPS)], env=environment, capture_output=True, check=False)
        answer = subprocess.run(["xprop", "-root", "_NET_NUMBER_OF_DESKTOPS"], env=environment,
                              capture_output=True, text=True, check=False)
        return answer.stdout.split()[-2:] == ["=", str(DESKTOPS)]

    def close(self):
        for process in (self._manager, self._server):
            process.terminate()
            process.wait()


class User:
    """Sits at a display. Every key goes to the window that has the focus, as from a real keyboard."""

    def __init__(self, environment):
        self._environment = {**os.environ, **environment}
        self._clipboard = None

    def _run(self, *command, check=True):
        return subprocess.run(command, env=self._environment, capture_output=True, text=True, check=check).stdout.strip()

    def windows(self, title):
        """Visible windows of exactly this title."""
        return self._run("xdotool", "search", "--onlyvisible", "--name", f"^{title}$", check=False).split()

    def titles(self):
        """Of all windows that are shown, for messages."""
        found = self._run("xdotool", "search", "--onlyvisible", "--name", ".+", check=False).split()
        return sorted({self._run("xdotool", "getwindowname", window, check=False) for window in found})

    def press_until(self, key, title, count):
        """Presses a key in the window of this title until `count` windows of the title show. A list of proposals may
        take the first one; no other window is ever given the key, however late the first one works."""
        for _ in range(20):
            if self.focused(title):
                self.press(key)
            try:
                return wait_until(lambda: len(self.windows(title)) == count, f"{count} windows '{title}'", seconds=3)
            except Timeout:
                continue
        raise Timeout(f"the key {key} doesn't lead to {count} windows '{title}'")

    def focused(self, title):
        """The window that has the focus, if its title is exactly this one."""
        window = self._run("xdotool", "getactivewindow", check=False)
        return window if window and self._run("xdotool", "getwindowname", window, check=False) == title else None

    def press(self, *keys):
        self._run("xdotool", "key", "--clearmodifiers", "--delay", "15", *keys)

    def write(self, text):
        self._run("xdotool", "type", "--clearmodifiers", "--delay", "2", text)

    def fill_in(self, text):
        """Puts a text in place of what the field holds that has the focus. It comes from the clipboard, in one piece:
        to single keys a file dialog answers with proposals, which may take some of them."""
        self._copy(text)
        self.press("ctrl+a", "ctrl+v")

    def select(self, text):
        """Selects a text somewhere else, for the middle button of the mouse."""
        self._copy(text, "primary")

    def _copy(self, text, selection="clipboard"):
        if self._clipboard:
            self._clipboard.kill()
            self._clipboard.wait()
        self._clipboard = subprocess.Popen(["xclip", "-quiet", "-selection", selection], env=self._environment,
                                           stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                           text=True, preexec_fn=end_with_parent)
        with self._clipboard.stdin as clipboard:
            clipboard.write(text)
        wait_until(lambda: self._run("xclip", "-o", "-selection", selection, check=False) == text, "the clipboard")

    def click(self, window, x, y, button=1):
        """Clicks at pixels from the window's top left corner; a notch of the wheel is a click of WHEEL_DOWN."""
        self._run("xdotool", "mousemove", "--window", window, str(x), str(y), "click", str(button))

    def place(self, window):
        """Left, top, width and height of a window's inside, in pixels of the display."""
        geometry = self._run("xdotool", "getwindowgeometry", "--shell", window)
        values = dict(line.split("=") for line in geometry.splitlines())
        return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    def screenshot(self, path, window="root", framed=False):
        """Of a window's inside, or with its title and frame."""
        self._run(*image_magick.command("import"), *(["-frame"] if framed else []), "-window", window, str(path))
