#pragma once

#include "platform/help/HtmlHelp.h"

/// The numbered topics of the help file.
enum class HelpTopic
{
    MainPage = 100,
    AirProperties = 105,
    MixedAir = 110,
    Cooling = 120,
    Heating = 130,
    Humidification = 140,
};

/// Opens the help file at a topic. The file is found by its name in the current directory, which is the
/// application's folder once the air properties calculator has been opened.
inline void OpenHelp(forms::Form& form, HelpTopic topic)
{
    HtmlHelpA(form, "dunmoor.chm", HH_HELP_CONTEXT, static_cast<int>(topic));
}

/// Opens the page about the options, which has no number.
inline void OpenOptionsHelp(forms::Form& form)
{
    HtmlHelpA(form, "dunmoor.chm::/options.html", HH_DISPLAY_TOPIC, 0);
}
