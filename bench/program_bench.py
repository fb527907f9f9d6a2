"""Measures the whole program, its parts, and the plain-toolkit way of doing the same work, and prints one table.

Three documents: a parameter list of 200 rows, one of 16,000 rows (a file has at most 32,768 lines, so that is the
largest that the host can write), and a simulation with eleven others over it. The toolkit's way puts the same rows into
tables of its own text document; it reads no metafiles, so its simulation has no graphs.
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
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests/host"))

import whole_process  # noqa: E402
from desktop import Timeout, User, VirtualDisplay  # noqa: E402
from host import Host  # noqa: E402
from large_files import write_parameter_file  # noqa: E402
from print_queue import QUEUE, PrintQueue  # noqa: E402
from session import DIALOG, PREVIEW, Session  # noqa: E402

DIALOG_GREY = b"\xef\xef\xef"  # background of the toolkit's windows, seen as soon as they are painted
BLACK = b"\0\0\0"              # the rule under a page's title
START = "start to visible dialog [ms]"
PDF = "PDF, once more [ms]"
SPOOLED = ("handed to a print queue [ms]", "the same in greys [ms]")
PATIENCE = 30  # seconds for anything to come up on the screen
TRIES = 3      # of one measurement, before the table goes without it


@dataclass(frozen=True)
class Job:
    title: str
    mode: str
    parameters: int = 0  # 0: the demo's data
    overlapped: int = 0

    @property
    def record(self):
        """The name of the data files."""
        return "Sim" if self.mode == "SimEx" else self.mode


JOBS = (Job("200 rows", "User", parameters=200), Job("16,000 rows", "User", parameters=16000),
        Job("11 simulations", "SimEx", overlapped=11))


def write_job(host, job):
    if job.parameters:
        write_parameter_file(host.temp_folder, job.parameters)
    else:
        host.write_data(job.mode, job.overlapped)


class Screen:
    """The frame buffer of a virtual display, read without asking the server."""

    def __init__(self, folder):
        self._folder = folder

    def options(self):
        return ("-wr", "-fbdir", str(self._folder))

    def open(self):
        with (self._folder / "Xvfb_screen0").open("rb") as buffer:
            self._pixels = mmap.mmap(buffer.fileno(), 0, prot=mmap.PROT_READ)

    def wait_for_run(self, colour, length, start, process):
        """Seconds since `start` until a run of pixels of this colour is somewhere; `process` is to paint it."""
        runs = [(colour + last) * length for last in (b"\0", b"\xff")]
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            if any(self._pixels.find(run) >= 0 for run in runs):
                return time.monotonic() - start
            if process.poll() is not None:
                raise AssertionError(f"the program has ended with status {process.returncode}")
        raise AssertionError(f"nothing came up on the screen within {PATIENCE} s")


def peak_memory(pid):
    for line in Path(f"/proc/{pid}/status").read_text().splitlines():
        if line.startswith("VmHWM"):
            return int(line.split()[1]) / 1024
    raise AssertionError("no peak memory found")


def measure_program(options, job):
    """What a user waits for in one run of the program."""
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        host, screen = Host(folder), Screen(folder)
        host.prepare()
        write_job(host, job)
        display = VirtualDisplay(server_options=screen.options())
        try:
            screen.open()
            user = User(display.environment)
            start = time.monotonic()
            process = host.start(options.build / "src/tarvis", job.mode,
                                 environment={**display.environment, "CUPS_SERVER": "127.0.0.1:1"},
                                 stderr=subprocess.DEVNULL)
            measured = {START: screen.wait_for_run(DIALOG_GREY, 200, start, process) * 1000}
            session = Session(user, process)
            session.wait_for(DIALOG)
            start = time.monotonic()
            user.press("Return")
            measured["OK to first page on the screen [ms]"] = screen.wait_for_run(BLACK, 400, start, process) * 1000
            session.wait_for(PREVIEW)
            start = time.monotonic()
            session.save_pdf(folder / "large.pdf")
            measured["save as PDF, with its dialog [ms]"] = (time.monotonic() - start) * 1000
            measured["peak memory of the program [MB]"] = peak_memory(process.pid)
            session.close_preview()
            return measured
        finally:
            display.close()


def measure_empty_dialog(options, job):
    """The start of the toolkit itself: an empty dialog."""
    with tempfile.TemporaryDirectory() as name:
        screen = Screen(Path(name))
        display = VirtualDisplay(server_options=screen.options())
        try:
            screen.open()
            start = time.monotonic()
            process = subprocess.Popen([str(options.build / "bench/document_bench"), "dialog"],
                                       env={**os.environ, **display.environment}, stderr=subprocess.DEVNULL)
            try:
                return {START: screen.wait_for_run(DIALOG_GREY, 200, start, process) * 1000}
            finally:
                process.kill()
                process.wait()
        finally:
            display.close()


def measure_document(options, job, way):
    """The steps of one document in a process of its own."""
    with tempfile.TemporaryDirectory() as name:
        host = Host(name)
        host.prepare()
        write_job(host, job)
        command = [str(options.build / "bench/document_bench"), way, job.record, f"{host.temp_folder}\\",
                   str(job.overlapped)]
        environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "XDG_RUNTIME_DIR": name}
        if options.queue and way == "tarvis":  # the toolkit would take minutes
            command.append(QUEUE)
            environment.update(options.queue.environment)
        measured = json.loads(subprocess.run(command, env=environment, capture_output=True, text=True, check=True).stdout)
        return measured | beside_pdf(measured)


def beside_pdf(measured):
    """How many times as long as the PDF it takes to hand the document to a print queue."""
    return {step.replace("[ms]", "[times as long as the PDF]"): measured[step] / measured[PDF]
            for step in SPOOLED if step in measured}


def open_held_queue():
    """A print queue that takes jobs and prints none, so that printing doesn't disturb what is measured next; None where
    this user may start no print server."""
    try:
        queue = PrintQueue()
        queue.hold_jobs()
        return queue
    except (OSError, subprocess.SubprocessError, Timeout) as failure:
        print(f"no print queue: {failure}; left out", file=sys.stderr)
        return None


def measured_with_patience(measure, options, job, *arguments):
    """What `measure` gives. What goes wrong once is said and tried again; nothing if it goes wrong each time, so that
    the other results are not lost."""
    for left in reversed(range(TRIES)):
        try:
            return measure(options, job, *arguments)
        except (AssertionError, OSError, subprocess.SubprocessError) as failure:
            print(f"{job.title}, {measure.__name__}: {failure}; {'trying again' if left else 'left out'}", file=sys.stderr)
    return {}


def medians(runs, measure, *arguments):
    rows = [row for row in (measured_with_patience(measure, *arguments) for _ in range(runs)) if row]
    return {name: statistics.median(row[name] for row in rows) for name in (rows[0] if rows else ())}


def part_benchmarks(folder, bench_folder):
    """Name and value of every benchmark of the parts."""
    environment = {**os.environ, "TARVIS_BENCH_FOLDER": f"{folder}\\", "QT_QPA_PLATFORM": "offscreen",
                   "XDG_RUNTIME_DIR": folder}
    for program in ("core_bench", "readers_bench", "preview_bench", "pictures_bench"):
        done = subprocess.run([str(bench_folder / program), "--benchmark_format=json"], env=environment,
                              capture_output=True, text=True, check=True)
        for row in json.loads(done.stdout)["benchmarks"]:
            scale = {"ns": 1e-6, "us": 1e-3, "ms": 1, "s": 1e3}[row["time_unit"]]
            yield f"{row['name']} [ms]", row["real_time"] * scale
            for counter in ("slowest_ms", "slowest_work_ms", "peak_megabytes"):
                if counter in row:
                    yield f"{row['name']} [{counter}]", row[counter]


def measure_wide_screen(options):
    """Frames of scrolling on a display of 3840 by 2160, and the peak of memory."""
    with tempfile.TemporaryDirectory() as folder:
        display = VirtualDisplay(size="3840x2160")
        try:
            environment = {**os.environ, **display.environment, "XDG_RUNTIME_DIR": folder}
            measured = json.loads(subprocess.run([str(options.build / "bench/wide_screen_bench")], env=environment,
                                                 capture_output=True, text=True, check=True).stdout)
        finally:
            display.close()
    size = f"{measured.pop('width')} x {measured.pop('height')}"
    peak = measured.pop("peak_megabytes")
    print_table([f"400 pages at {size}", "frames", "median [ms]", "longest [ms]", "over 16.7 ms", "work: median [ms]",
                 "work: longest [ms]"],
                [[way, str(of["frames"]), f"{of['median_ms']:.1f}", f"{of['longest_ms']:.1f}", str(of["late"]),
                  f"{of['median_work_ms']:.1f}", f"{of['longest_work_ms']:.1f}"]
                 for way, of in measured.items()])
    print(f"peak memory with all pages visited: {peak:.0f} MB\n")


def shown(value):
    return f"{value:.2f}" if value < 3 else f"{value:.1f}" if value < 100 else f"{value:.0f}"


def compared(ours, toolkits):
    """One cell: ours, and how many times as much the toolkit's way takes."""
    if ours is None:
        return ""
    return shown(ours) if toolkits is None else f"{shown(ours)} (x {toolkits / ours:.2f})"


def print_table(head, rows):
    widths = [max(len(row[column]) for row in [head, *rows]) for column in range(len(head))]
    for row in [head, ["-" * width for width in widths], *rows]:
        print("| " + " | ".join([row[0].ljust(widths[0])] + [t.rjust(w) for t, w in zip(row[1:], widths[1:])]) + " |")


def measure_whole_process(options):
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        write_parameter_file(folder, JOBS[1].parameters)
        ours = whole_process.Way("tarvis-pdf", (options.build / "src/tarvis-pdf", "--data", folder, "User", "1"), {})
        ways = [ours, *(whole_process.peers(folder) if options.peers else [])]
        print_table(whole_process.HEAD, list(whole_process.rows(ways, 3 * options.runs, folder)))
    print()


def measure_whole_documents(options):
    ours, toolkits = [], []
    for job in JOBS:
        ours.append(medians(options.runs, measure_program, options, job) |
                    medians(options.runs, measure_document, options, job, "tarvis"))
        toolkits.append(medians(options.runs, measure_empty_dialog, options, job) |
                        medians(options.runs, measure_document, options, job, "toolkit"))
    names = dict.fromkeys(name for own in ours for name in own)
    print_table(["whole documents (x toolkit's own way)", *(job.title for job in JOBS)],
                [[name, *(compared(own.get(name), other.get(name)) for own, other in zip(ours, toolkits))] for name in names])
    print()


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=Path, default=ROOT / "build/bench")
    parser.add_argument("--runs", type=int, default=5, help="runs of each document; the table holds the medians")
    parser.add_argument("--peers", action="store_true", help="measures other ways to a PDF beside tarvis-pdf")
    options = parser.parse_args()
    options.queue = open_held_queue()
    try:
        measure_whole_process(options)
        measure_whole_documents(options)
        measure_wide_screen(options)
    finally:
        if options.queue:
            options.queue.close()
    with tempfile.TemporaryDirectory() as folder:
        write_parameter_file(Path(folder), JOBS[1].parameters)
        print_table(["parts", "value"], [[name, f"{value:.2f}"] for name, value in part_benchmarks(folder, options.build / "bench")])


if __name__ == "__main__":
    main()
