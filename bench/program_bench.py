"""Measures the whole program and the benchmarks of its parts, and prints one table.

A large parameter file is the largest that the host can write: a file has at most 32,768 lines.
"""
import argparse
import json
import mmap
import os
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "demo"))

import servo_pack  # noqa: E402
from desktop import User, VirtualDisplay  # noqa: E402
from host import Host  # noqa: E402
from print_file import PrintFile, write_parameters  # noqa: E402
from session import DIALOG, PREVIEW, Session  # noqa: E402

PARAMETERS, SWITCHES = 16000, 150
DIALOG_GREY = b"\xef\xef\xef"  # background of the toolkit's windows, seen as soon as they are painted
BLACK = b"\0\0\0"              # the rule under a page's title


def write_large_file(folder):
    known = servo_pack.PARAMETERS
    parameters = [servo_pack.Parameter(f"S-{i}", known[i % len(known)].name, str(i * 7 % 9973), "100", "min-1")
                  for i in range(PARAMETERS)]
    digits = tuple(servo_pack.Digit(k, 1, "1", "0", "Function of the Digit", "Enabled while the axis moves")
                   for k in range(4))
    step = PARAMETERS // SWITCHES
    switches = [servo_pack.Switch(parameters[i * step].no, "1", "0", "name", digits) for i in range(SWITCHES)]
    file = PrintFile("Parameter File", servo_pack.MODELS, "large.prm")
    write_parameters(file, parameters, switches, "comment")
    file.write(folder / "User.tmp")


class Screen:
    """The frame buffer of a virtual display, read without asking the server."""

    def __init__(self, folder):
        self._folder = folder

    def options(self):
        return ("-wr", "-fbdir", str(self._folder))

    def open(self):
        with (self._folder / "Xvfb_screen0").open("rb") as buffer:
            self._pixels = mmap.mmap(buffer.fileno(), 0, prot=mmap.PROT_READ)

    def wait_for_run(self, colour, length, start):
        """Seconds since `start` until a run of pixels of this colour stands somewhere."""
        runs = [(colour + last) * length for last in (b"\0", b"\xff")]
        end = time.monotonic() + 30
        while time.monotonic() < end:
            if any(self._pixels.find(run) >= 0 for run in runs):
                return time.monotonic() - start
        raise AssertionError("nothing came up on the screen")


def peak_memory(pid):
    for line in Path(f"/proc/{pid}/status").read_text().splitlines():
        if line.startswith("VmHWM"):
            return int(line.split()[1]) / 1024
    raise AssertionError("no peak memory told")


def measure_run(program, large):
    """Start, OK to first page, PDF and memory of one run."""
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        host, screen = Host(folder), Screen(folder)
        host.prepare()
        if large:
            write_large_file(host.temp_folder)
        else:
            host.write_data("User")
        display = VirtualDisplay(server_options=screen.options())
        try:
            screen.open()
            user = User(display.environment)
            start = time.monotonic()
            process = host.start(program, "User", environment={**display.environment, "CUPS_SERVER": "127.0.0.1:1"})
            told = {"start to visible dialog [ms]": screen.wait_for_run(DIALOG_GREY, 200, start) * 1000}
            session = Session(user, process)
            session.wait_for(DIALOG)
            start = time.monotonic()
            user.press("Return")
            told["OK to first page on the screen [ms]"] = screen.wait_for_run(BLACK, 400, start) * 1000
            session.wait_for(PREVIEW)
            start = time.monotonic()
            session.save_pdf(folder / "large.pdf")
            told["save as PDF, with its dialog [ms]"] = (time.monotonic() - start) * 1000
            told["peak memory [MB]"] = peak_memory(process.pid)
            session.close_preview()
            return told
        finally:
            display.close()


def part_benchmarks(folder, bench_folder):
    """Name and milliseconds of every benchmark of the parts."""
    environment = {**os.environ, "TARVIS_BENCH_FOLDER": f"{folder}\\", "QT_QPA_PLATFORM": "offscreen"}
    for program in ("core_bench", "readers_bench", "preview_bench"):
        told = subprocess.run([str(bench_folder / program), "--benchmark_format=json"], env=environment,
                              capture_output=True, text=True, check=True)
        for row in json.loads(told.stdout)["benchmarks"]:
            scale = {"ns": 1e-6, "us": 1e-3, "ms": 1, "s": 1e3}[row["time_unit"]]
            yield f"{program}: {row['name']} [ms]", row["real_time"] * scale


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=Path, default=ROOT / "build/release")
    parser.add_argument("--runs", type=int, default=5, help="runs of the whole program; the table holds the median")
    told = parser.parse_args()
    rows = []
    for large in (False, True):
        runs = [measure_run(told.build / "src/tarvis", large) for _ in range(told.runs)]
        size = f"{PARAMETERS} parameters" if large else f"{len(servo_pack.PARAMETERS)} parameters"
        rows += [(f"program, {size}: {name}", statistics.median(run[name] for run in runs)) for name in runs[0]]
    with tempfile.TemporaryDirectory() as folder:
        write_large_file(Path(folder))
        rows += part_benchmarks(folder, told.build / "bench")
    width = max(len(name) for name, _ in rows)
    print(f"| {'what'.ljust(width)} | {'value':>10} |", f"|{'-' * (width + 2)}|{'-' * 11}:|", sep="\n")
    for name, value in rows:
        print(f"| {name.ljust(width)} | {value:10.2f} |")


if __name__ == "__main__":
    main()
