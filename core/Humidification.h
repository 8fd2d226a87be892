#pragma once

#include "core/TaggedNumber.h"

/// Solves the desired air from Tdb, P and RH (a fraction) of StatePoint, on StatePoint itself, and keeps it
/// in HumidDesiredAir, field by field, with no limits and no shortcut for saturated air. A failure keeps what
/// was written so far.
/// @throws RunTimeError of the relations
void SolveDesiredAir();

/// Water to add, lb and gal in English, kg and litres in Metric.
struct MoistureRequired
{
    TaggedNumber massPerHour;
    TaggedNumber massPerDay;
    TaggedNumber flowPerHour;
    TaggedNumber flowPerDay;
};

/// Moisture that takes an air quantity from HumidOutsideAir to HumidDesiredAir:
///     mass = quantity / v(desired) (W(desired) - W(outside)),  times 60 in English
/// The 60 turns cubic feet per minute into an hourly quantity; it counts for infiltration as well, which is
/// an hourly one already. A litre of water is a kilogram, a gallon 8.345 pounds.
/// @throws RunTimeError division by zero, overflow
MoistureRequired RequiredMoisture(const TaggedNumber& airQuantity);
