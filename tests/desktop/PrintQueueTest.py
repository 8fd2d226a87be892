"""A report that is printed to a queue of the print server is on its paper. The first print goes to the default queue;
a queue chosen in the dialog stays chosen for the rest of the run. When the print server goes away, even while the dialog is
open, the program goes on."""

import os
import subprocess
import sys
import tempfile

from AirProperties import CALCULATOR, calculate, leave
from DesktopProgram import DesktopProgram, wait_for
from PrintServer import print_server

DEFAULT, OTHER = "Office", "Laboratory"  # the dialog lists them by the alphabet

REPORT = [
    "Calculated Psychrometric Properties",
    "Dry Bulb Temp = 70.0 deg F",
    "Wet Bulb Temp = 58.4 deg F",
    "Dew Point Temp = 50.6 deg F",
    "Relative Humidity = 50.0%",
]


def open_print_dialog(program, shown):
    program.choose(CALCULATOR, "File", "Print Results")
    dialog = program.window("Print").get_name()
    program.find(dialog, shown, "combo box")
    return dialog


def print_it(program, dialog):
    program.click(dialog, "Print", "button")
    program.gone(dialog)


def take_paper(server, queue):
    """Checks that the report is on the only paper, and takes it away."""
    paper = server.paper(queue)
    wait_for(f"the paper of {queue}", paper.exists)
    text = subprocess.run(["pdftotext", "-layout", paper, "-"], stdout=subprocess.PIPE, text=True, check=True).stdout
    lines = [" ".join(line.split()) for line in text.splitlines()]
    for line in REPORT:
        assert line in lines, f"{line}: not on the paper\n{text}"
    paper.unlink()
    assert not list(server.folder.glob("*.pdf")), "paper in another queue"


def print_three_times(program, server):
    print_it(program, open_print_dialog(program, DEFAULT))
    take_paper(server, DEFAULT)

    dialog = open_print_dialog(program, DEFAULT)
    program.click(dialog, DEFAULT, "combo box")
    program.keys("Home", "Return")
    program.find(dialog, OTHER, "combo box")
    print_it(program, dialog)
    take_paper(server, OTHER)

    print_it(program, open_print_dialog(program, OTHER))
    take_paper(server, OTHER)


def print_without_server(program, server):
    dialog = open_print_dialog(program, OTHER)
    server.end()
    print_it(program, dialog)
    program.choose(CALCULATOR, "File", "Print Results")
    dialog = program.window("Print").get_name()
    program.find(dialog, "Print to File (PDF)", "combo box")
    program.keys("Escape")
    program.gone(dialog)
    program.type(CALCULATOR, "Dry bulb temperature", "80")
    program.click(CALCULATOR, "Relative humidity", "text")
    program.click(CALCULATOR, "Calculate Properties")
    program.wait_for_text(CALCULATOR, "Wet bulb temperature", "66.7")


def main(executable):
    with print_server([DEFAULT, OTHER]) as server, tempfile.TemporaryDirectory() as home:
        os.environ["HOME"] = home
        program = DesktopProgram(executable, home)
        try:
            program.wait_until_active("Dunmoor")
            calculate(program)
            print_three_times(program, server)
            print_without_server(program, server)
            assert leave(program) == 0
            print("the default queue and a chosen one: the report is on their paper; without a server the program goes on")
        finally:
            program.end()


main(sys.argv[1])
