#include "tests/screens/CoolingFixture.h"

#include <QFont>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

using namespace forms;

class CoolingSummary : public CoolingTest
{
protected:
    void openWithLeavingAir(const std::string& volume = "1000")
    {
        open();
        calculate("80", "txtRH", "50");
        saveEntering(volume);
        setLeaving("65");
    }

    QRect placeOf(const std::string& control)
    {
        const QWidget* const shown = user.widget(control);
        return {shown->mapTo(shown->window(), QPoint(0, 0)), shown->size()};
    }

    std::string volumeShownFor(const std::string& volume)
    {
        calculate("80", "txtRH", "50");
        saveEntering(volume);
        setLeaving("65");
        return readLoads()[0];
    }
};

TEST_F(CoolingSummary, ShowsItsCaptions)
{
    openWithLeavingAir();
    inSummary([this] {
        EXPECT_EQ(user.title(), " Cooling Load Summary - (English Units)");
        expectCaptions({{"Label2", "Air Volume:"},
                        {"lblcfm1", " CFM "},
                        {"Label1", "Cooling load summary:"},
                        {"lblBTU(1)", " BTU Sensible "},
                        {"lblBTU(2)", " BTU Latent "},
                        {"lblBTU(0)", " BTU Total "},
                        {"Label3", " @ 1.08 BTU per CFM deg F "},
                        {"Label4", "+"},
                        {"Label5", "="},
                        {"Command1", "OK"}});
    });
}

TEST_F(CoolingSummary, ShowsItsMetricCaptions)
{
    openWithEnteringAir(true);
    setLeaving("20");
    inSummary([this] {
        EXPECT_EQ(user.title(), " Cooling Load Summary - (Metric / SI Units)");
        expectCaptions({{"lblcfm1", " cubic meter per hour "},
                        {"lblBTU(1)", " kW Sensible "},
                        {"lblBTU(2)", " kW Latent "},
                        {"lblBTU(0)", " kW Total "},
                        {"Label3", " @ 1.2072 kWh /m3 deg C "}});
    });
}

TEST_F(CoolingSummary, StandsAQuarterDownInTheMiddleOfTheScreenOnLightGrey)
{
    openWithLeavingAir();
    inSummary([this] {
        expectAQuarterDownInTheMiddle();
        const QColor back = user.widget("Label1")->parentWidget()->palette().color(QPalette::Window);
        EXPECT_EQ(back.red(), back.green());
        EXPECT_EQ(back.red(), back.blue());
        EXPECT_GE(back.red(), 192);
        EXPECT_LT(back.red(), 255);
    });
}

TEST_F(CoolingSummary, IsLaidOutAsASum)
{
    openWithLeavingAir();
    inSummary([this] {
        const Texts rows[] = {
            {"Label2", "txtcfm1", "lblcfm1"},     {"Label1", "txtBTU(1)", "lblBTU(1)", "Label3"},
            {"Label4", "txtBTU(2)", "lblBTU(2)"}, {"Line1"},
            {"Label5", "txtBTU(0)", "lblBTU(0)"}, {"Command1"}};
        int above = 0;
        for (const Texts& row : rows) {
            const int middle = placeOf(row.front()).center().y();
            EXPECT_GT(middle, above) << row.front();
            above = middle;
            for (std::size_t i = 1; i < row.size(); ++i) {
                EXPECT_NEAR(placeOf(row[i]).center().y(), middle, 1) << row[i];
                EXPECT_GT(placeOf(row[i]).left(), placeOf(row[i - 1]).right()) << row[i];
            }
        }
        EXPECT_EQ(user.widget("Label4")->font().pointSize(), 12);
        EXPECT_EQ(user.widget("Label5")->font().pointSize(), 12);
    });
}

TEST_F(CoolingSummary, RulesTheSumFromTheSignToTheEndOfTheUnits)
{
    openWithLeavingAir();
    inSummary([this] {
        const QRect rule = placeOf("Line1");
        EXPECT_EQ(rule.left(), placeOf("Label4").left());
        EXPECT_EQ(rule.right(), placeOf("lblBTU(0)").right());
        EXPECT_GT(rule.width(), rule.height());
        EXPECT_LT(placeOf("Label4").width(), placeOf("txtBTU(2)").width());
        EXPECT_GT(rule.left(), placeOf("Label1").right()) << "under the sign, not under the words before it";
    });
}

TEST_F(CoolingSummary, IsTabbedThroughFromTopToBottom)
{
    openWithLeavingAir();
    inSummary([this] {
        EXPECT_EQ(tabOrder(), (Texts{"txtcfm1", "txtBTU(1)", "txtBTU(2)", "txtBTU(0)", "Command1"}));
    });
}

TEST_F(CoolingSummary, ShowsLoadsWithOneDecimalAtMost)
{
    openWithLeavingAir("767.513");
    EXPECT_EQ(readLoads(), (Texts{"767.51", "12,345.7", ".", "12,345.7"}));
}

TEST_F(CoolingSummary, ShowsTheVolumeAsItWasTypedWithOneDecimalAtLeast)
{
    open();
    EXPECT_EQ(volumeShownFor("1234.56"), "1,234.56");
    EXPECT_EQ(volumeShownFor("1000"), "1,000.0");
    EXPECT_EQ(volumeShownFor("1,234.5678"), "1,234.57");
    EXPECT_EQ(volumeShownFor("16777217"), "16,777,217.0") << "a single would hold 16777216";
    EXPECT_EQ(volumeShownFor("0.25"), ".25");
    EXPECT_EQ(volumeShownFor("0"), ".0");
    EXPECT_EQ(volumeShownFor(""), ".0");
}

TEST_F(CoolingSummary, LetsTheUserScribbleWithoutConsequences)
{
    openWithLeavingAir();
    inSummary([this] {
        const Single total = TotalLoad;
        const double sensible = SensibleLoad.asDouble();
        for (const char* field : {"txtcfm1", "txtBTU(0)", "txtBTU(1)", "txtBTU(2)"}) {
            user.type(field, "99");
            EXPECT_EQ(user.text(field), "99");
        }
        EXPECT_EQ(TotalLoad, total);
        EXPECT_EQ(SensibleLoad, sensible);
        EXPECT_EQ(AirVolume.text(), "1000");
        EXPECT_EQ(CoolingEnteringAir.AirVolume, 1000.0F);
    });
    calculate("80", "txtRH", "50");
    saveEntering();
    setLeaving("65");
    EXPECT_EQ(readLoads(), (Texts{"1,000.0", "16,085.3", ".", "16,085.3"})) << "created anew";
}

TEST_F(CoolingSummary, LeavesForTheCalculatorByOkAndByItsCloseBox)
{
    const std::function<void()> ways[] = {[this] { user.click("Command1"); }, [this] { user.closeWindow(); }};
    open();
    for (const auto& leave : ways) {
        calculate("80", "txtRH", "50");
        saveEntering();
        setLeaving("65");
        inSummary([&] {
            leave();
            EXPECT_FALSE(isLoaded<CoolingLoad3>());
        });
        EXPECT_EQ(user.window(), "CoolingLoad1");
        expectButtons(false, false, false, false);
        EXPECT_EQ(user.text("txtTdb"), "65");
    }
}
