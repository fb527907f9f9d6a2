"""What the long runs call level is level, and a small leak among large differences is none."""
import random
import unittest

import program_case  # noqa: F401  finds the modules of tests/host
from levels import fitted


def noise(seed, growth, runs=40, rounds=25):
    """Figures of runs that begin at different levels and differ by some hundreds from round to round."""
    source = random.Random(seed)
    levels = [source.uniform(1000, 90000) for _ in range(runs)]
    return [[(x, level + growth * x + source.gauss(0, 400)) for x in range(rounds)] for level in levels]


class Levels(unittest.TestCase):
    def test_no_growth_is_level(self):
        for seed in range(5):
            line = fitted(noise(seed, growth=0))
            self.assertTrue(line.is_level(10), line)
            self.assertLessEqual(abs(line.slope), 2 * line.margin)

    def test_a_leak_that_is_small_beside_the_differences_is_found(self):
        for seed in range(5):
            line = fitted(noise(seed, growth=20))
            self.assertFalse(line.is_level(10), line)
            self.assertLessEqual(abs(line.slope - 20), 2 * line.margin)

    def test_too_few_figures_show_nothing(self):
        self.assertFalse(fitted(noise(1, growth=0, runs=1, rounds=5)).is_level(10))
        self.assertFalse(fitted([]).is_level(10))
        self.assertFalse(fitted([[(1, 5.0)], [(1, 6.0)]]).is_level(10))


if __name__ == "__main__":
    unittest.main()
