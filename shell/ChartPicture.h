#pragma once

class QPainter;
class QRect;

/// Paints a psychrometric chart from the core's relations, in the units and at the pressure in force.
void paintChart(QPainter& painter, const QRect& place);
