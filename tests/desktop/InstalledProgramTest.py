"""Drives an installed copy as its user does: help on the first screen, a calculation, a saved report, a report printed
to a PDF file, and the end. This user can't write to the installation folder."""

import os
import pathlib
import sys
import tempfile

from AirProperties import CALCULATOR, calculate, leave
from DesktopProgram import DesktopProgram, wait_for


def read_help(program):
    program.choose("Dunmoor", "Help", "Search for Help on ...")
    program.window("Dunmoor Help")
    program.keys("Escape")
    program.gone("Dunmoor Help")


def save(program, home):
    program.choose(CALCULATOR, "File", "Save Results to File")
    dialog = program.window("Save").get_name()
    program.type(dialog, "File name:", "room")
    program.keys("Return")
    program.gone(dialog)
    report = pathlib.Path(home, ".local/share/Dunmoor/data/room")
    text = wait_for(f"the report {report}", lambda: report.exists() and report.read_text())
    assert " Wet Bulb Temp =            58.4           deg F\n" in text, text


def print_to_pdf(program, home):
    program.choose(CALCULATOR, "File", "Print Results")
    dialog = program.window("Print").get_name()
    program.click(dialog, "Print", "button")
    program.gone(dialog)
    pdf = wait_for("a PDF file", lambda: next(iter(pathlib.Path(home).rglob("*.pdf")), None))
    assert pdf.read_bytes().startswith(b"%PDF"), pdf


def main(root):
    folder = os.path.join(root, "usr/lib/dunmoor")
    assert os.geteuid() != 0, "for a user who isn't root"
    assert not os.access(folder, os.W_OK), folder
    with tempfile.TemporaryDirectory() as home:
        os.environ["HOME"] = home
        program = DesktopProgram(os.path.join(root, "usr/bin/dunmoor"), folder)
        try:
            program.wait_until_active("Dunmoor")
            read_help(program)
            calculate(program)
            save(program, home)
            print_to_pdf(program, home)
            assert leave(program) == 0
            print("help, calculation, saved report, PDF: all there")
        finally:
            program.end()


main(sys.argv[1])
