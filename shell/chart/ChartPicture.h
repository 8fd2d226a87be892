#pragma once

#include "platform/forms/Picture.h"
#include "shell/chart/ChartLayout.h"

#include <memory>

/// The main menu's picture: a psychrometric chart from the core's relations, in the units and at the pressure
/// in force, with the last run of each calculator. It reads the calculator's state and writes none of it.
class ChartPicture : public PictureContents
{
public:
    std::string version() const override;
    void paint(QPainter& painter, const QSize& size, const QWidget& on) override;
    std::string tipAt(const QPoint& place) const override;

private:
    std::unique_ptr<ChartLayout> chart; // as painted last
};
