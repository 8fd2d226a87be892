"""Every visible field of every form gives assistive technology its name and unit, in both unit systems."""

import os
import sys
import tempfile

from DesktopProgram import DesktopProgram, descendants, is_showing, role

ENGLISH = {
    "choice": "English, I-P",
    "sign": "°F",
    "heat": "Btu/lb",
    "degrees": "Deg. F",
    "ratio": "lb. water/lb. dry air",
    "moisture ratio": "lb. water/lb. dry air",
    "grains": ["Humidity ratio in grains, grains"],
    "enthalpy": "Btu/lb.",
    "specific": "ft3/lb.",
    "pressure": "psi",
    "dialog flow": "CFM",
    "flow": "cfm",
    "load": "BTU",
    "leaving degrees": "° F",
    "desired degrees": "deg. F",
    "room": "cubic feet (ft3)",
    "outside flow": "ft3 per min.",
    "mass": "lb. per",
    "hour": "hr.",
    "liquid": "gal. per",
    "table degrees": "Deg. F",
    "table rows": [
        "Volume: 1,000 CFM",
        "Relative Humidity: 40.0 % R.H.",
        "Specific Volume, v: 14.302 ft3 air/lb.",
        "Enthalpy, h: 38.39 Btu/lb.",
    ],
    "warm": "95",
    "cool": "60",
    "cold": "40",
}
METRIC = {
    "choice": "Metric, SI",
    "sign": "°C",
    "heat": "kJ/kg",
    "degrees": "Deg. C",
    "ratio": "g water/kg dry air",
    "moisture ratio": "g moisture/kg dry air",
    "grains": [],
    "enthalpy": "kJ/kg",
    "specific": "m3/kg dry air",
    "pressure": "kPa",
    "dialog flow": "cubic meter per hour",
    "flow": "m3/h",
    "load": "kW",
    "leaving degrees": "° C",
    "desired degrees": "deg. C",
    "room": "cubic meters",
    "outside flow": "cubic meters per hour",
    "mass": "kg per",
    "hour": "hour",
    "liquid": "liters per",
    "table degrees": "Deg. C",
    "table rows": ["Volume: 1,000 m3 / h", "Relative Humidity: 40.0 % R.H.", "Dry Bulb Temp: 35.0 Deg. C"],
    "warm": "35",
    "cool": "15",
    "cold": "4",
}


def panel(units, ratio):
    return [
        f"Dry bulb temperature, {units['degrees']}",
        f"Wet bulb temperature, {units['degrees']}",
        f"Dew point temperature, {units['degrees']}",
        "Relative humidity, %",
        f"Humidity ratio W, {units[ratio]}",
        *units["grains"],
        f"Enthalpy, {units['enthalpy']}",
        f"Specific volume, {units['specific']}",
    ]


class Walk:
    """A walk through the whole program in one unit system."""

    def __init__(self, program, units):
        self.program = program
        self.units = units
        self.forms = 0

    def names(self, title, wanted_role):
        window = self.program.window(title)
        return [c.get_name() for c in descendants(window) if role(c) == wanted_role and is_showing(c)]

    def expect_fields(self, title, expected):
        found = sorted(self.names(title, "text"))
        if not any(entry for entry in self.units["grains"]):  # the grains field has no use in Metric
            found = [name for name in found if not name.startswith("Humidity ratio in grains")]
        assert found == sorted(expected), f"{title}:\n  found    {found}\n  expected {sorted(expected)}"
        for button in self.names(title, "button"):
            assert button.strip(), f"{title}: a button without a name"
        self.forms += 1

    def calculate(self, title, tdb, rh):
        self.program.type(title, "Dry bulb temperature", tdb)
        self.program.type(title, "Relative humidity", rh)
        self.program.click(title, "Calculate Properties")

    def give_volume(self, title, button):
        self.program.click(title, button)
        self.expect_fields("Air Volume Input", [f"Air volume, {self.units['dialog flow']}"])
        self.program.type("Air Volume Input", "Air volume", "1000")
        self.program.click("Air Volume Input", "OK")
        self.program.gone("Air Volume Input")

    def main_menu(self):
        self.program.wait_until_active("Dunmoor")
        chart = self.program.find("Dunmoor", "Psychrometric chart")
        assert chart.get_role_name() in ("image", "icon"), chart.get_role_name()
        self.program.choose("Dunmoor", "Help", "About Dunmoor")
        self.expect_fields("About Dunmoor", [])
        self.program.click("About Dunmoor", "OK")
        self.program.gone("About Dunmoor")
        self.program.click("Dunmoor", "Options", "menu item")
        self.expect_fields("Options/Settings", [f"Barometric pressure, {self.units['pressure']}"])
        assert self.names("Options/Settings", "combo box") == [self.units["choice"]]
        self.program.click("Options/Settings", "Cancel")
        self.program.gone("Options/Settings")

    def air_properties(self):
        self.program.click("Dunmoor", "Air Properties")
        self.expect_fields("Air Properties Calculator", panel(self.units, "moisture ratio"))
        self.leave("Air Properties Calculator")

    def mixed_air(self):
        title = "Adiabatic Mixing"
        self.program.click("Dunmoor", "Mixed Air")
        self.calculate(title, self.units["warm"], "40")
        self.give_volume(title, "Save Outside Air")
        self.give_volume(title, "Save Return Air")
        volumes = [f"{stream} air volume, {self.units['flow']}" for stream in ("Outside", "Return", "Total")]
        self.expect_fields(title, panel(self.units, "ratio") + volumes)
        self.program.click(title, "Calculate Mixed Air")
        self.expect_fields("Mixed Air Properties", [])
        cells = [" ".join(name.split()) for name in self.names("Mixed Air Properties", "label")]
        for row in self.units["table rows"]:
            for stream in ("Outside", "Return"):
                assert f"{stream} air - {row}" in cells, f"{stream} air - {row}: not in {cells}"
        self.program.click("Mixed Air Properties", "OK")
        self.leave(title)

    def cooling(self):
        title, leaving, summary = "Cooling of Moist Air", "Cooling Leaving Air Temp", "Cooling Load Summary"
        self.program.click("Dunmoor", "Cooling Load")
        self.calculate(title, self.units["warm"], "40")
        self.expect_fields(title, panel(self.units, "ratio"))
        self.give_volume(title, "Save Entering Air")
        self.program.click(title, "Set Leaving Air")
        degrees = self.units["leaving degrees"]
        self.program.type(leaving, "Leaving air dry bulb", self.units["cool"])
        self.expect_fields(leaving, [f"Leaving air dry bulb, {degrees}", f"Leaving air wet bulb, {degrees}"])
        self.program.type(leaving, "Leaving air wet bulb", self.units["cool"])
        self.program.click(leaving, "OK")
        self.program.gone(leaving)
        self.program.click(title, "Calculate Load")
        loads = [f"{load} load, {self.units['load']}" for load in ("Sensible", "Latent", "Total")]
        self.expect_fields(summary, [f"Air volume, {self.units['dialog flow']}"] + loads)
        self.program.click(summary, "OK")
        self.leave(title)

    def heating(self):
        title, leaving = "Heating Load Calculator", "Leaving Air Temp"
        self.program.click("Dunmoor", "Heating Load ")
        self.calculate(title, self.units["cool"], "40")
        self.give_volume(title, "Save Entering Air")
        self.program.click(title, "Input Leaving Air")
        self.expect_fields(leaving, [f"Leaving air temperature, {self.units['degrees']}"])
        self.program.type(leaving, "Leaving air temperature", self.units["warm"])
        self.program.click(leaving, "OK")
        self.program.gone(leaving)
        more = [f"Air volume, {self.units['dialog flow']}", f"Heating load, {self.units['load']}"]
        self.expect_fields(title, panel(self.units, "moisture ratio") + more)
        self.leave(title)

    def humidification(self):
        title, desired = "Humidification Calculation", "Humidity Calculation Setting"
        self.program.click("Dunmoor", "Humidification")
        self.calculate(title, self.units["cold"], "40")
        self.expect_fields(title, panel(self.units, "moisture ratio"))
        self.program.click(title, "Humidity Desired ")
        units = self.units
        self.expect_fields(
            desired,
            [
                f"Desired space temperature, {units['desired degrees']}",
                "Desired relative humidity, % RH",
                f"Volume of space, {units['room']}",
                "Estimated air changes, AC",
                f"Volume of outside air, {units['outside flow']}",
                f"Required moisture, {units['mass']} {units['hour']}",
                f"Required moisture, {units['mass']} day",
                f"Required moisture, {units['liquid']} {units['hour']}",
                f"Required moisture, {units['liquid']} day",
            ],
        )
        self.program.click(desired, "Click Here When Done")
        self.program.gone(desired)
        self.leave(title)

    def chart(self):
        """The chart's window by the keyboard alone: a pin's reading is a row of its table."""
        title = "Psychrometric Chart"
        self.program.focus("Dunmoor", "Psychrometric chart")
        self.program.keys("ctrl+o")
        self.program.wait_until_active(title)
        self.program.keys("Right", "Return")
        table = self.program.find(title, "States of the last runs and pins")
        assert table.get_role_name() == "table", table.get_role_name()
        cells = self.cells(table)
        headings = [name for name in cells if name.startswith(("Dry bulb, ", "Enthalpy, "))]
        assert headings == [f"Dry bulb, {self.units['sign']}", f"Enthalpy, {self.units['heat']}"], cells
        pin = cells.index("A Pin")
        chart = self.program.find(title, "Psychrometric chart")
        reading = chart.get_description().split()
        assert reading[:2] == [cells[pin + 1], self.units["sign"]], (reading, cells[pin:])
        for box in ("Relative humidity", "Wet bulb", "Enthalpy", "Specific volume", "Mollier's form"):
            assert self.program.find(title, box, "check box") is not None, box
        self.program.keys("Escape", "ctrl+w")
        self.program.gone(title)
        self.program.wait_until_active("Dunmoor")

    @staticmethod
    def cells(table):
        return [table.get_child_at_index(place).get_name() for place in range(table.get_child_count())]

    def leave(self, title):
        self.program.click(title, "Main Menu", "menu item")
        self.program.gone(title)

    def whole_program(self):
        self.main_menu()
        self.chart()
        self.air_properties()
        self.mixed_air()
        self.cooling()
        self.heating()
        self.humidification()


def change_to_metric(program):
    program.click("Dunmoor", "Options", "menu item")
    program.click("Options/Settings", "English, I-P", "combo box")
    program.keys("Down", "Return")
    program.click("Options/Settings", "OK")
    program.gone("Options/Settings")


def main(executable):
    with tempfile.TemporaryDirectory() as home:
        os.environ["HOME"] = home
        program = DesktopProgram(executable, home)
        try:
            walks = [Walk(program, ENGLISH), Walk(program, METRIC)]
            walks[0].whole_program()
            change_to_metric(program)
            walks[1].whole_program()
            print(", ".join(f"{walk.units['choice']}: {walk.forms} forms read" for walk in walks))
        finally:
            program.end()


main(sys.argv[1])
