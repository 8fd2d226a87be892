#pragma once

#include "chart/Choices.h"
#include "chart/Layout.h"
#include "platform/forms/Picture.h"

#include <optional>
#include <utility>

namespace chart {

struct Step;

/// A psychrometric chart with the last run of each calculator, in the current units and at the current
/// pressure. A click pins a reading or lets it go; the arrow keys move a cross hair, Enter pins, Esc clears.
class ChartPicture : public forms::PictureContents
{
public:
    /// @param open  opens the window of the chart; empty in that window
    explicit ChartPicture(forms::Form& owner, forms::Handler open = {})
        : form(owner), openWindow(std::move(open))
    {}
    ~ChartPicture() override;

    std::string version() const override;
    void paint(QPainter& painter, const QSize& size, const QWidget& on) override;
    std::string tipAt(const QPoint& place) const override;
    std::vector<forms::PictureCommand> commands() override;
    void click(const QPoint& place) override;
    void doubleClick(const QPoint& place) override;
    bool pressKey(int key, Qt::KeyboardModifiers modifiers) override;
    std::optional<QPoint> keyPlace() const override;

    /// What is shown, with what all charts share.
    virtual View view() const;
    /// Null before the first picture. Without its curves.
    const Layout* layout() const { return painted ? &*painted : nullptr; }

protected:
    /// Shows another part of the chart, with the air at this point of the picture at rest.
    void zoomTo(const Span& span, const QPointF& point);
    void zoomOut(); ///< to the whole

private:
    void layOut(const QSize& size, const QFont& font);
    bool isPresent() const { return lookedAt == Conditions::inForce(); }
    void moveCrossHair(const Step& step);
    void pin(const Place& place);
    bool letGoLast(const QPointF& click);
    bool clear();

    forms::Form& form;
    forms::Handler openWindow;
    std::optional<Layout> painted;
    Conditions lookedAt; // of the cross hair and the zoom, which are dropped when they change
    std::optional<Place> crossHair;
    std::optional<Span> zoom;
    std::optional<std::pair<QPointF, Place>> atRest; // in the next picture, though its plot may be another
    std::optional<std::pair<QPointF, Place>> lastPinned; // where it was clicked
    std::vector<Place> pinsBeforeClick;                  // a double click restores them
};

} // namespace chart
