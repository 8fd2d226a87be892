#include "chart/ChartPicture.h"

#include "chart/Keeping.h"
#include "chart/Painter.h"
#include "chart/Reading.h"
#include "chart/Steps.h"
#include "chart/Tips.h"

#include <QLineF>
#include <QPainter>
#include <QWidget>

#include <algorithm>

namespace chart {

ChartPicture::~ChartPicture()
{
    if (painted)
        Choices::inForce().leave(this);
}

View ChartPicture::view() const
{
    View shown{.switches = Choices::inForce().switches(), .pins = Choices::inForce().pins()};
    if (isPresent()) {
        shown.crossHair = crossHair;
        shown.zoom = zoom;
    }
    return shown;
}

std::string ChartPicture::version() const { return VersionOf(view()).toStdString(); }

void ChartPicture::paint(QPainter& painter, const QSize& size, const QWidget& on)
{
    Choices::inForce().listen(this, [this] { changed(); });
    layOut(size, on.font());
    Paint(painter, *painted, on.palette());
    painted->curves.clear(); // not needed for readings
}

/// The plot of another part can have another size, because its legend and scales need more or less space.
void ChartPicture::layOut(const QSize& size, const QFont& font)
{
    const QRectF before = painted ? painted->plane.plot : QRectF();
    painted.emplace(size, font, view());
    if (atRest && painted->plane.plot != before) {
        const auto& [point, place] = *atRest;
        zoom = painted->plane.moved(point - painted->plane.at(place));
        painted.emplace(size, font, view());
    }
    atRest.reset();
}

std::string ChartPicture::tipAt(const QPoint& place) const
{
    if (!painted)
        return {};
    const bool isCrossHair = keyPlace() == place;
    return TipAt(*painted, place, isCrossHair ? crossHair : std::nullopt).toStdString();
}

std::vector<forms::PictureCommand> ChartPicture::commands()
{
    std::vector<forms::PictureCommand> all;
    if (openWindow)
        all.push_back({"mnuOpenChart", "&Open Chart", "Ctrl+O", openWindow});
    all.push_back({"mnuCopyPicture", "&Copy Picture", "Ctrl+C; Ctrl+Ins", [this] { CopyPicture(view()); }});
    all.push_back({"mnuCopyFigures", "Copy &Figures", "Ctrl+Shift+C", [] { CopyFigures(); }});
    all.push_back({"mnuSavePicture", "&Save Picture as...", "Ctrl+S", [this] { SavePicture(form, view()); }});
    all.push_back({"mnuPrintPicture", "&Print...", "Ctrl+P", [this] { PrintPicture(form, view()); }});
    return all;
}

void ChartPicture::click(const QPoint& place)
{
    pinsBeforeClick = Choices::inForce().pins();
    if (letGoLast(place) || !painted || !painted->plane.plot.contains(place))
        return;
    const Place pointed = painted->plane.placeAt(place);
    if (IsAir(painted->air, pointed))
        pin(pointed);
    if (Choices::inForce().pins().size() > pinsBeforeClick.size())
        lastPinned.emplace(place, pointed);
}

/// Lets go the last pin if the click is where it was pinned. Its mark may be elsewhere now, because the table
/// of the pins takes space.
bool ChartPicture::letGoLast(const QPointF& click)
{
    if (!lastPinned || QLineF(lastPinned->first, click).length() > MarkReach)
        return false;
    std::vector<Place> pins = Choices::inForce().pins();
    const bool wasPinned = std::erase(pins, lastPinned->second) > 0;
    lastPinned.reset();
    if (wasPinned)
        Choices::inForce().setPins(std::move(pins));
    return wasPinned;
}

/// Pins a reading, or lets go the pins that are there already.
void ChartPicture::pin(const Place& place)
{
    std::vector<Place> pins = Choices::inForce().pins();
    const QPointF point = painted->plane.at(place);
    const auto letGo = std::erase_if(pins, [&](const Place& other) {
        return QLineF(painted->plane.at(other), point).length() <= MarkReach;
    });
    if (letGo == 0)
        pins.push_back(place);
    Choices::inForce().setPins(std::move(pins));
}

/// Opens the window, and undoes its first click.
void ChartPicture::doubleClick(const QPoint& /*place*/)
{
    Choices::inForce().setPins(pinsBeforeClick);
    if (openWindow)
        openWindow();
}

bool ChartPicture::pressKey(int key, Qt::KeyboardModifiers modifiers)
{
    modifiers &= ~Qt::KeypadModifier;
    const bool isShifted = modifiers == Qt::ShiftModifier;
    if (!painted || (modifiers != Qt::NoModifier && !isShifted))
        return false;
    if (const auto step = StepOf(key, isShifted, painted->plane.isMollier)) {
        moveCrossHair(*step);
        return true;
    }
    if (key == Qt::Key_Escape)
        return clear();
    const bool isPinned = (key == Qt::Key_Return || key == Qt::Key_Enter) && keyPlace();
    if (isPinned)
        pin(*crossHair);
    return isPinned;
}

void ChartPicture::moveCrossHair(const Step& step)
{
    if (!isPresent())
        zoom.reset();
    crossHair = Moved(view().crossHair, step, painted->air, painted->plane);
    lookedAt = Conditions::inForce();
}

/// Returns false if there is nothing to clear.
bool ChartPicture::clear()
{
    const bool isAnything = view().crossHair || !Choices::inForce().pins().empty();
    crossHair.reset();
    Choices::inForce().setPins({});
    return isAnything;
}

void ChartPicture::zoomTo(const Span& span, const QPointF& point)
{
    if (!isPresent())
        crossHair.reset();
    zoom = span;
    lastPinned.reset();
    lookedAt = Conditions::inForce();
    painted->plane.span = span; // for a movement that comes before the next picture
    atRest.emplace(point, painted->plane.placeAt(point));
    changed();
}

void ChartPicture::zoomOut()
{
    zoom.reset();
    lastPinned.reset();
    changed();
}

std::optional<QPoint> ChartPicture::keyPlace() const
{
    if (!painted || !view().crossHair)
        return std::nullopt;
    return painted->plane.at(*crossHair).toPoint();
}

} // namespace chart
