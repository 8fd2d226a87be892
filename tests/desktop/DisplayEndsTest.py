"""When the display server goes away, as at the end of a session, the program ends without a crash, whatever is open.
The same holds for a request to terminate, which writes no settings: only an exit by the user does."""

import contextlib
import os
import pathlib
import signal
import subprocess
import sys
import tempfile

from AirProperties import CALCULATOR, calculate
from DesktopProgram import LIMIT, DesktopProgram, wait_for


def start_server():
    """A display server that answers, and its display. Another one that ends at this moment can take the new one's socket
    away."""
    for _ in range(5):
        read_end, write_end = os.pipe()
        server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
            pass_fds=[write_end],
            stderr=subprocess.DEVNULL,
        )
        os.close(write_end)
        with os.fdopen(read_end) as number:
            display = ":" + number.readline().strip()
        question = ["xdotool", "getdisplaygeometry"]
        if subprocess.run(question, env={**os.environ, "DISPLAY": display}, check=False).returncode == 0:
            return server, display
        server.kill()
        server.wait()
    raise AssertionError("no display server that answers")


@contextlib.contextmanager
def display_of_its_own():
    """A display server that the test may end; programs started meanwhile go there."""
    server, display = start_server()
    before = os.environ["DISPLAY"]
    os.environ["DISPLAY"] = display
    try:
        yield server
    finally:
        os.environ["DISPLAY"] = before
        server.kill()
        server.wait()


def count_windows():
    """How many windows of the program are in sight, menus among them."""
    found = subprocess.run(
        ["xdotool", "search", "--onlyvisible", "--class", "dunmoor"], stdout=subprocess.PIPE, check=False
    )
    return len(found.stdout.split())


def open_calculator(program):
    program.click("Dunmoor", "Air Properties")
    program.window(CALCULATOR)


def open_options(program):
    program.click("Dunmoor", "Options", "menu item")
    program.window("Options/Settings")


def open_print_dialog(program):
    calculate(program)
    program.choose(CALCULATOR, "File", "Print Results")
    program.window("Print")


def open_help(program):
    program.choose("Dunmoor", "Help", "Search for Help on ...")
    program.window("Dunmoor Help")


def open_field_menu(program):
    open_options(program)
    program.click("Options/Settings", "Barometric pressure", "text")
    before = count_windows()
    subprocess.run(["xdotool", "click", "3"], check=True)
    wait_for("the menu", lambda: count_windows() > before)  # a menu of a field isn't on the accessibility bus


OPEN = {
    "the main menu": lambda program: None,
    "a calculator": open_calculator,
    "a modal dialog": open_options,
    "the context menu of a field": open_field_menu,
    "the help": open_help,
    "the print dialog": open_print_dialog,
}


def end_of(executable, open_windows, end):
    """The status that the program ends with, and its settings files."""
    with tempfile.TemporaryDirectory() as home, display_of_its_own() as server:
        os.environ["HOME"] = home
        program = DesktopProgram(executable, os.path.dirname(executable))
        try:
            wait_for("the main menu", count_windows)
            open_windows(program)
            end(server, program.process)
            status = program.process.wait(timeout=LIMIT)
            return status, [path.name for path in pathlib.Path(home).rglob("Dunmoor*.ini")]
        finally:
            program.end()


def main(executable):
    for what, open_windows in OPEN.items():
        status, _ = end_of(executable, open_windows, lambda server, _: server.terminate())
        assert status >= 0, f"{what}: ended by signal {-status}"
        print(f"{what}: the display goes away, the program ends with status {status}")
    status, settings = end_of(executable, open_options, lambda _, process: process.terminate())
    assert status == -signal.SIGTERM, status
    assert not settings, settings
    print("asked to terminate, it does")


main(sys.argv[1])
