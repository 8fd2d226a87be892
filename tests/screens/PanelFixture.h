#pragma once

#include "tests/screens/CalculatorFixture.h"
#include "tests/screens/PanelExpectations.h"

#include <algorithm>

/// A user at the air-state panel of each of the five calculators in turn.
class PanelTest : public CalculatorTest, public testing::WithParamInterface<PanelExpectation>
{
protected:
    static const PanelExpectation& expected() { return GetParam(); }

    void open(bool metric = false)
    {
        metric ? startInMetric() : start();
        user.click(expected().menuButton);
    }

    /// The items whose typed value a calculation reads.
    static std::vector<std::string> typedItems()
    {
        std::vector<std::string> items = allItems;
        if (expected().discardsTypedGrains)
            items.pop_back();
        return items;
    }

    /// Prepares and acts twice, with the buttons all off before the action and all on, and compares what
    /// becomes of them. No steps of a user turn all on at once, so this sets them itself.
    void expectButtons(const ButtonOutcome& outcome, const std::function<void()>& prepare,
                       const std::function<void()>& act)
    {
        for (const char before : {'-', '+'}) {
            prepare();
            setButtons(before == '+');
            act();
            ButtonOutcome wanted = outcome;
            std::ranges::replace(wanted, '.', before);
            EXPECT_EQ(buttonStates(), wanted) << "all were " << before;
        }
    }

    /// The same for the button that calculates, which is on when it is pressed.
    void expectButtonsAfterCalculating(const ButtonOutcome& outcome, const std::function<void()>& prepare)
    {
        for (const char before : {'-', '+'}) {
            prepare();
            setButtons(before == '+');
            user.widget("btnCALCULATE")->setEnabled(true);
            user.click("btnCALCULATE");
            ButtonOutcome wanted = outcome;
            std::ranges::replace(wanted, '.', before);
            if (outcome.front() == '.')
                wanted.front() = '+';
            EXPECT_EQ(buttonStates(), wanted) << "all others were " << before;
        }
    }

    ButtonOutcome buttonStates()
    {
        ButtonOutcome states;
        for (const auto& [name, caption] : expected().buttons)
            states += user.isEnabled(name) ? '+' : '-';
        return states;
    }

private:
    void setButtons(bool on)
    {
        for (const auto& [name, caption] : expected().buttons)
            user.widget(name)->setEnabled(on);
    }
};

/// Runs a suite on all five.
#define RUN_ON_EVERY_PANEL(Suite)                                                                            \
    INSTANTIATE_TEST_SUITE_P(Of, Suite, testing::ValuesIn(panels),                                           \
                             [](const auto& panel) { return panel.param.form; })
