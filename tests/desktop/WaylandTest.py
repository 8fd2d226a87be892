"""On a desktop without X11 the program starts, calculates, shows the result, and ends without a failure."""

import os
import sys
import tempfile

from AirProperties import calculate, leave
from Compositor import ProgramWithoutPointer, compositor


def main(executable):
    with compositor(), tempfile.TemporaryDirectory() as home:
        os.environ["HOME"] = home
        program = ProgramWithoutPointer(executable, home)
        try:
            calculate(program)
            assert leave(program) == 0
            print("calculated, shown, ended")
        finally:
            program.end()


main(sys.argv[1])
