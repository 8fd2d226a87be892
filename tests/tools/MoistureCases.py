#!/usr/bin/env python3
"""Calculates moisture requirements independently of the program and writes them as cases: tests/data/moisture.csv.

    python3 tests/tools/MoistureCases.py tests/data/moisture.csv
"""

import sys

from MoistAir import (absolute, dew_point, enthalpy, ratio_from_vapor_pressure, saturation_pressure,
                      specific_volume, wet_bulb)
from Singles import Draw, Failure, divided, number, single, write_cases

RANDOM_CASES = 600  # per unit system
WILD_SHARE = 0.15

INPUTS = ["Tdb", "percent", "P", "outsideW", "quantity"]
AIR = ["RH", "Pws", "Pw", "W", "Grains", "Ws", "Mu", "SpVol", "h", "td", "Twb"]
MOISTURE = ["massPerHour", "massPerDay", "flowPerHour", "flowPerDay"]


def solve_air(metric, given, air):
    """The desired air, field by field. All are singles but Grains, which is a double."""
    t = given["Tdb"]
    P = given["P"]
    air["RH"] = single(given["percent"] / 100)
    air["Pws"] = saturation_pressure(metric, absolute(metric, t))
    air["Pw"] = single(air["RH"] * air["Pws"])
    air["W"] = ratio_from_vapor_pressure(air["Pw"], P)
    if not metric:
        air["Grains"] = air["W"] * 7000.0
    air["Ws"] = ratio_from_vapor_pressure(air["Pws"], P)
    air["Mu"] = single(divided(air["W"], air["Ws"]))
    air["SpVol"] = specific_volume(metric, absolute(metric, t), air["W"], P)
    air["h"] = enthalpy(metric, t, air["W"])
    air["td"] = dew_point(metric, single(air["Pw"] / 1000) if metric else air["Pw"])
    air["Twb"] = wet_bulb(metric, t, air["W"], P)


def require_moisture(metric, given, air, moisture):
    """All four are singles."""
    rise = single(air["W"] - given["outsideW"])
    mass = single(single(divided(given["quantity"], air["SpVol"])) * rise)
    if metric:
        flow = mass
    else:
        mass = single(mass * 60)
        flow = single(mass / 8.345)
    moisture["massPerHour"] = mass
    moisture["massPerDay"] = single(mass * 24)
    moisture["flowPerHour"] = flow
    moisture["flowPerDay"] = single(flow * 24.0)


def usual(draw, metric):
    if metric:
        return {
            "Tdb": draw.between(10, 35), "percent": draw.between(5, 95), "P": draw.between(80000, 105000),
            "outsideW": draw.between(0, 0.01), "quantity": draw.between(0, 50000),
        }
    return {
        "Tdb": draw.between(50, 95), "percent": draw.between(5, 95), "P": draw.between(11, 15.5),
        "outsideW": draw.between(0, 0.01), "quantity": draw.between(0, 30000),
    }


def wild(draw, metric):
    """The program neither limits nor clips such entries."""
    pressures = (500, 300000) if metric else (0.1, 40)
    return {
        "Tdb": draw.between(-250, 500), "percent": draw.between(-20, 250), "P": draw.between(*pressures),
        "outsideW": draw.between(-0.1, 0.1), "quantity": draw.of_any_size(),
    }


def edges(draw, metric):
    blank = dict(Tdb=0.0, percent=0.0)
    hottest = 473.0 - 273.15 if metric else 851.67 - 459.67
    for change in (blank, {"Tdb": 0.0}, {"percent": 0.0}, {"percent": -1.0}, {"percent": 100.0},
                   {"percent": 150.0}, {"P": 0.0}, {"P": 0.0, **blank}, {"quantity": 0.0}, {"outsideW": 0.02},
                   {"Tdb": hottest}, {"Tdb": -300.0}, {"quantity": 3e38}, {"Tdb": 32.0}, {"Tdb": -40.0}):
        yield dict(usual(draw, metric), **{name: single(value) for name, value in change.items()})
    same = usual(draw, metric)
    air = {}
    solve_air(metric, same, air)
    yield dict(same, outsideW=air["W"])


def cases(metric):
    draw = Draw(6 if metric else 5)
    for _ in range(RANDOM_CASES):
        yield (wild if draw.chance(WILD_SHARE) else usual)(draw, metric)
    yield from edges(draw, metric)


def row(metric, given):
    air = dict.fromkeys(AIR)
    moisture = dict.fromkeys(MOISTURE)
    error = 0
    try:
        solve_air(metric, given, air)
        require_moisture(metric, given, air, moisture)
    except Failure as failure:
        error = failure.number
        moisture = dict.fromkeys(MOISTURE)
    cells = {"UnitSystem": "-1" if metric else "0", "error": str(error)}
    for values in (given, air, moisture):
        cells.update((name, number(value)) for name, value in values.items())
    return cells


def main():
    comments = [
        "One line is one humidification requirement.",
        "Numbers are C99 hex floats of the value as it is held.",
        "UnitSystem: 0 English, -1 Metric. Tdb, percent (relative humidity), P: the desired air.",
        "outsideW: humidity ratio outside; quantity: of air, cfm or m3/hr. All five are singles.",
        "error: number of the run-time failure, or 0. What is empty was not reached; Grains: or not kept up.",
        "All results are singles but Grains, which is a double.",
        "Written by tests/tools/MoistureCases.py.",
    ]
    columns = ["UnitSystem"] + INPUTS + ["error"] + AIR + MOISTURE
    rows = [row(metric, given) for metric in (False, True) for given in cases(metric)]
    write_cases(sys.argv[1], comments, columns, rows)


if __name__ == "__main__":
    main()
