"""Single precision, run-time failures and case files, for the generators in this folder.

A Python float is a double. Values that are stored in single precision go through single().
"""

import math
import random
import struct

INVALID_ARGUMENT = 5
OVERFLOW = 6
DIVISION_BY_ZERO = 11


class Failure(Exception):
    """A failure that ends a calculation, with its number."""

    def __init__(self, number):
        super().__init__(number)
        self.number = number


def single(value):
    """The nearest single, ties to even."""
    try:
        return struct.unpack("<f", struct.pack("<f", value))[0]
    except OverflowError:
        raise Failure(OVERFLOW) from None


def divided(dividend, divisor):
    if divisor == 0.0:
        raise Failure(DIVISION_BY_ZERO)
    return dividend / divisor


def logarithm(value):
    if value <= 0.0:
        raise Failure(INVALID_ARGUMENT)
    return math.log(value)


def next_single(value):
    """The next larger single of a positive one."""
    bits = struct.unpack("<I", struct.pack("<f", value))[0]
    return struct.unpack("<f", struct.pack("<I", bits + 1))[0]


class Draw:
    """Random singles, the same ones on every run."""

    def __init__(self, seed):
        self._random = random.Random(seed).random

    def between(self, low, high):
        return single(low + (high - low) * self._random())

    def tenths(self, low, high):
        return single(round(self.between(low, high) * 10) / 10)

    def of_any_size(self):
        """Of either sign, and far outside the range of usual input."""
        size = 10.0 ** (-38.0 + 76.0 * self._random())
        return single(size if self._random() < 0.5 else -size)

    def chance(self, probability):
        return self._random() < probability


def number(value):
    """A number in a case file; empty if it was not calculated."""
    return "" if value is None else float(value).hex()


def write_cases(path, comments, columns, rows):
    """Writes a file of cases: comments, the column names, a line per case."""
    with open(path, "w", encoding="ascii", newline="\n") as file:
        for comment in comments:
            file.write("# " + comment + "\n")
        file.write(",".join(columns) + "\n")
        for row in rows:
            file.write(",".join(row[column] for column in columns) + "\n")
