// Every form on several kinds of screens. The build runs these tests once for each kind: see the CMake file.

#include "tests/support/EveryForm.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>

class EveryFormOnScreen : public EveryFormTest
{
protected:
    QRect available() const { return QGuiApplication::primaryScreen()->availableGeometry(); }
};

TEST_P(EveryFormOnScreen, OpensOnThePrimaryScreen)
{
    EXPECT_EQ(window->screen(), QGuiApplication::primaryScreen());
}

TEST_P(EveryFormOnScreen, ShowsItsTitleBarAndItsMenu)
{
    EXPECT_GE(window->frameGeometry().top(), available().top());
    EXPECT_GE(window->frameGeometry().left(), available().left());
}

TEST_P(EveryFormOnScreen, FitsTheScreen)
{
    EXPECT_TRUE(available().contains(window->geometry()))
        << window->x() << ", " << window->y() << ": " << window->width() << " x " << window->height();
}

TEST_P(EveryFormOnScreen, LetsTheUserReachEachControl)
{
    auto* const view = window->findChild<QScrollArea*>();
    int reached = 0;
    for (QWidget* const control : view->findChildren<QWidget*>()) {
        const bool isInput = qobject_cast<QLineEdit*>(control) != nullptr ||
                             qobject_cast<QAbstractButton*>(control) != nullptr ||
                             qobject_cast<QComboBox*>(control) != nullptr;
        if (!isInput || !control->isVisible())
            continue;
        view->ensureWidgetVisible(control);
        EXPECT_EQ(control->visibleRegion().boundingRect(), control->rect())
            << control->objectName().toStdString();
        ++reached;
    }
    EXPECT_GE(reached, 1);
}

TEST_P(EveryFormOnScreen, KeepsItsSizeWhereTheScreenHasRoom)
{
    const auto* const view = window->findChild<QScrollArea*>();
    const QSize content = view->widget()->size();
    const bool hasRoom =
        available().height() > content.height() + 80 && available().width() > content.width() + 20;
    EXPECT_TRUE(!hasRoom || view->viewport()->size().width() >= content.width());
    EXPECT_TRUE(!hasRoom || view->viewport()->size().height() >= content.height());
}

INSTANTIATE_TEST_SUITE_P(InBothModes, EveryFormOnScreen, testing::ValuesIn(everyFormInBothModes()), nameOf);
