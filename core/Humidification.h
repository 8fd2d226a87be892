#pragma once

#include "core/TaggedNumber.h"

/// Solves the desired air in StatePoint from its Tdb, P and RH (a fraction), and stores each result in
/// HumidDesiredAir at once. There are no limits and no shortcut for saturated air. Results found before a
/// failure remain.
/// @throws RunTimeError as the relations
void SolveDesiredAir();

/// Water to add: lb and gal in English, kg and liters in Metric.
struct MoistureRequired
{
    TaggedNumber massPerHour;
    TaggedNumber massPerDay;
    TaggedNumber flowPerHour;
    TaggedNumber flowPerDay;
};

/// Water that brings an air quantity from HumidOutsideAir to HumidDesiredAir (from the water balance in the
/// ASHRAE Handbook of Fundamentals):
///     mass = quantity / v(desired) (W(desired) - W(outside)),  times 60 in English
/// The factor of 60 converts cubic feet per minute to an hourly quantity. Intentional: it also applies to
/// infiltration, which is hourly already. A liter of water has 1 kg, a gallon 8.345 lb.
/// @throws RunTimeError division by zero, overflow
MoistureRequired RequiredMoisture(const TaggedNumber& airQuantity);
