"""Under a window manager, the window that opened a dialog is active again when the dialog has gone, and the focus is
where it was. If that button is disabled now, the focus is on the button of the next step or on the first field."""

import os
import sys
import tempfile

from DesktopProgram import Atspi, DesktopProgram, descendants, wait_for


class User:
    def __init__(self, program):
        self.program = program
        self.screen = "Dunmoor"
        self.returns = 0

    def _focused(self):
        """The name, without its unit, of each control that has the focus."""
        controls = descendants(self.program.window(self.screen))
        return [c.get_name().split(",")[0] for c in controls if c.get_state_set().contains(Atspi.StateType.FOCUSED)]

    def expect_focus(self, control):
        self.program.wait_until_active(self.screen)
        wait_for(f"the focus on '{control}'", lambda: self._focused() == [control])

    def open_screen(self, button, title):
        self.program.click("Dunmoor", button)
        self.screen = title
        self.expect_focus("Dry bulb temperature")

    def leave_screen(self):
        self.program.click(self.screen, "Main Menu", "menu item")
        self.program.gone(self.screen)
        self.screen = "Dunmoor"
        self.program.wait_until_active(self.screen)

    def calculate(self, tdb, focus_afterwards):
        self.program.type(self.screen, "Dry bulb temperature", tdb)
        self.program.type(self.screen, "Relative humidity", "40")
        self.program.click(self.screen, "Calculate Properties")
        self.expect_focus(focus_afterwards)

    def come_back(self, dialog, close, focus_afterwards):
        """Closes a dialog, which is active, by one of its buttons or by a key."""
        title = self.program.window(dialog).get_name()
        self.program.wait_until_active(title.strip())
        if close == "Escape":
            self.program.keys(close)
        else:
            self.program.click(title, close, "button")
        self.program.gone(title)
        self.expect_focus(focus_afterwards)
        self.returns += 1

    def choose(self, menu, entry, dialog, close, focus):
        """By the mouse from a menu, which leaves the focus alone."""
        self.program.choose(self.screen, menu, entry)
        self.come_back(dialog, close, focus)

    def fill_in(self, button, dialog, texts, focus_afterwards, close="OK"):
        self.program.click(self.screen, button)
        self.program.wait_until_active(dialog)
        for field, text in texts.items():
            self.program.type(dialog, field, text)
        self.come_back(dialog, close, focus_afterwards)


def main_menu(user):
    user.expect_focus("Air Properties")
    user.program.keys("Tab")
    focus = "Mixed Air"
    user.expect_focus(focus)
    for close in ("OK", "Cancel"):
        user.program.click("Dunmoor", "Options", "menu item")
        user.come_back("Options/Settings", close, focus)
    user.choose("Help", "About Dunmoor", "About Dunmoor", "OK", focus)
    user.choose("Help", "Search for Help on ...", "Dunmoor Help", "Escape", focus)


def mixed_air(user):
    user.open_screen("Mixed Air", "Adiabatic Mixing")
    user.program.type(user.screen, "Dry bulb temperature", "200")
    user.program.type(user.screen, "Relative humidity", "40")
    user.choose("Help", "About Dunmoor", "About Dunmoor", "OK", "Relative humidity")
    user.program.keys("Tab")
    user.fill_in("Calculate Properties", "ERROR", {}, "Dry bulb temperature")
    user.calculate("95", "Calculate Properties")
    user.fill_in("Save Outside Air", "Air Volume Input", {"Air volume": "1000"}, "Save Outside Air")
    user.fill_in("Save Return Air", "Air Volume Input", {}, "Save Return Air", close="Cancel")
    user.choose("File", "Print Results", "Print", "Cancel", "Save Return Air")
    user.choose("File", "Save Results to File", "Save Data to File", "Cancel", "Save Return Air")
    user.leave_screen()


def cooling(user):
    user.open_screen("Cooling Load", "Cooling of Moist Air")
    user.calculate("95", "Save Entering Air")
    user.fill_in("Save Entering Air", "Air Volume Input", {"Air volume": "1000"}, "Set Leaving Air")
    leaving = {"Leaving air dry bulb": "60", "Leaving air wet bulb": "60"}
    user.fill_in("Set Leaving Air", "Cooling Leaving Air Temp", leaving, "Calculate Load")
    user.fill_in("Calculate Load", "Cooling Load Summary", {}, "Dry bulb temperature")
    user.leave_screen()


def heating(user):
    user.open_screen("Heating Load ", "Heating Load Calculator")
    user.calculate("60", "Save Entering Air")
    user.fill_in("Save Entering Air", "Air Volume Input", {"Air volume": "1000"}, "Save Entering Air")
    user.fill_in("Input Leaving Air", "Leaving Air Temp", {"Leaving air temperature": "90"}, "Input Leaving Air")
    user.leave_screen()


def humidification(user):
    user.open_screen("Humidification", "Humidification Calculation")
    user.calculate("40", "Humidity Desired ")
    user.fill_in("Humidity Desired ", "Humidity Calculation Setting", {}, "Humidity Desired ", "Click Here When Done")
    user.leave_screen()


def main(executable):
    with tempfile.TemporaryDirectory() as home:
        os.environ["HOME"] = home
        program = DesktopProgram(executable, os.path.dirname(executable))  # where the help is
        user = User(program)
        try:
            for part in (main_menu, mixed_air, cooling, heating, humidification):
                part(user)
            print(f"back from {user.returns} dialogs")
        finally:
            program.end()


main(sys.argv[1])
