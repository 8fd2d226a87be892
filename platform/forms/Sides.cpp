#include "platform/forms/Sides.h"

#include "platform/forms/Form.h"

#include <QResizeEvent>
#include <QSplitter>

#include <algorithm>
#include <optional>

namespace forms {

namespace {

class Splitter : public QSplitter
{
public:
    explicit Splitter(QWidget* parent) : QSplitter(Qt::Vertical, parent)
    {
        setChildrenCollapsible(false);
    }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        constexpr int wide = 1500;
        const bool isWide = event->size().width() >= wide;
        const Qt::Orientation wanted = isWide ? Qt::Horizontal : Qt::Vertical;
        const bool isNew = divided != wanted;
        divided = wanted;
        setOrientation(wanted);
        QSplitter::resizeEvent(event);
        if (isNew)
            divide(event->size());
    }

private:
    void divide(const QSize& size)
    {
        const bool isWide = orientation() == Qt::Horizontal;
        const int all = isWide ? size.width() : size.height();
        const int second = isWide ? all * 2 / 5 : std::min(all / 3, 220);
        setSizes({all - second, second});
    }

    std::optional<Qt::Orientation> divided;
};

} // namespace

Sides::Sides(Form& owner, const std::string& name, const Control& first, const Control& second)
    : Control(owner, new Splitter(owner.area()), name)
{
    auto* const splitter = static_cast<QSplitter*>(widget());
    splitter->addWidget(first.widget());
    splitter->addWidget(second.widget());
    splitter->setStretchFactor(0, 1);
}

} // namespace forms
