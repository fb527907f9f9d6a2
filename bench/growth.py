#!/usr/bin/env python3
"""Measures how time and memory of tarvis-pdf grow with the rows of its document, and draws it: growth.py OUT.svg

A parameter file has 16,000 rows at most, so the longest document is made of ten data sets over one another.
"""
import argparse
import statistics
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(ROOT / "tests/host"))

import modes  # noqa: E402
import whole_process  # noqa: E402
from large_files import many_parameters, write_parameter_file  # noqa: E402

SETS, ROWS_OF_A_SET = 10, 15000
LARGEST = SETS * ROWS_OF_A_SET


def measured(program, rows, runs, folder):
    """Milliseconds of the processor, megabytes and pages: medians of some runs."""
    if rows == LARGEST:
        modes.write_trace(folder, SETS, many_parameters(ROWS_OF_A_SET))
        mode = ("--set", "TraceOption=1,1,1,1,1,1,1,1,1", "Trace", "1")
    else:
        write_parameter_file(folder, rows)
        mode = ("User", "1")
    way = whole_process.Way("tarvis-pdf", (program, "--data", folder, *mode), {})
    results = [whole_process.measured_once(way, folder / "out.pdf") for _ in range(runs)]
    _, time, memory = (statistics.median(column) for column in zip(*results))
    return round(time * 1000), round(memory, 1), int(whole_process.pages_of(folder / "out.pdf"))


def plot(points, path):
    """Two curves over the rows, each through its first and last point as a straight line would go."""
    data = [f"{rows / 1000} {time} {memory}" for rows, (time, memory, _) in points.items()]
    (first, first_values), (last, last_values) = list(points.items())[0], list(points.items())[-1]

    def line(column):
        slope = (last_values[column] - first_values[column]) / ((last - first) / 1000)
        return f"{first_values[column]} + {slope} * (x - {first / 1000})"

    panel = "plot {} with lines lc rgb '#B0B0B0' notitle, $points using 1:{} with points pt 7 ps 0.7 lc rgb '#0058A8' notitle"
    script = [f"set terminal svg size 640,480 font 'Arial,12' background rgb 'white'\nset output '{path}'",
              "$points << END", *data, "END", "set xlabel 'rows [thousand]'", f"set xrange [0:{LARGEST / 1000 * 1.05}]",
              "set yrange [0:*]", "set grid lc rgb '#E0E0E0'", "set multiplot layout 2,1",
              "set ylabel 'processor time [ms]'", panel.format(line(0), 2),
              "set ylabel 'memory [MB]'", panel.format(line(1), 3), "unset multiplot"]
    subprocess.run(["gnuplot"], input="\n".join(script), text=True, check=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--program", type=Path, default=ROOT / "build/bench/src/tarvis-pdf")
    parser.add_argument("--runs", type=int, default=5)
    parser.add_argument("output", type=Path)
    options = parser.parse_args()
    points = {}
    for rows in (1000, 4000, 16000, LARGEST):
        with tempfile.TemporaryDirectory() as folder:
            points[rows] = measured(options.program, rows, options.runs, Path(folder))
            print("{:7,} rows: {} ms, {} MB, {} pages".format(rows, *points[rows]))
    plot(points, options.output)


if __name__ == "__main__":
    main()
