// Colors of controls, and of the text on them.

#include "tests/platform/forms/TestForms.h"

#include <QImage>
#include <QPalette>

using namespace forms;

class Colouring : public FormsTest
{
protected:
    /// The color at the right end of a control, beside its text.
    static QColor drawnBack(const Control& control)
    {
        comeToRest();
        const QImage picture = control.widget()->grab().toImage();
        return picture.pixelColor(picture.width() - 8, picture.height() / 2);
    }

    static QColor textColour(const Control& control)
    {
        return control.widget()->palette().color(control.widget()->isEnabled() ? QPalette::Active
                                                                               : QPalette::Disabled,
                                                 control.widget()->foregroundRole());
    }

    static void useDarkDesktop()
    {
        QPalette dark(QColor(45, 45, 45));
        dark.setColor(QPalette::Disabled, QPalette::Text, QColor(110, 110, 110));
        QApplication::setPalette(dark);
        ASSERT_EQ(dark.color(QPalette::Text), QColor(Qt::white));
    }
};

TEST_F(Colouring, OfALabelIsDrawn)
{
    FirstScreen& screen = showFirstScreen();
    screen.lblFirst.setBackColour(Colours::Red);
    screen.lblFirst.setForeColour(Colours::White);
    EXPECT_EQ(drawnBack(screen.lblFirst), QColor(255, 0, 0));
    EXPECT_EQ(textColour(screen.lblFirst), QColor(255, 255, 255));
    EXPECT_EQ(screen.lblFirst.backColour(), Colours::Red);
    EXPECT_EQ(screen.lblFirst.foreColour(), Colours::White);
    screen.lblFirst.setBackColour(Colours::Grey);
    EXPECT_EQ(drawnBack(screen.lblFirst), QColor(192, 192, 192));
}

TEST_F(Colouring, OfAFieldIsDrawn)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.setBackColour(Colours::LightGreen);
    EXPECT_EQ(drawnBack(screen.txtFirst), QColor(128, 255, 128));
    EXPECT_EQ(screen.txtFirst.backColour(), Colours::LightGreen);
    screen.txtFirst.disable();
    EXPECT_EQ(drawnBack(screen.txtFirst), QColor(128, 255, 128));
}

TEST_F(Colouring, IsDrawnInABoldFrameToo)
{
    FirstScreen& screen = showFirstScreen();
    Frame frame(screen, "Frame1", "Entering air");
    frame.setBold();
    screen.area()->layout()->addWidget(frame.widget());
    auto* const inside = new QVBoxLayout(frame.widget());
    inside->addWidget(screen.lblFirst.widget());
    inside->addWidget(screen.txtFirst.widget());
    screen.lblFirst.setBackColour(Colours::Red);
    screen.txtFirst.setBackColour(Colours::LightGreen);
    EXPECT_EQ(drawnBack(screen.lblFirst), QColor(255, 0, 0));
    EXPECT_EQ(drawnBack(screen.txtFirst), QColor(128, 255, 128));
    EXPECT_TRUE(frame.widget()->font().bold());
    EXPECT_FALSE(screen.lblFirst.widget()->font().bold());
    EXPECT_FALSE(screen.txtFirst.widget()->font().bold());
}

TEST_F(Colouring, KeepsTheTextReadableOnADarkDesktop)
{
    useDarkDesktop();
    FirstScreen& screen = showFirstScreen();
    EXPECT_EQ(textColour(screen.txtFirst), QColor(Qt::white)) << "a field without a colour is the desktop's";
    for (const Colour colour :
         {Colours::LightGreen, Colours::LightCyan, Colours::LightYellow, Colours::Grey}) {
        screen.txtFirst.setBackColour(colour);
        screen.lblFirst.setBackColour(colour);
        EXPECT_EQ(textColour(screen.txtFirst), QColor(Qt::black));
        EXPECT_EQ(textColour(screen.lblFirst), QColor(Qt::black));
    }
}

TEST_F(Colouring, KeepsTheTextOfADisabledFieldReadable)
{
    FirstScreen& screen = showFirstScreen();
    screen.txtFirst.disable();
    screen.txtFirst.setBackColour(Colours::Grey);
    EXPECT_EQ(textColour(screen.txtFirst), QColor(Qt::black));
}

TEST_F(Colouring, TakesTheTextsColourFromTheProgramInEitherOrder)
{
    FirstScreen& screen = showFirstScreen();
    screen.lblFirst.setForeColour(Colours::White);
    screen.lblFirst.setBackColour(Colours::LightYellow);
    EXPECT_EQ(screen.lblFirst.foreColour(), Colours::White);
}
