"""The figures of a long run: taken round by round, kept in a file, judged and drawn."""
import csv
import os
import re
import subprocess
import time
from dataclasses import asdict, dataclass, fields
from pathlib import Path

from levels import fitted

SETTLED = 8  # rounds after which fonts, icons and pictures are all there
TICKS = os.sysconf("SC_CLK_TCK")  # to the second


@dataclass(frozen=True)
class Figures:
    """Of a program whose dialog shows, after so many rounds of all and of this start of it."""
    total: int
    run: int
    mode: str
    round: int
    kilobytes: int
    descriptors: int
    threads: int
    processor: float  # seconds that the last round has taken of the processors
    seconds: float  # the same by the clock, with what the test itself does


# Figure, what is at most allowed to come along in a round, and what that is.
LIMITS = (("kilobytes", lambda mean: 16, "kilobytes of memory"),
          ("descriptors", lambda mean: 0.05, "open files"),
          ("threads", lambda mean: 0.05, "threads"),
          ("processor", lambda mean: 0.005 * mean, "seconds of processor"))


class Watch:
    """Takes the figures of one process."""

    def __init__(self, pid, run, mode):
        self._folder = Path(f"/proc/{pid}")
        self._run, self._mode, self._round = run, mode, 0
        self._last = self._times()

    def _times(self):
        spent = (self._folder / "stat").read_text().rsplit(")", 1)[1].split()
        return (int(spent[11]) + int(spent[12])) / TICKS, time.monotonic()

    def take(self, total):
        """After another round."""
        self._round += 1
        before, self._last = self._last, self._times()
        status = (self._folder / "status").read_text()
        return Figures(total, self._run, self._mode, self._round, int(re.search(r"VmRSS:\s+(\d+)", status)[1]),
                       len(os.listdir(self._folder / "fd")), int(re.search(r"Threads:\s+(\d+)", status)[1]),
                       round(self._last[0] - before[0], 2), round(self._last[1] - before[1], 2))


def judged(taken):
    """For each limit: what is limited, the line through the settled rounds of each start, the mean, and whether it is level."""
    settled = [figures for figures in taken if figures.round > SETTLED]
    runs = {figures.run for figures in settled}
    for name, limit_of, words in LIMITS:
        series = [[(figures.round, getattr(figures, name)) for figures in settled if figures.run == run] for run in runs]
        mean = sum(y for points in series for _, y in points) / max(1, len(settled))
        line = fitted(series)
        yield words, line, mean, line.is_level(limit_of(mean))


PLOT = """\
set terminal pngcairo size 1000,900 font 'Liberation Sans,11'
set output '{picture}'
set datafile separator ','
set multiplot layout 3,1
set key off
set xrange [0:{last}]
set yrange [0:*]
set title 'Megabytes of memory, at the dialog of each round'
plot '{table}' skip 1 using 1:($5/1024) with points pt 7 ps 0.3
set title 'Open files'
plot '{table}' skip 1 using 1:6 with points pt 7 ps 0.3
set title 'Seconds of processor in each round'
set xlabel 'rounds'
plot '{table}' skip 1 using 1:8 with points pt 7 ps 0.3
"""


def keep(taken, folder):
    """As a table and a picture of it."""
    folder.mkdir(parents=True, exist_ok=True)
    table, picture = folder / "soak.csv", folder / "soak.png"
    with table.open("w", newline="", encoding="utf-8") as file:
        writer = csv.DictWriter(file, [field.name for field in fields(Figures)])
        writer.writeheader()
        writer.writerows(asdict(figures) for figures in taken)
    script = PLOT.format(table=table, picture=picture, last=max(figures.total for figures in taken))
    subprocess.run(["gnuplot"], input=script, text=True, check=True)
    return table, picture
