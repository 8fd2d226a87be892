#!/usr/bin/env python3
"""Calculates cooling loads independently of the program and writes them as cases: tests/data/cooling.csv.

    python3 tests/tools/CoolingCases.py tests/data/cooling.csv
"""

import sys

from Singles import Draw, Failure, next_single, number, single, divided, write_cases

RANDOM_CASES = 600  # per unit system
WILD_SHARE = 0.1

INPUTS = ["V1", "v1", "h1", "W1", "td1", "Tdb1", "v2", "h2", "W2", "Twb2", "Tdb2"]
RESULTS = ["CondensateEnthalpy", "Sensible", "Latent", "Total"]
UNTOUCHED = 7.25  # initial value of the three loads

ENGLISH_BANDS = [
    (32, 33, 31.98), (33, 34, 31.97), (34, 35, 31.96), (35, 37, 31.95), (37, 39, 31.94), (39, 40, 31.93),
    (40, 42, 31.92), (42, 45, 31.91), (45, 49, 31.90), (49, 75, 31.89), (75, 82, 31.90), (82, 89, 31.91),
    (89, 95, 31.92), (95, 101, 31.93), (101, 107, 31.94), (107, 113, 31.95), (113, 120, 31.96),
]
ENGLISH_OTHERWISE = 31.90

METRIC_BANDS = [
    (0, 1, lambda t: 0.06 + 4.22 * (t - 0)),
    (1, 5, lambda t: 4.28 + 4.21 * (t - 1)),
    (5, 9, lambda t: 21.12 + 4.20 * (t - 5)),
    (9, 16, lambda t: 37.92 + 4.19 * (t - 9)),
    (16, 49, lambda t: 67.26 + 4.18 * (t - 16)),
]


def metric_otherwise(t):
    return 205.24 + 4.18 * (t - 49)


def truth(condition):
    return -1 if condition else 0


def condensate_enthalpy(metric, wet_bulb):
    """Intentionally takes the first band whose test is FALSE: each is compared with a value that is still 0."""
    chosen = 0
    if metric:
        for low, high, value in METRIC_BANDS:
            if truth(wet_bulb > low and wet_bulb <= high) == chosen:
                return single(value(wet_bulb))
        return single(metric_otherwise(wet_bulb))
    for low, high, offset in ENGLISH_BANDS:
        if truth(wet_bulb > low and wet_bulb <= high) == chosen:
            return single(wet_bulb - offset)
    return single(wet_bulb - ENGLISH_OTHERWISE)


def wet_total(metric, air, mass_flow, result):
    """The energy balance before its last division: every operation ends in a single."""
    result["CondensateEnthalpy"] = condensate_enthalpy(metric, air["Twb2"])
    enthalpy_fall = single(air["h1"] - air["h2"])
    condensate = single(air["W1"] - air["W2"])
    condensate_heat = single(condensate * result["CondensateEnthalpy"])
    heat = single(enthalpy_fall - condensate_heat)
    total = single(heat * mass_flow)
    return total if metric else single(total * 60)


def sensible(metric, air):
    """In double precision throughout."""
    volumes = air["v2"] + air["v1"]
    fall = air["Tdb1"] - air["Tdb2"]
    if metric:
        return divided(2.0426, volumes) * air["V1"] * fall / 3600
    return divided(0.488, volumes) * 60.0 * air["V1"] * fall


def loads(metric, wet_bulb_given, air):
    """The loads calculated before any failure, and the failure's number or 0."""
    result = {"CondensateEnthalpy": None, "Sensible": UNTOUCHED, "Latent": UNTOUCHED, "Total": UNTOUCHED}
    try:
        dry = air["Tdb2"] >= air["td1"] and not wet_bulb_given
        mass_flow = single(divided(air["V1"], air["v1"]))
        if not dry:
            result["Total"] = wet_total(metric, air, mass_flow, result)
        result["Sensible"] = sensible(metric, air)
        if dry:
            result["Total"] = single(result["Sensible"])
        elif metric:
            result["Total"] = single(result["Total"] / 3600.0)
        result["Latent"] = result["Total"] - result["Sensible"]
        result["error"] = 0
    except Failure as failure:
        result["error"] = failure.number
    return result


def usual(draw, metric):
    """Air into and out of a coil, with the wet bulb mostly near the bands that are used."""
    near_ice = draw.chance(0.4)
    if metric:
        return {
            "V1": draw.between(0, 90000), "v1": draw.between(0.75, 1.1), "h1": draw.between(30, 110),
            "W1": draw.between(0.004, 0.025), "td1": draw.tenths(2, 25), "Tdb1": draw.between(18, 45),
            "v2": draw.between(0.72, 1.0), "h2": draw.between(5, 60), "W2": draw.between(0.002, 0.014),
            "Twb2": draw.between(-2, 3) if near_ice else draw.between(-10, 60), "Tdb2": draw.between(1, 30),
        }
    return {
        "V1": draw.between(0, 60000), "v1": draw.between(12, 17), "h1": draw.between(15, 60),
        "W1": draw.between(0.004, 0.025), "td1": draw.tenths(35, 77), "Tdb1": draw.between(60, 115),
        "v2": draw.between(11.5, 15), "h2": draw.between(8, 35), "W2": draw.between(0.002, 0.014),
        "Twb2": draw.between(30, 36) if near_ice else draw.between(10, 130), "Tdb2": draw.between(35, 85),
    }


def wild(draw, metric):
    """A usual case with some numbers of arbitrary size."""
    air = usual(draw, metric)
    return {name: draw.of_any_size() if draw.chance(0.3) else value for name, value in air.items()}


def edges(draw, metric):
    """Pairs: whether a wet bulb was given, and the air."""
    limits = [low for low, *_ in (METRIC_BANDS if metric else ENGLISH_BANDS)]
    for limit in limits:
        for wet_bulb in (limit, next_single(limit) if limit else 1e-30, limit + 0.5):
            yield True, dict(usual(draw, metric), Twb2=single(wet_bulb))
    for change in ({"V1": 0.0}, {"v1": 0.0}, {"V1": 0.0, "v1": 0.0}, {"v1": -0.5, "v2": 0.5},
                   {"W1": 0.0, "W2": 0.0}):
        for given in (True, False):
            yield given, dict(usual(draw, metric), **change)
    for given in (True, False):
        dew_point = draw.tenths(5, 20)
        for leaving in (dew_point, next_single(dew_point), single(dew_point - 0.1)):
            yield given, dict(usual(draw, metric), td1=dew_point, Tdb2=leaving)


def cases(metric):
    draw = Draw(2 if metric else 1)
    for _ in range(RANDOM_CASES):
        air = (wild if draw.chance(WILD_SHARE) else usual)(draw, metric)
        yield draw.chance(0.5), air
    yield from edges(draw, metric)


def row(metric, wet_bulb_given, air):
    result = loads(metric, wet_bulb_given, air)
    cells = {name: number(air[name]) for name in INPUTS}
    cells.update((name, number(result[name])) for name in RESULTS)
    cells["UnitSystem"] = str(truth(metric))
    cells["LeavingWetBulbGiven"] = str(truth(wet_bulb_given))
    cells["error"] = str(result["error"])
    return cells


def main():
    comments = [
        "One line is one calculation of the cooling loads.",
        "Numbers are C99 hex floats of the value as it is held.",
        "UnitSystem: 0 English, -1 Metric. LeavingWetBulbGiven: 0 or -1. 1: entering, 2: leaving air,",
        "V the air volume, v the specific volume. All of these are singles.",
        "error: the number of the run-time failure, or 0.",
        "CondensateEnthalpy: a single; empty where not reached. Sensible, Latent: doubles; Total: a single.",
        "These three held 7.25 before, and still do where they are not reached.",
        "Written by tests/tools/CoolingCases.py.",
    ]
    columns = ["UnitSystem", "LeavingWetBulbGiven"] + INPUTS + ["error"] + RESULTS
    rows = [row(metric, *case) for metric in (False, True) for case in cases(metric)]
    write_cases(sys.argv[1], comments, columns, rows)


if __name__ == "__main__":
    main()
