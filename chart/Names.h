#pragma once

#include "chart/Layout.h"
#include "chart/Lettering.h"
#include "chart/Scales.h"

namespace chart {

/// Adds the figures and titles of the two axes, and the scale of grains.
void AddAxisNames(Layout& chart, const Lettering& letters);

/// Traces the wet bulb lines in the closest steps at which all of them can be named, and names them. If that
/// is not possible, none has a name.
std::vector<Curve> NamedWetBulbs(Layout& chart, const Tracer& tracer, const Rim& rim,
                                 const Lettering& letters);

/// Adds the enthalpy scale outside the rim.
void AddEnthalpyScale(Layout& chart, const std::vector<Curve>& enthalpies, const Rim& rim,
                      const Lettering& letters);

/// Adds the figures and titles of the families along their curves.
void AddCurveNames(Layout& chart, const Lettering& letters);

/// Adds the names of the comfort zones and the values of the heat ratios.
void AddOverlayNames(Layout& chart, const Lettering& letters);

/// Adds the names of the marks. Marks at the same place share a label.
void AddMarkNames(Layout& chart, const Lettering& letters);

/// The label on a line at these parts of its length, as candidates. Only those inside the plot.
std::vector<Label> Along(const QPolygonF& line, Label label, const QRectF& plot,
                         std::initializer_list<double> parts);

} // namespace chart
