"""The program has no command line: whatever is written after its name, it starts as if nothing were, and prints nothing
about it."""

import os
import pathlib
import subprocess
import sys
import tempfile

from DesktopProgram import DesktopProgram

COMMAND_LINES = [
    ["--help"],
    ["--version"],
    ["-style", "nonsense"],
    ["-geometry", "1500x1300+7+9"],
    ["-platform", "offscreen"],
    ["-stylesheet", "no-such-file"],
    ["report.txt"],
    ["--no-such-option", "-"],
]


def main_window():
    """The place and size of the main menu."""
    found = subprocess.run(
        ["xdotool", "search", "--onlyvisible", "--name", "^Dunmoor$", "getwindowgeometry"],
        stdout=subprocess.PIPE,
        text=True,
        check=True,
    )
    return found.stdout.split("\n", 1)[1]  # after its number, which differs


def start(executable, arguments):
    """What a user sees of a start: the window, and what the program prints until it is closed."""
    with tempfile.TemporaryDirectory() as home:
        os.environ["HOME"] = home
        printed = pathlib.Path(home, "printed")
        with open(printed, "wb") as output:
            program = DesktopProgram(executable, home, arguments, output)
        try:
            program.wait_until_active("Dunmoor")
            window = main_window()
            program.choose("Dunmoor", "File", "Exit")
            assert program.wait_for_end() == 0
            return window, printed.read_text(encoding="utf-8")
        finally:
            program.end()


def main(executable):
    plain = start(executable, [])
    for arguments in COMMAND_LINES:
        seen = start(executable, arguments)
        assert seen == plain, f"{arguments}: {seen}, but without arguments {plain}"
    print(f"{len(COMMAND_LINES)} command lines make no difference to:\n{plain[0]}")


main(sys.argv[1])
