#pragma once

#include <QString>

struct HelpColours;

/// The style sheet that help pages are shown with, before their own.
QString HelpStyleSheet(const HelpColours& colours);
