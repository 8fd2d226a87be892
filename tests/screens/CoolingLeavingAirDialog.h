#pragma once

#include "tests/screens/CoolingFixture.h"

using namespace forms;

/// The dialog that asks for the air leaving the coil. The entering air is at 80 deg F with a dew point of
/// 59.8.
class CoolingLeavingAirDialog : public CoolingTest
{
protected:
    static inline const std::string prompt =
        "Enter the desired Cooling Leaving Air Temperature, then Enter or Tab key:";
    static inline const std::string tooWarm =
        "Leaving Air Temperature must be less than the Entering Air Temperature";
    static inline const std::string needsWetBulb =
        "Since the L.A.T. Dry Bulb is less than the Dew Point, you must enter a L.A.T. Wet Bulb.";

    void expectRefused(const std::string& dryBulb, const std::string& wetBulb, const std::string& words)
    {
        LeavingAirAccepted = True16;
        LeavingWetBulbGiven = True16;
        answer(dryBulb, wetBulb);
        EXPECT_TRUE(isLoaded<CoolingLoad2>());
        EXPECT_EQ(user.text("Label1"), words);
        EXPECT_EQ(LeavingAirAccepted, False16);
        EXPECT_EQ(LeavingWetBulbGiven, False16);
    }

    void expectAccepted(const std::string& dryBulb, const std::string& wetBulb, Boolean16 asWet)
    {
        LeavingWetBulbGiven = asWet == True16 ? False16 : True16;
        answer(dryBulb, wetBulb);
        EXPECT_FALSE(isLoaded<CoolingLoad2>());
        EXPECT_EQ(LeavingAirAccepted, True16);
        EXPECT_EQ(LeavingWetBulbGiven, asWet);
    }
};
