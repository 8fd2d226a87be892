// The look of the help: everything is readable on a light and on a dark desktop.

#include "platform/help/HelpColours.h"
#include "tests/platform/help/HelpTest.h"

using namespace help;

namespace {

constexpr double readable = 4.5;

QPalette lightPalette() { return {Qt::white}; }
QPalette darkPalette()
{
    QPalette palette(QColor(45, 45, 48));
    palette.setColor(QPalette::Base, QColor(30, 30, 32));
    return palette;
}

TEST(HelpColours, AreReadableOnEveryDesktop)
{
    QPalette odd(QColor(90, 90, 90));
    odd.setColor(QPalette::Base, QColor(128, 128, 128));
    odd.setColor(QPalette::Text, QColor(140, 140, 140));
    for (const QPalette& palette : {lightPalette(), darkPalette(), odd}) {
        const HelpColours colours(palette);
        EXPECT_GE(Contrast(colours.text, colours.page), readable);
        EXPECT_GE(Contrast(colours.link, colours.page), readable);
        EXPECT_GE(Contrast(colours.marked, colours.mark), readable);
    }
}

TEST(HelpColours, AreThoseOfTheDesktopWhereTheyCanBeRead)
{
    QPalette palette = lightPalette();
    palette.setColor(QPalette::Link, QColor(0, 80, 160));
    EXPECT_EQ(HelpColours(palette).link, QColor(0, 80, 160));
    EXPECT_EQ(HelpColours(palette).page, palette.color(QPalette::Base));
    EXPECT_EQ(ReadableOn(Qt::white, Qt::black), QColor(Qt::black));
}

TEST(HelpColours, AreMeasuredAsTheirFormulaSays)
{
    EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 1e-6);
    EXPECT_NEAR(Contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.005);
    EXPECT_NEAR(Contrast(Qt::red, Qt::red), 1, 1e-9);
}

class HelpLook : public HelpTest
{
protected:
    /// The color of a word of the page.
    static QColor colourOf(const QString& word)
    {
        const QTextCharFormat format = page().document()->find(word).charFormat();
        return format.hasProperty(QTextFormat::ForegroundBrush) ? format.foreground().color()
                                                                : page().palette().color(QPalette::Text);
    }
    static QColor ground() { return page().palette().color(QPalette::Base); }
    static void change(const QPalette& palette)
    {
        QApplication::setPalette(palette);
        comeToRest();
    }
};

TEST_F(HelpLook, FollowsTheDesktopFromLightToDark)
{
    change(lightPalette());
    ask(100);
    EXPECT_GE(Contrast(colourOf("mixed"), ground()), readable);
    const QColor linkOnLight = colourOf("mixed");
    change(darkPalette());
    EXPECT_EQ(ground(), QColor(30, 30, 32));
    EXPECT_NE(colourOf("mixed"), linkOnLight);
    EXPECT_GE(Contrast(colourOf("mixed"), ground()), readable);
    EXPECT_GE(Contrast(colourOf("sample"), ground()), readable);
    EXPECT_EQ(heading(), "Welcome");
}

TEST_F(HelpLook, FollowsTheStyleSheetOfThePage)
{
    ask(105);
    EXPECT_EQ(page().document()->find("Psychrometers want").blockFormat().leftMargin(), 24);
}

TEST_F(HelpLook, KeepsMarksAndPlaceWhenTheDesktopChanges)
{
    change(lightPalette());
    ask(100);
    press(Qt::Key_F3);
    typeWords("psychrometer");
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    EXPECT_EQ(page().marks(), 2);
    change(darkPalette());
    EXPECT_EQ(heading(), "Air properties");
    EXPECT_EQ(page().marks(), 2);
    const QTextCharFormat mark = page().extraSelections().first().format;
    EXPECT_GE(Contrast(mark.foreground().color(), mark.background().color()), readable);
    EXPECT_TRUE(button("helpBack").isEnabled());
}

} // namespace
