"""The air properties calculator as its user works with it."""

CALCULATOR = "Air Properties Calculator"


def calculate(program):
    """From the main menu: opens the calculator and calculates air of 70 degrees and 50 % relative humidity."""
    program.click("Dunmoor", "Air Properties")
    program.type(CALCULATOR, "Dry bulb temperature", "70")
    program.type(CALCULATOR, "Relative humidity", "50")
    program.click(CALCULATOR, "Calculate Properties")
    program.wait_for_text(CALCULATOR, "Wet bulb temperature", "58.4")
    program.wait_for_text(CALCULATOR, "Dew point temperature", "50.6")


def leave(program):
    """Ends the program from the calculator; gives the status of its end."""
    program.click(CALCULATOR, "Main Menu", "menu item")
    program.choose("Dunmoor", "File", "Exit")
    return program.wait_for_end()
