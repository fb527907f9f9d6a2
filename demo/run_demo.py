"""Shows the program with the data of a fictional host: to a user at a display, or by itself on a virtual one."""
import argparse
import os
import shutil
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests/host"))

from desktop import User, VirtualDisplay, wait_until  # noqa: E402
from host import MODES, OVERLAPPED_SETS, OVERLAPPING, Host  # noqa: E402
from print_queue import PrintQueue  # noqa: E402
from session import DIALOG, Session  # noqa: E402



def prepared_host(options):
    folder = options.output / options.mode
    shutil.rmtree(folder, ignore_errors=True)
    host = Host(folder / "host")
    host.prepare()
    host.write_data(options.mode, OVERLAPPED_SETS[options.mode] if options.overlap or options.mode == "SimEx" else 0)
    if options.cover:
        host.write_cover()
    return host


def take_stable(user, path):
    """Takes a screenshot once the screen no longer changes."""
    def unchanged():
        before = path.read_bytes() if path.exists() else b""
        user.screenshot(path)
        return path.read_bytes() == before
    wait_until(unchanged, "a screen at rest")


def show_by_itself(options, host):
    """Drives dialog, preview, PDF and printer by keys; returns the files that show it."""
    folder = options.output / options.mode
    made = [folder / name for name in ("1-dialog.png", "2-preview.png", f"{options.mode}.pdf", "printed.pdf")]
    display, queue = VirtualDisplay(), PrintQueue()
    try:
        user = User(display.environment)
        process = host.start(options.program, options.mode, environment={**display.environment, **queue.environment})
        session = Session(user, process)
        session.wait_for(DIALOG)
        take_stable(user, made[0])
        if options.mode == "PrnSetting":
            user.press("Return")
            process.wait(timeout=30)
            return made[:1] + [host.options_file]
        session.confirm_dialog()
        take_stable(user, made[1])
        session.save_pdf(made[2])
        session.print_all(queue)
        queue.printed(made[3])
        session.close_preview()
        return made
    finally:
        queue.close()
        display.close()


def main():
    parser = argparse.ArgumentParser(prog="demo.sh", description="Plays the host and starts the print module.")
    parser.add_argument("mode", nargs="?", default="User", choices=sorted(MODES))
    parser.add_argument("--cover", action="store_true", help="with a cover letter, in colour")
    parser.add_argument("--overlap", action="store_true", help="with several data sets over one another")
    parser.add_argument("--headless", action="store_true", help="on a virtual display, even if there is a real one")
    parser.add_argument("--program", type=Path, default=ROOT / "build/release/src/tarvis", help=argparse.SUPPRESS)
    parser.add_argument("--output", type=Path, default=ROOT / "build/demo", help=argparse.SUPPRESS)
    options = parser.parse_args()
    if options.overlap and options.mode not in OVERLAPPING:
        parser.error(f"only {', '.join(OVERLAPPING)} can overlap")
    host = prepared_host(options)
    has_display = os.environ.get("DISPLAY") or os.environ.get("WAYLAND_DISPLAY")
    if has_display and not options.headless:
        return host.start(options.program, options.mode).wait()
    made = show_by_itself(options, host)
    print("The program ran on a virtual display. See", *made, sep="\n  ")
    return 0


if __name__ == "__main__":
    sys.exit(main())
