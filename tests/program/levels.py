"""Whether figures that are taken again and again stay level: a line is fitted through them."""
import math
from dataclasses import dataclass


@dataclass(frozen=True)
class Line:
    """The common slope of several series, and how much it may be off: the true one lies so near in 19 of 20 cases."""
    slope: float
    margin: float

    def is_level(self, limit):
        """The slope is below the limit even if it is as much larger as it may be; too few figures show nothing."""
        return self.slope + self.margin <= limit

    def __str__(self):
        return f"{self.slope:+.3g} ± {self.margin:.2g}"


def fitted(series):
    """Through series of (x, y), each of which begins at a level of its own."""
    centred, levels = [], 0
    for points in series:
        if len(points) < 2:
            continue
        middle_x = sum(x for x, _ in points) / len(points)
        middle_y = sum(y for _, y in points) / len(points)
        centred += [(x - middle_x, y - middle_y) for x, y in points]
        levels += 1
    squares = sum(x * x for x, _ in centred)
    products = sum(x * y for x, y in centred)
    free = len(centred) - levels - 1
    if squares == 0 or free < 1:
        return Line(0.0, math.inf)
    slope = products / squares
    rest = sum((y - slope * x) ** 2 for x, y in centred)
    return Line(slope, 2 * math.sqrt(rest / free / squares))
