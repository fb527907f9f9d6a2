"""Graphs as the host renders them: axes, grid, curves and legends, in colour and in black and white."""
import math

from metafile import CENTRE, DASHED, DOTTED, RIGHT, SOLID, Metafile

COLOURS = (0xC00000, 0x0040C0, 0x008040)
GREY = 0xC8C8C8


class Graph:
    """A plot on a sheet of 1550 by 1000 tenths of a millimetre."""

    WIDTH, HEIGHT = 1550, 1000
    LEFT, TOP, RIGHT_EDGE, BOTTOM = 150, 60, 1510, 880

    def __init__(self, coloured, x_range, y_range, x_title, y_title):
        self._coloured = coloured
        self._x, self._y = x_range, y_range
        self.sheet = Metafile(self.WIDTH, self.HEIGHT)
        self._paper()
        self._titles(x_title, y_title)
        self._curves = 0

    def place(self, x, y):
        """From values to the sheet; values beyond the axes stop at the frame."""
        across = (x - self._x[0]) / (self._x[1] - self._x[0])
        up = min(max((y - self._y[0]) / (self._y[1] - self._y[0]), 0), 1)
        return (self.LEFT + across * (self.RIGHT_EDGE - self.LEFT), self.BOTTOM - up * (self.BOTTOM - self.TOP))

    def _paper(self):
        self.sheet.pen(0x000000, 3)
        self.sheet.brush(0xFFFFF4 if self._coloured else 0xFFFFFF)
        self.sheet.rectangle(self.LEFT, self.TOP, self.RIGHT_EDGE, self.BOTTOM)
        self.sheet.font(28)
        for k in range(11):
            x = self._x[0] + k * (self._x[1] - self._x[0]) / 10
            across = self.place(x, self._y[0])[0]
            self._grid_line((across, self.TOP), (across, self.BOTTOM), 0 < k < 10)
            self.sheet.text(across, self.BOTTOM + 40, f"{x:g}", CENTRE)
        for k in range(9):
            y = self._y[0] + k * (self._y[1] - self._y[0]) / 8
            down = self.place(self._x[0], y)[1]
            self._grid_line((self.LEFT, down), (self.RIGHT_EDGE, down), 0 < k < 8)
            self.sheet.text(self.LEFT - 12, down + 10, f"{y:g}", RIGHT)

    def _grid_line(self, start, end, wanted):
        if wanted:
            self.sheet.pen(GREY, 1, DOTTED)
            self.sheet.polyline([start, end])

    def _titles(self, x_title, y_title):
        self.sheet.font(32, bold=True)
        self.sheet.text((self.LEFT + self.RIGHT_EDGE) / 2, self.HEIGHT - 20, x_title, CENTRE)
        self.sheet.font(32, bold=True, degrees=90)
        self.sheet.text(40, (self.TOP + self.BOTTOM) / 2, y_title, CENTRE)

    def curve(self, function, points=400):
        step = (self._x[1] - self._x[0]) / points
        xs = [self._x[0] + i * step for i in range(points + 1)]
        self.sheet.pen(*pen_of(self._curves, self._coloured))
        self.sheet.polyline([self.place(x, function(x)) for x in xs])
        self._curves += 1

    def cursor(self, x, name):
        across = self.place(x, self._y[0])[0]
        self.sheet.pen(0x808000 if self._coloured else 0, 2, DASHED)
        self.sheet.polyline([(across, self.TOP), (across, self.BOTTOM)])
        self.sheet.font(28)
        self.sheet.text(across, self.TOP - 12, name, CENTRE)


def pen_of(curve, coloured):
    """Colour, width and style of a curve; without colour the styles tell curves apart."""
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
    """Tells what the levels of the input and output signals mean."""
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
    graph.sheet.save(path)


def gain(coloured, path):
    graph = Graph(coloured, (1, 4), (-60, 20), "Frequency [10^x Hz]", "Gain [dB]")
    graph.curve(lambda x: 10 - 18 * (x - 1) + 24 * math.exp(-((x - 2.93) / 0.05) ** 2)
                - 16 * math.exp(-((x - 2.8) / 0.04) ** 2))
    graph.cursor(2.93, "A")
    graph.sheet.save(path)


def phase(coloured, path):
    graph = Graph(coloured, (1, 4), (-360, 40), "Frequency [10^x Hz]", "Phase [deg]")
    graph.curve(lambda x: -90 - 40 * (x - 1) - 80 / (1 + math.exp(-(x - 2.93) * 60)) + 70 / (1 + math.exp(-(x - 2.8) * 60)))
    graph.cursor(2.93, "A")
    graph.sheet.save(path)
