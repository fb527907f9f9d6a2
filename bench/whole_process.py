"""Measures whole processes, from their start to a closed PDF of 16,000 parameters: tarvis-pdf, and its peers if they are
asked for. All take turns, so that what else the machine does strikes all of them; the table holds medians."""
import os
import statistics
import subprocess
import sys
import time
from dataclasses import dataclass
from pathlib import Path

PEERS = Path(__file__).resolve().parent / "peers"
KREPORT = Path("/usr/include/KReport3")
ROWS = 16000


@dataclass(frozen=True)
class Way:
    name: str
    command: tuple  # what it writes comes last
    environment: dict


def compiled(source, flags, folder, compiler="cc"):
    """A peer, built in `folder`."""
    program = folder / source.stem
    subprocess.run([compiler, "-O2", "-o", program, source, *flags], check=True)
    return program


def flags_of(*packages):
    """What a compiler needs for these libraries, as pkg-config knows them."""
    return subprocess.run(["pkg-config", "--cflags", "--libs", *packages], capture_output=True, text=True,
                          check=True).stdout.split()


def kreport(folder):
    """Nothing where it is not installed: not every release has it."""
    if not KREPORT.is_dir():
        print("KReport is not installed, so it is left out", file=sys.stderr)
        return []
    flags = ["-w", "-fPIC", "-I", KREPORT, *flags_of("Qt5PrintSupport", "Qt5Xml"), "-lKReport3"]
    program = compiled(PEERS / "kreport_table.cpp", flags, folder, "c++")
    return [Way("KReport", (program, ROWS), {"QT_QPA_PLATFORM": "offscreen"})]


def peers(folder):
    python = "/usr/bin/python3"  # the one that knows the system's modules
    return [Way("libharu", (compiled(PEERS / "libharu_table.c", ["-lhpdf"], folder), ROWS), {}),
            Way("cairo", (compiled(PEERS / "cairo_table.c", flags_of("cairo-pdf"), folder), ROWS), {}),
            Way("ReportLab", (python, PEERS / "reportlab_table.py", ROWS), {}),
            Way("groff", (PEERS / "groff_table.sh", ROWS), {}), *kreport(folder)]


def measured_once(way, pdf):
    """Seconds, seconds of the processor, megabytes and pages."""
    start = time.monotonic()
    process = subprocess.Popen([*(str(word) for word in way.command), str(pdf)], env={**os.environ, **way.environment},
                               stderr=subprocess.DEVNULL)
    _, status, used = os.wait4(process.pid, 0)
    elapsed = time.monotonic() - start
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        raise AssertionError(f"{way.name} ended with status {process.returncode}")
    return elapsed, used.ru_utime + used.ru_stime, used.ru_maxrss / 1024


def pages_of(pdf):
    output = subprocess.run(["pdfinfo", str(pdf)], capture_output=True, text=True, check=True).stdout
    return next(line.split()[1] for line in output.splitlines() if line.startswith("Pages:"))


def rows(ways, runs, folder):
    """A row for each way: times, memory, size, pages; in brackets how many times as long as the first way takes."""
    measured = {way.name: [] for way in ways}
    for _ in range(runs):
        for way in ways:
            measured[way.name].append(measured_once(way, folder / f"{way.name}.pdf"))
    medians = {name: [statistics.median(column) for column in zip(*runs_of_way)] for name, runs_of_way in measured.items()}
    first = medians[ways[0].name]
    for name, (elapsed, used, memory) in medians.items():
        pdf = folder / f"{name}.pdf"
        yield [name, f"{elapsed * 1000:.0f} (x {elapsed / first[0]:.2f})", f"{used * 1000:.0f} (x {used / first[1]:.2f})",
               f"{memory:.0f}", f"{pdf.stat().st_size / 1e6:.2f}", pages_of(pdf)]


HEAD = ["whole process, 16,000 rows", "time [ms]", "processor [ms]", "memory [MB]", "PDF [MB]", "pages"]
