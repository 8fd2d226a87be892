#pragma once

#include <string>

/// The program's keys in the user's settings store.
///
///   key             written by                     read by
///   Metric_Units    options; end of the program    start
///   Pressure_psi    options                        start; options, as Pressure_Psi (the same key)
///   Pressure_kPa    options                        start; options
///   Baro_Pressure   end of the program             never (intentional)
///
/// If the store can't be read, its first use shows a message box.
std::string StoredText(const std::string& key, const std::string& defaultText);
std::string StoredText(const std::string& key, double defaultNumber);
void StoreText(const std::string& key, const std::string& text);

/// The defaults for missing pressure keys. The default Metric pressure of the options differs.
constexpr double defaultPsi = 14.696;
constexpr double defaultKPa = 101.352;
