#include "platform/help/HelpStyle.h"

#include "platform/help/HelpColours.h"

QString HelpStyleSheet(const HelpColours& colours)
{
    const QString sheet = R"(
        a { color: %1; text-decoration: underline; }
        h1 { margin-top: 4px; margin-bottom: 14px; font-weight: 600; }
        h2 { margin-top: 26px; margin-bottom: 8px; font-weight: 600; }
        h3 { margin-top: 18px; margin-bottom: 6px; font-weight: 600; }
        p, dd { margin-top: 6px; margin-bottom: 10px; line-height: 3px; -qt-line-height-type: line-distance; }
        li { margin-top: 3px; margin-bottom: 3px; line-height: 3px; -qt-line-height-type: line-distance; }
        table { margin-top: 8px; margin-bottom: 12px; border-color: %2; border-style: solid;
                border-collapse: collapse; }
        th { padding: 5px 9px; border-color: %2; background-color: %3; }
        td { padding: 5px 9px; border-color: %2; }
        th, caption { font-weight: 600; }
        small { color: %4; }
    )";
    return sheet.arg(colours.link.name(), colours.rule.name(), colours.shade.name(),
                     colours.quietText.name());
}
