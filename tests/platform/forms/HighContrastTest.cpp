// A desktop with high contrast, and the frame of a boxed label.

#include "platform/forms/Outlines.h"
#include "platform/forms/Picture.h"
#include "tests/platform/forms/TestForms.h"

#include <QImage>

class HighContrast : public FormsTest
{
protected:
    static void useWhiteOnBlack()
    {
        QPalette palette;
        for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
            palette.setColor(role, Qt::black);
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            palette.setColor(role, Qt::white);
        palette.setColor(QPalette::Highlight, Qt::cyan);
        QApplication::setPalette(palette);
        QApplication::setStyle(new Outlines);
    }

    static QColor edgeOf(const Control& control)
    {
        comeToRest();
        const QImage image = control.widget()->grab().toImage();
        return image.pixelColor(image.width() / 2, 0);
    }
};

TEST_F(HighContrast, DrawsTheOutlinesOfFieldsAndButtonsInTheColorOfText)
{
    useWhiteOnBlack();
    FirstScreen& screen = showFirstScreen();
    screen.Combo1.takeFocus();
    EXPECT_EQ(edgeOf(screen.txtSecond), QColor(Qt::white));
    EXPECT_EQ(edgeOf(screen.btnSecond), QColor(Qt::white));
}

TEST_F(HighContrast, ShowsTheFocus)
{
    useWhiteOnBlack();
    FirstScreen& screen = showFirstScreen();
    screen.txtSecond.takeFocus();
    EXPECT_EQ(edgeOf(screen.txtSecond), QColor(Qt::cyan));
}

TEST_F(HighContrast, IsToldFromOtherDesktops)
{
    const auto isHigh = [](const QColor& window, const QColor& text) {
        QPalette palette;
        palette.setColor(QPalette::Window, window);
        palette.setColor(QPalette::WindowText, text);
        return HasHighContrast(palette);
    };
    EXPECT_TRUE(isHigh(Qt::black, Qt::white));
    EXPECT_TRUE(isHigh(Qt::white, Qt::black));
    EXPECT_TRUE(isHigh(Qt::black, Qt::yellow));
    EXPECT_FALSE(isHigh(QColor(239, 239, 239), Qt::black));
    EXPECT_FALSE(isHigh(QColor(45, 45, 45), Qt::white));
}

TEST_F(HighContrast, IsNotNeededForTheFrameOfABoxedLabel)
{
    QApplication::setStyle(new Outlines);
    FirstScreen& screen = showFirstScreen();
    screen.lblFirst.setBoxed();
    comeToRest();
    const QImage image = screen.lblFirst.widget()->grab().toImage();
    const QColor inside = image.pixelColor(2, image.height() / 2);
    for (const QPoint edge : {QPoint(0, image.height() / 2), QPoint(image.width() - 1, image.height() / 2),
                              QPoint(image.width() / 2, 0), QPoint(image.width() / 2, image.height() - 1)})
        EXPECT_NE(image.pixelColor(edge), inside) << edge.x() << ", " << edge.y();
}
