"""Makes the pictures of the user guide: starts the program in each mode on a virtual display, opens its pages by keys,
and keeps what the screen shows as small pictures."""
import argparse
import subprocess
import sys
import tempfile
from contextlib import contextmanager
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests/host"))

import image_magick  # noqa: E402
from desktop import User, VirtualDisplay, wait_until  # noqa: E402
from host import Host  # noqa: E402
from session import DIALOG, PREVIEW, Session  # noqa: E402

ITEM_PAGE = "353x265+9+187"  # of the dialog's inside, in pixels
PAGES_TAB = (108, 50)  # in the preview's inside
COLOURS = 96


class Stage:
    """One run of the program, and the screen that it is seen on."""

    def __init__(self, options, user, session, folder):
        self.options = options
        self.user = user
        self.session = session
        self._folder = folder

    def _screen(self):
        path = self._folder / "screen.ppm"
        self.user.screenshot(path)
        return path.read_bytes()

    def rest(self, before=None):
        """Waits until the screen is another than `before` and no longer changes."""
        last = [before]

        def at_rest():
            now = self._screen()
            still = now == last[0] and now != before
            last[0] = now
            return still
        wait_until(at_rest, "a screen at rest")

    def press(self, *keys):
        """Presses keys of which each changes what is seen."""
        for key in keys:
            before = self._screen()
            self.user.press(key)
            self.rest(before)

    def write(self, text):
        before = self._screen()
        self.user.write(text)
        self.rest(before)

    def take(self, name, title, crop=None, whole=False):
        """Keeps the window of this title as NAME.png: with its frame, or `crop` of its inside, or the whole screen
        around it, where a list hangs out of the window."""
        window = "root" if whole else self.session.wait_for(title)
        self.rest()
        raw = self._folder / "window.png"
        self.user.screenshot(raw, window, framed=not (crop or whole))
        cut = ["-crop", crop, "+repage"] if crop else ["-trim", "+repage"] if whole else []
        subprocess.run([*image_magick.command("convert"), raw, *cut, "-strip", "+dither", "-colors", str(COLOURS),
                        "-define", "png:compression-level=9", f"PNG8:{self.options.output / name}.png"], check=True)


def take_dialog(stage):
    stage.take("dialog", DIALOG)
    stage.press("alt+p")
    stage.take("page-parameters", DIALOG, ITEM_PAGE)


def take_cover(stage):
    stage.press("alt+e")
    stage.take("cover-submitter", "Cover")
    stage.press("alt+1")
    stage.take("cover-addressee", "Cover")
    stage.press("alt+g")
    stage.take("cover-greeting", "Cover")


def page(name, *keys):
    """The item page after these keys of the dialog."""
    def take(stage):
        stage.press(*(keys or ["alt+p"]))
        stage.take(name, DIALOG, ITEM_PAGE)
    return take


def take_simulation_comparison(stage):
    stage.press("alt+p")
    stage.take("page-simulation-overlapping", DIALOG, ITEM_PAGE)
    stage.press("alt+l")
    stage.take("page-simulation-details", DIALOG, ITEM_PAGE)


def take_program_table(stage):
    stage.press("alt+p", "alt+r", "ctrl+a")
    stage.write("16")
    stage.press("Tab")
    stage.write("26")
    stage.take("page-program-table", DIALOG, ITEM_PAGE)
    stage.write("9")
    stage.user.press("alt+h")
    stage.take("message-input-error", "Input Error")


def take_function_list(stage):
    stage.press("alt+u", "alt+Down")
    stage.take("function-list", DIALOG, whole=True)


def take_preview(stage):
    stage.press("alt+c")
    stage.session.confirm_dialog()
    stage.take("preview", PREVIEW)
    stage.user.click(stage.session.wait_for(PREVIEW), *PAGES_TAB)
    stage.press("Down")
    stage.take("preview-pages", PREVIEW)


def take_preview_cover(stage):
    stage.session.confirm_dialog()
    stage.press("ctrl+0")
    stage.take("preview-cover", PREVIEW)


def take_find(stage):
    stage.session.confirm_dialog()
    stage.press("ctrl+f")
    stage.write("speed")
    stage.take("preview-find", PREVIEW)


def take_printing_error(stage):
    (stage.temp_folder / "User.tmp").unlink()
    stage.session.wait_for(DIALOG)
    stage.user.press("Return")
    stage.take("message-printing-error", "Printing Error")


@dataclass(frozen=True)
class Run:
    """One start of the program, and what is taken of it."""
    mode: str
    take: callable
    names: tuple
    edition: int = None
    overlapped: int = 0
    cover: bool = False


RUNS = (
    Run("User", take_dialog, ("dialog", "page-parameters"), cover=True),
    Run("User", take_cover, ("cover-submitter", "cover-addressee", "cover-greeting"), cover=True),
    Run("Trace", page("page-tracing"), ("page-tracing",), overlapped=3),
    Run("RealTrace", page("page-real-time-tracing"), ("page-real-time-tracing",)),
    Run("Mecha", page("page-mechanical-analysis"), ("page-mechanical-analysis",)),
    Run("Sim", page("page-simulation"), ("page-simulation",)),
    Run("SimEx", take_simulation_comparison, ("page-simulation-overlapping", "page-simulation-details"), overlapped=11),
    Run("IdxTbl", take_program_table, ("page-program-table", "message-input-error")),
    Run("ZoneTbl", page("page-zone-table"), ("page-zone-table",)),
    Run("PrnSetting", take_function_list, ("function-list",), edition=1),
    Run("Trace", take_preview, ("preview", "preview-pages"), overlapped=3),
    Run("User", take_preview_cover, ("preview-cover",), cover=True),
    Run("User", take_find, ("preview-find",)),
    Run("User", take_printing_error, ("message-printing-error",)),
)


@contextmanager
def stage_of(options, display, run):
    """The program at its dialog, with the host's data for this run; gone at the end."""
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        host = Host(folder)
        host.prepare()
        host.write_data(run.mode, run.overlapped)
        if run.cover:
            host.write_cover(named="logo.bmp")
        environment = {**display.environment, "CUPS_SERVER": "127.0.0.1:1", "XDG_RUNTIME_DIR": name, "HOME": name,
                       "LANG": "C.UTF-8"}
        user = User(display.environment)
        process = host.start(options.program, run.mode, run.edition, environment=environment, cwd=folder)
        try:
            stage = Stage(options, user, Session(user, process), folder)
            stage.temp_folder = host.temp_folder
            stage.session.wait_for(DIALOG)
            stage.rest()
            yield stage
        finally:
            process.kill()
            process.wait()


def main():
    parser = argparse.ArgumentParser(prog="tools/make_pictures", description=__doc__)
    parser.add_argument("--program", type=Path, default=ROOT / "build/release/src/tarvis", help=argparse.SUPPRESS)
    parser.add_argument("--output", type=Path, default=ROOT / "docs/pictures", help=argparse.SUPPRESS)
    parser.add_argument("names", nargs="*", help="pictures to make; all if none is named")
    options = parser.parse_args()
    options.output.mkdir(parents=True, exist_ok=True)
    display = VirtualDisplay()
    try:
        for run in RUNS:
            if options.names and not set(options.names) & set(run.names):
                continue
            with stage_of(options, display, run) as stage:
                run.take(stage)
    finally:
        display.close()
    return 0


if __name__ == "__main__":
    sys.exit(main())
