#pragma once

#include <QColor>
#include <QString>

/// What the fields expect.
inline const char* const UsualTexts[] = {"70",     "50", "20", "95",      "55",  "35", "0.01", "60.5", "1000",
                                         "14.696", "65", "75", "101.325", "7.2", "12", "0",    "100",  "30"};

/// What they don't expect.
inline const char* const OddTexts[] = {"",  "-",    ".",     "abc",  " ",   "1e5", "1e38",  "1e-40",
                                       "0", "1e99", "-1e30", "9999", "0.1", "-10", "1,000", "400"};

inline const QColor Backgrounds[] = {Qt::white, Qt::black, QColor(239, 239, 239), QColor(45, 45, 45)};

constexpr int NumberOfPastedTexts = 8;

/// What a clipboard can hold.
inline QString PastedText(int choice)
{
    switch (choice) {
    case 0:
        return QString(1'000'000, '7');
    case 1:
        return QString("7") + QChar(0) + "0";
    case 2:
        return QString::fromUtf8("\u202e07\u202c"); // right to left
    case 3:
        return QString::fromUtf8("\uff17\uff10"); // full width digits
    case 4:
        return QString::fromUtf8("\u0667\u0660"); // Arabic digits
    case 5:
        return "70\n50\r\n\t20";
    case 6:
        return QString(QChar(0xd800)) + "70"; // half a character
    default:
        return "70";
    }
}
