#pragma once

#include "core/MainMod.h"

#include <QPainter>
#include <QPalette>
#include <QWidget>

#include <vector>

/// A unit system and a barometric pressure, psi or kPa.
struct Mode
{
    Boolean16 units;
    Single pressure;

    void putInForce() const
    {
        UnitSystem = units;
        BaroPressure = pressure;
    }
};

/// 11, 14.696 and 16 psi, and roughly the same in kPa.
inline const std::vector<Mode> modes{{False16, 11},     {False16, 14.696F}, {False16, 16},
                                     {True16, 75.842F}, {True16, 101.325F}, {True16, 108}};

/// The current pressure in the unit of the relations.
inline Single RelationsPressure() { return IsMetric() ? RoundToSingle(BaroPressure * 1000.0) : BaroPressure; }

/// Air as the calculators solve it, at the current pressure.
inline AirSnapshot AirAt(Single tdb, Single percent, Single volume = 1000)
{
    StatePoint.Tdb = tdb;
    StatePoint.P = RelationsPressure();
    StatePoint.RH = percent;
    SolveFromRH();
    return AirSnapshot::of(StatePoint, volume);
}

inline AirSnapshot AirOfRatio(Single tdb, Single w, Single volume = 1000)
{
    StatePoint.Tdb = tdb;
    StatePoint.P = RelationsPressure();
    StatePoint.W = w;
    SolveFromW();
    return AirSnapshot::of(StatePoint, volume);
}
