// The air properties calculator and dunmoor-table give the same numbers, to the last bit: ten thousand random
// rows.

#include "table/Row.h"
#include "tests/screens/CalculatorFixture.h"

#include <array>
#include <random>

namespace {

struct ItemField
{
    const char* field;
    Item item;
    double least, most; ///< below the dry bulb for the two temperatures
};

constexpr std::array<ItemField, 5> Fields{{{"txtTwb", Item::WetBulb, -0.5, 6.0},
                                           {"txttd", Item::DewPoint, -0.5, 20.0},
                                           {"txtRH", Item::RelativeHumidity, -2.0, 103.0},
                                           {"txtW", Item::HumidityRatio, 0.0, 0.0},
                                           {"txtGrains", Item::Grains, 0.0, 25.0}}};

using Numbers = std::array<TaggedNumber, 7>;

Numbers NumbersOfState()
{
    return {StatePoint.Twb, StatePoint.td,    StatePoint.RH,    StatePoint.W,
            StatePoint.h,   StatePoint.SpVol, StatePoint.Grains};
}

bool AreSame(const Numbers& a, const Numbers& b)
{
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a.at(i).kind() != b.at(i).kind() || a.at(i).asDouble() != b.at(i).asDouble())
            return false;
    }
    return true;
}

class SameAsTable : public CalculatorTest
{
protected:
    double uniform(double least, double most)
    {
        return std::uniform_real_distribution<double>(least, most)(random);
    }

    static std::string text(double value, int places)
    {
        return QString::number(value, 'f', places).toStdString();
    }

    /// A text for the item that the calculator accepts, sometimes one that it clips.
    std::string itemText(const ItemField& item, double tdb)
    {
        if (item.item == Item::HumidityRatio)
            return IsMetric() ? text(uniform(0, 5), 3) : text(uniform(0, 0.005), 6);
        const double value = uniform(item.least, item.most);
        const bool isBelowTdb = item.item == Item::WetBulb || item.item == Item::DewPoint;
        return text(isBelowTdb ? tdb - value : value, 2);
    }

    void compare(int rounds)
    {
        for (int round = 0; round < rounds; ++round) {
            for (const ItemField& item : Fields) {
                if (item.item == Item::Grains && IsMetric())
                    continue;
                const double tdb = IsMetric() ? uniform(10, 50) : uniform(50, 120);
                const std::string tdbText = text(tdb, 2);
                const std::string humidity = itemText(item, tdb);
                calculate(tdbText, item.field, humidity);
                const Numbers shown = NumbersOfState();

                const std::string pressure = user.text("txtP");
                std::string note;
                StatePoint.td = StatePoint.Twb = StatePoint.RH = 0;
                ASSERT_TRUE(RowSolver(item.item, std::nullopt).solve({tdbText, humidity, pressure}, note))
                    << note;
                EXPECT_TRUE(AreSame(NumbersOfState(), shown))
                    << tdbText << ", " << item.field << ' ' << humidity << ", " << pressure;
                clipped += note.empty() ? 0 : 1;
            }
        }
        EXPECT_GT(clipped, 0);
    }

    std::mt19937 random{11};
    int clipped = 0;
};

} // namespace

TEST_F(SameAsTable, InEnglish)
{
    start();
    user.click("btnAirCalc");
    compare(1200);
}

TEST_F(SameAsTable, InMetric)
{
    startInMetric();
    user.click("btnAirCalc");
    compare(1200);
}
