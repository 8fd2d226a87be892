// When a picture is painted, and what it caches.

#include "platform/forms/Picture.h"
#include "tests/platform/forms/TestForms.h"

#include <QContextMenuEvent>
#include <QFont>
#include <QImage>
#include <QMenu>
#include <QPainter>
#include <QPalette>
#include <QTest>

using namespace forms;

namespace {

struct Drawing : PictureContents
{
    std::string version() const override { return shown; }
    void paint(QPainter& painter, const QSize& size, const QWidget& /*on*/) override
    {
        ++paints;
        painter.fillRect(QRect(QPoint(0, 0), size).adjusted(2, 2, -2, -2), Qt::red);
    }
    std::string tipAt(const QPoint& /*place*/) const override { return "a tip"; }
    std::vector<PictureCommand> commands() override
    {
        return {{"mnuFirst", "&First", "Ctrl+D; Ctrl+Ins", [] { events += "first "; }}};
    }
    void click(const QPoint& place) override { events += "click " + std::to_string(place.x()) + " "; }
    void doubleClick(const QPoint& /*place*/) override { events += "double "; }
    void drag(const QPoint& from, const QPoint& to) override { dragged += to - from; }
    bool turnWheel(const QPoint& /*place*/, double steps) override
    {
        events += "wheel " + std::to_string(static_cast<int>(steps)) + " ";
        return true;
    }
    bool pressKey(int key, Qt::KeyboardModifiers /*modifiers*/) override
    {
        keyIsThere = key == Qt::Key_Up;
        return keyIsThere;
    }
    std::optional<QPoint> keyPlace() const override
    {
        return keyIsThere ? std::optional(QPoint(5, 5)) : std::nullopt;
    }

    static inline std::string events;
    static inline QPoint dragged;
    bool keyIsThere = false;
    static inline std::string shown = "first";
    static inline int paints = 0;
};

class PictureScreen : public Form
{
public:
    PictureScreen() : Form("PictureScreen", FormKind::Screen)
    {
        auto* const column = new QVBoxLayout(area());
        column->addWidget(Image1.widget());
        setSize(3000, 3000);
    }
    Picture Image1{*this, "Image1", std::make_unique<Drawing>()};
};

class PictureControl : public FormsTest
{
protected:
    static QColor shownColour()
    {
        QWidget* const canvas = form<PictureScreen>().Image1.widget();
        return canvas->grab().toImage().pixelColor(canvas->rect().center());
    }
    /// Looks at the picture, after its window's first frame if the window has only just appeared.
    static void look()
    {
        EXPECT_TRUE(QTest::qWaitFor([] { return shownColour() == QColor(Qt::red); }));
    }
    static void show()
    {
        form<PictureScreen>().Show();
        look();
    }
    static void lookUntilPainted(int times)
    {
        EXPECT_TRUE(QTest::qWaitFor([times] {
            look();
            return Drawing::paints >= times;
        }));
        EXPECT_EQ(Drawing::paints, times);
    }
    static void repaint()
    {
        form<PictureScreen>().Image1.repaint();
        look();
    }
};

} // namespace

TEST_F(PictureControl, PassesClicksAndDoubleClicksToItsContents)
{
    show();
    QWidget* const canvas = form<PictureScreen>().Image1.widget();
    QTest::mouseClick(canvas, Qt::LeftButton, Qt::NoModifier, {20, 20});
    QTest::mouseClick(canvas, Qt::RightButton, Qt::NoModifier, {30, 20});
    EXPECT_EQ(Drawing::events, "click 20 ");
    QTest::mouseDClick(canvas->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                       canvas->mapTo(canvas->window(), QPoint(40, 20)));
    EXPECT_EQ(Drawing::events, "click 20 click 40 double ") << "the second click of two is none";
}

TEST_F(PictureControl, TellsADragFromAClick)
{
    show();
    QWidget* const canvas = form<PictureScreen>().Image1.widget();
    QTest::mousePress(canvas, Qt::LeftButton, Qt::NoModifier, {20, 20});
    QTest::mouseMove(canvas, {21, 21});
    EXPECT_EQ(Drawing::dragged, QPoint());
    QTest::mouseMove(canvas, {60, 50});
    QTest::mouseMove(canvas, {70, 90});
    QTest::mouseRelease(canvas, Qt::LeftButton, Qt::NoModifier, {70, 90});
    EXPECT_EQ(Drawing::dragged, QPoint(50, 70));
    EXPECT_EQ(Drawing::events, "");
}

TEST_F(PictureControl, RunsItsCommandsByTheirKeysAndByTheContextMenu)
{
    show();
    QWidget* const canvas = form<PictureScreen>().Image1.widget();
    QTest::keyClick(canvas, Qt::Key_D, Qt::ControlModifier);
    QTest::keyClick(canvas, Qt::Key_Insert, Qt::ControlModifier);
    QTest::keyClick(canvas, Qt::Key_D);
    EXPECT_EQ(Drawing::events, "first first ");
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, canvas->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(canvas, &event);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    User::chooseFromMenu(*menu, menu->findChild<QAction*>("mnuFirst"));
    EXPECT_EQ(Drawing::events, "first first first ");
}

TEST_F(PictureControl, DescribesThePlaceThatTheKeysMoved)
{
    show();
    QWidget* const canvas = form<PictureScreen>().Image1.widget();
    QTest::keyClick(canvas, Qt::Key_Up);
    EXPECT_EQ(canvas->accessibleDescription(), "a tip");
}

TEST_F(PictureControl, IsPaintedAfterTheFirstPictureOfItsWindow)
{
    form<PictureScreen>().Show();
    EXPECT_NE(shownColour(), QColor(Qt::red));
    EXPECT_EQ(Drawing::paints, 0);
    look();
    EXPECT_EQ(Drawing::paints, 1);
}

TEST_F(PictureControl, IsKeptWhileNothingChanges)
{
    show();
    repaint();
    form<PictureScreen>().Hide();
    show();
    EXPECT_EQ(Drawing::paints, 1);
}

TEST_F(PictureControl, IsPaintedAnewWhenItsContentsChange)
{
    show();
    Drawing::shown = "second";
    repaint();
    EXPECT_EQ(Drawing::paints, 2);
}

TEST_F(PictureControl, IsUpToDateWhenItsWindowComesBack)
{
    show();
    form<PictureScreen>().Hide();
    Drawing::shown = "second";
    show();
    EXPECT_EQ(Drawing::paints, 2);
}

TEST_F(PictureControl, ShowsTheFocusAtItsEdgeAndTintsNothing)
{
    show();
    form<PictureScreen>().Image1.takeFocus();
    QWidget* const canvas = form<PictureScreen>().Image1.widget();
    ASSERT_TRUE(QTest::qWaitFor([canvas] { return canvas->hasFocus(); }));
    const QImage image = canvas->grab().toImage();
    EXPECT_EQ(image.pixelColor(canvas->rect().center()), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(canvas->width() / 2, 0), canvas->palette().color(QPalette::Highlight));
}

TEST_F(PictureControl, IsPaintedAnewInAnotherSizeFontOrColour)
{
    show();
    form<PictureScreen>().window()->resize(500, 500);
    lookUntilPainted(2);
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Base, Qt::black);
    QApplication::setPalette(palette);
    lookUntilPainted(3);
    QFont font = QApplication::font();
    font.setItalic(true);
    QApplication::setFont(font);
    lookUntilPainted(4);
    look();
    EXPECT_EQ(Drawing::paints, 4);
}
