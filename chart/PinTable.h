#pragma once

#include "chart/Air.h"
#include "chart/Lettering.h"
#include "chart/View.h"

namespace chart {

/// The figures of the pins, below the chart: a head of two lines and a row for each pin. As many columns as
/// fit the width, and the latest pins if there is no space for all.
class PinTable
{
public:
    PinTable(const Air& air, const View& view, const Lettering& letters);

    /// Of the whole table in a picture of that height; 0 without pins.
    double height(double ofPicture) const;
    /// The cells within that area.
    std::vector<Label> within(const QRectF& area) const;

private:
    std::size_t rowsIn(double height) const;
    std::vector<double> columnWidths() const;
    double lineHeight() const { return letters.height() * 1.15; }

    const Lettering& letters;
    std::vector<QStringList> head;
    std::vector<QStringList> rows;
};

} // namespace chart
