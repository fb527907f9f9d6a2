"""Graphs as the host renders them: axes, grid, curves and legends, in colour and in black and white."""
import math
import subprocess

from metafile import DASHED, DOTTED, SOLID, Metafile

COLOURS = (0xC00000, 0x0040C0, 0x008040)
DASH_TYPES = {SOLID: 1, DASHED: 2, DOTTED: 3}  # as gnuplot counts them


class Graph:
    """A plot that gnuplot draws into an enhanced metafile."""

    def __init__(self, coloured, x_range, y_range, x_title, y_title):
        self._coloured = coloured
        self._x = x_range
        self._script = [
            f"set terminal emf {'color' if coloured else 'monochrome'} size 1240,800 font 'Arial,16'",
            f"set xrange [{x_range[0]}:{x_range[1]}]", f"set yrange [{y_range[0]}:{y_range[1]}]",
            f"set xlabel '{x_title}'", f"set ylabel '{y_title}'", "set grid lc rgb '#C8C8C8'", "set key off",
        ]
        self._curves = []

    def curve(self, function, points=400):
        step = (self._x[1] - self._x[0]) / points
        xs = [self._x[0] + i * step for i in range(points + 1)]
        name = f"$curve{len(self._curves)}"
        self._script += [f"{name} << END", *(f"{x} {function(x)}" for x in xs), "END"]
        colour, width, dash = pen_of(len(self._curves), self._coloured)
        self._curves.append(f"{name} with lines lw {width / 2} lc rgb '#{colour:06X}' dt {DASH_TYPES[dash]}")

    def cursor(self, x, name):
        colour = "#808000" if self._coloured else "#000000"
        self._script += [f"set arrow from {x}, graph 0 to {x}, graph 1 nohead lc rgb '{colour}' dt 2",
                         f"set label '{name}' at {x}, graph 1.03 center"]

    def save(self, path):
        script = [*self._script, f"set output '{path}'", "plot " + ", ".join(self._curves)]
        subprocess.run(["gnuplot"], input="\n".join(script), text=True, check=True)


def pen_of(curve, coloured):
    """Colour, width and style of a curve; without colour the styles distinguish the curves."""
    if coloured:
        return COLOURS[curve % 3], 4, SOLID
    return 0x000000, 4 if curve == 0 else 2, (SOLID, DASHED, DOTTED)[curve % 3]


def legend(coloured, names, path):
    """Names the curves, one below the other."""
    sheet = Metafile(1000, 240)
    sheet.font(52)
    for k, name in enumerate(names):
        sheet.pen(*pen_of(k, coloured))
        sheet.polyline([(20, 50 + 75 * k), (160, 50 + 75 * k)])
        sheet.text(190, 66 + 75 * k, name)
    sheet.save(path)


def io_legend(path):
    """Explains what the levels of the input and output signals mean."""
    sheet = Metafile(700, 240)
    sheet.font(52)
    sheet.text(20, 66, "Upper level: signal on")
    sheet.text(20, 141, "Lower level: signal off")
    sheet.save(path)


def _move(t, start, speed, end, ramp):
    """Speed of a move from `start` to `end` with ramps at both sides."""
    if t <= start or t >= end:
        return 0.0
    return speed * min(1.0, (t - start) / ramp, (end - t) / ramp)


def motion(coloured, shift, path):
    """Speed reference, motor speed and torque of one move."""
    graph = Graph(coloured, (0, 200), (-2000, 3000), "Time [ms]", "Speed [min-1], Torque [0.1 %]")
    reference = lambda t: _move(t, 20, 2400, 160, 40)
    graph.curve(reference)
    graph.curve(lambda t: _move(t - 3 - shift, 20, 2400, 160, 40) + 60 * math.exp(-((t - 62 - shift) / 8) ** 2))
    graph.curve(lambda t: (reference(t + 1) - reference(t - 1)) * 12 + 90 * math.sin(t / 2.4) * (20 < t < 175))
    graph.cursor(58, "A")
    graph.cursor(134, "B")
    graph.save(path)


def gain(coloured, path):
    graph = Graph(coloured, (1, 4), (-60, 20), "Frequency [10^x Hz]", "Gain [dB]")
    graph.curve(lambda x: 10 - 18 * (x - 1) + 24 * math.exp(-((x - 2.93) / 0.05) ** 2)
                - 16 * math.exp(-((x - 2.8) / 0.04) ** 2))
    graph.cursor(2.93, "A")
    graph.save(path)


def phase(coloured, path):
    graph = Graph(coloured, (1, 4), (-360, 40), "Frequency [10^x Hz]", "Phase [deg]")
    graph.curve(lambda x: -90 - 40 * (x - 1) - 80 / (1 + math.exp(-(x - 2.93) * 60)) + 70 / (1 + math.exp(-(x - 2.8) * 60)))
    graph.cursor(2.93, "A")
    graph.save(path)
