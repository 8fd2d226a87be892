#!/usr/bin/env python3
"""Calculates heating loads independently of the program and writes them as cases: tests/data/heating.csv.

    python3 tests/tools/HeatingCases.py tests/data/heating.csv
"""

import sys

from MoistAir import enthalpy
from Singles import Draw, Failure, divided, number, single, write_cases

RANDOM_CASES = 600  # per unit system
WILD_SHARE = 0.1

INPUTS = ["AirVolume", "SpVol", "h", "W", "LeavingTdb"]


def load(metric, air):
    """Mass flow and load, as far as calculated before any failure, with their kinds; the failure's number or 0."""
    result = {"massFlow": None, "massFlow.kind": "", "load": 0.0, "load.kind": "int16", "error": 0}
    kind = "single" if metric else "double"
    try:
        if metric:
            mass_flow = single(divided(air["AirVolume"], air["SpVol"]))
        else:
            mass_flow = divided(air["AirVolume"] * 60.0, air["SpVol"])
        result.update({"massFlow": mass_flow, "massFlow.kind": kind})
        leaving = enthalpy(metric, air["LeavingTdb"], air["W"])
        rise = single(leaving - air["h"])
        product = rise * mass_flow
        result.update({"load": single(product) if metric else product, "load.kind": kind})
    except Failure as failure:
        result["error"] = failure.number
    return result


def usual(draw, metric):
    if metric:
        return {
            "AirVolume": draw.between(0, 90000), "SpVol": draw.between(0.7, 1.0), "h": draw.between(-20, 60),
            "W": draw.between(0.0005, 0.012), "LeavingTdb": draw.between(5, 60),
        }
    return {
        "AirVolume": draw.between(0, 60000), "SpVol": draw.between(11, 16), "h": draw.between(-10, 30),
        "W": draw.between(0.0005, 0.012), "LeavingTdb": draw.between(40, 140),
    }


def wild(draw, metric):
    """A usual case with some numbers of arbitrary size."""
    air = usual(draw, metric)
    return {name: draw.of_any_size() if draw.chance(0.3) else value for name, value in air.items()}


def cases(metric):
    draw = Draw(4 if metric else 3)
    for _ in range(RANDOM_CASES):
        yield (wild if draw.chance(WILD_SHARE) else usual)(draw, metric)
    for change in ({"AirVolume": 0.0}, {"SpVol": 0.0}, {"AirVolume": 0.0, "SpVol": 0.0}, {"LeavingTdb": 0.0},
                   {"LeavingTdb": -40.0}, {"W": 0.0}):
        yield dict(usual(draw, metric), **change)


def row(metric, air):
    result = load(metric, air)
    cells = {name: number(air[name]) for name in INPUTS}
    cells["UnitSystem"] = "-1" if metric else "0"
    cells["error"] = str(result["error"])
    for name in ("massFlow", "load"):
        cells[name] = number(result[name])
        cells[name + ".kind"] = result[name + ".kind"]
    return cells


def main():
    comments = [
        "One line is one calculation of the heating load.",
        "Numbers are C99 hex floats of the value as it is held.",
        "UnitSystem: 0 English, -1 Metric. AirVolume, SpVol, h, W: the entering air. All inputs are singles.",
        "error: the number of the run-time failure, or 0. massFlow: empty where it is not reached.",
        "load is in Btu/hr or kJ/hr; it was the integer 0 before. Kinds are int16, single or double.",
        "Written by tests/tools/HeatingCases.py.",
    ]
    columns = ["UnitSystem"] + INPUTS + ["error", "massFlow.kind", "massFlow", "load.kind", "load"]
    rows = [row(metric, air) for metric in (False, True) for air in cases(metric)]
    write_cases(sys.argv[1], comments, columns, rows)


if __name__ == "__main__":
    main()
