"""The relations of moist air, independent of the program, for the generators in this folder.

Arguments and results are singles. An expression is evaluated in double precision and rounded once, at its end;
single() marks any other rounding. Powers use the general power function.
"""

import math

from Singles import divided, logarithm, single

GAS_CONSTANT_METRIC = single(8314.41)
GAS_CONSTANT_ENGLISH = single(1545.32)

# c1 to c5, c6 over ice, and the coefficient of the logarithm.
METRIC_ICE = (-5674.5359, 6.3925247, -0.009677843, 6.22115701e-7, 2.0747825e-9, -9.484024e-13, 4.1635019)
METRIC_WATER = (-5800.2206, 1.3914993, -0.048640239, 4.1764768e-5, -1.4452093e-8, None, 6.5459673)
ENGLISH_ICE = (-10214.165, -4.8932428, -0.0053765794, 1.9202377e-7, 3.5575832e-10, -9.0344688e-14, 4.1635019)
ENGLISH_WATER = (-10440.39, -11.29465, -0.027022355, 1.289036e-5, -2.4780681e-9, None, 6.5459673)


def absolute(metric, t):
    return single(t + (273.15 if metric else 459.67))


def saturation_pressure(metric, T):
    lowest, ice_point, highest = (175.0, 273.15, 473.0) if metric else (311.0, 491.67, 851.67)
    if single(lowest) < T <= single(ice_point):
        c1, c2, c3, c4, c5, c6, c7 = METRIC_ICE if metric else ENGLISH_ICE
    elif single(ice_point) < T < single(highest):
        c1, c2, c3, c4, c5, c6, c7 = METRIC_WATER if metric else ENGLISH_WATER
    else:
        return 0.0
    exponent = (c1 / T + c2 + c3 * T) + c4 * math.pow(T, 2.0)
    exponent += c5 * math.pow(T, 3.0)
    if c6 is not None:
        exponent += c6 * math.pow(T, 4.0)
    exponent += c7 * math.log(T)
    return single(math.exp(exponent))


def ratio_from_vapor_pressure(pw, P):
    return single(divided(pw * 0.62198, P - pw))


def specific_volume(metric, T, W, P):
    if metric:
        return single(divided((W * 1.6078 + 1.0) * (T * GAS_CONSTANT_METRIC), P * 28.9645))
    return single(divided((W * 1.6078 + 1.0) * (T * GAS_CONSTANT_ENGLISH), P * 28.9645 * 144.0))


def enthalpy(metric, t, W):
    if metric:
        return single((t * 1.805 + 2501.0) * W + t)
    return single((t * 0.444 + 1061.0) * W + t * 0.24)


def ratio_from_wet_bulb(metric, twb, tdb, ws_wet):
    if metric:
        heat = (2501.0 - 2.381 * twb) * ws_wet - (tdb - twb)
        return single(divided(heat, tdb * 1.805 + 2501.0 - twb * 4.186))
    heat = (1093.0 - 0.556 * twb) * ws_wet - (tdb - twb) * 0.24
    return single(divided(heat, tdb * 0.444 + 1093.0 - twb))


def dew_point(metric, pw):
    """From a vapor pressure in kPa (Metric) or psi (English)."""
    if not metric:
        pw = single(pw * 6.8947333)
    a = single(logarithm(pw))
    td = (math.pow(a, 2.0) * 0.7389) + (a * 14.526 + 6.54)
    td = td + math.pow(a, 3.0) * 0.09486
    td = single(td + math.pow(pw, 0.1984) * 0.4569)
    if td < 0.0:
        td = single((math.pow(a, 2.0) * 0.4959) + (a * 12.608 + 6.09))
    return td if metric else single(td * 1.8 + 32.0)


def residual(metric, candidate, tdb, p, w):
    saturated = saturation_pressure(metric, absolute(metric, candidate))
    ws = ratio_from_vapor_pressure(saturated, p)
    return single(ratio_from_wet_bulb(metric, candidate, tdb, ws) - w)


def wet_bulb(metric, tdb, w, p):
    """Bisection that evaluates both residuals on every pass."""
    upper = single(tdb - 0.005)
    lower = single(tdb - (50.0 if metric else 70.0))
    mid = single((lower + upper) / 2)
    count = 0
    while True:
        old = mid
        at_lower = residual(metric, lower, tdb, p, w)
        product = single(residual(metric, mid, tdb, p, w) * at_lower)
        if product < 0.0:
            upper = mid
        if product > 0.0:
            lower = mid
        if product == 0.0:
            return mid
        mid = single((lower + upper) / 2)
        error = single(abs(divided(mid - old, mid)) * 100.0)
        count += 1
        if error <= single(0.01) or count > 20:
            return mid
