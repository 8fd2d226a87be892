#include "platform/forms/Sides.h"

#include "platform/forms/Form.h"

#include <QResizeEvent>
#include <QSplitter>

#include <algorithm>

namespace forms {

namespace {

class Splitter : public QSplitter
{
public:
    explicit Splitter(QWidget* parent) : QSplitter(Qt::Vertical, parent)
    {
        setChildrenCollapsible(false);
        connect(this, &QSplitter::splitterMoved, this, [this] { isUsersChoice = true; });
    }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        constexpr int wide = 1500;
        const Qt::Orientation wanted = event->size().width() >= wide ? Qt::Horizontal : Qt::Vertical;
        if (wanted != orientation())
            isUsersChoice = false;
        setOrientation(wanted);
        QSplitter::resizeEvent(event);
        if (!isUsersChoice)
            divide(event->size());
    }

private:
    void divide(const QSize& size)
    {
        constexpr int widest = 780;
        constexpr int highest = 220;
        const bool isWide = orientation() == Qt::Horizontal;
        const int all = isWide ? size.width() : size.height();
        const int second = isWide ? std::min(all * 2 / 5, widest) : std::min(all / 4, highest);
        setSizes({all - second, second});
    }

    bool isUsersChoice = false;
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
