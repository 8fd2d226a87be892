// What the air properties calculator has besides its panel (see PanelExpectations.h).

#include "tests/screens/CalculatorFixture.h"

class AirPropertiesScreen : public CalculatorTest
{
protected:
    void open()
    {
        start();
        user.click("btnAirCalc");
    }
};

TEST_F(AirPropertiesScreen, HoldsItsFramesInOne)
{
    open();
    expectInside("Frame4", {"Frame1", "Frame2", "Frame3", "Frame5"});
}

TEST_F(AirPropertiesScreen, ShiftsTheLastDigitOnASecondPressWithNothingTyped)
{
    open();
    calculate("70", "txtRH", "50");
    const std::string first = user.text("txtW");
    user.click("btnCALCULATE"); // from the grains as displayed
    EXPECT_EQ(first, "0.00778");
    EXPECT_EQ(user.text("txtW"), "0.00779");
}

TEST_F(AirPropertiesScreen, KeepsTheSelectorWhenNoTextChanges)
{
    open();
    calculate("70", "txtGrains", "54.5");
    user.click("btnCALCULATE");
    const std::string before = HumiditySelector;
    user.click("btnCALCULATE");
    EXPECT_EQ(HumiditySelector, before);
}

TEST_F(AirPropertiesScreen, EndsWithTheItemThatChangedLast)
{
    open();
    // The grains stand there already as they will be written, so the dew point is the last that changes.
    calculate("70", "txtGrains", "54.5");
    EXPECT_EQ(user.text("txtGrains"), "54.5");
    EXPECT_EQ(HumiditySelector, "Dew Point");
}
