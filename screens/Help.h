#pragma once

namespace forms {
class Form;
} // namespace forms

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
void OpenHelp(forms::Form& form, HelpTopic topic);
