#include "platform/help/HtmlEntities.h"

#include <algorithm>
#include <utility>

namespace {

constexpr qsizetype longestEntity = 10; // with its & and ;

/// The names of the characters from 160 to 255, in their order.
constexpr const char* latinNames[] = {
    "nbsp",   "iexcl",  "cent",   "pound",  "curren", "yen",    "brvbar", "sect",   "uml",    "copy",
    "ordf",   "laquo",  "not",    "shy",    "reg",    "macr",   "deg",    "plusmn", "sup2",   "sup3",
    "acute",  "micro",  "para",   "middot", "cedil",  "sup1",   "ordm",   "raquo",  "frac14", "frac12",
    "frac34", "iquest", "Agrave", "Aacute", "Acirc",  "Atilde", "Auml",   "Aring",  "AElig",  "Ccedil",
    "Egrave", "Eacute", "Ecirc",  "Euml",   "Igrave", "Iacute", "Icirc",  "Iuml",   "ETH",    "Ntilde",
    "Ograve", "Oacute", "Ocirc",  "Otilde", "Ouml",   "times",  "Oslash", "Ugrave", "Uacute", "Ucirc",
    "Uuml",   "Yacute", "THORN",  "szlig",  "agrave", "aacute", "acirc",  "atilde", "auml",   "aring",
    "aelig",  "ccedil", "egrave", "eacute", "ecirc",  "euml",   "igrave", "iacute", "icirc",  "iuml",
    "eth",    "ntilde", "ograve", "oacute", "ocirc",  "otilde", "ouml",   "divide", "oslash", "ugrave",
    "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml"};

/// The names of the others that a help text has a use for.
constexpr std::pair<const char*, char16_t> otherNames[] = {
    {"amp", 0x0026},    {"lt", 0x003C},     {"gt", 0x003E},      {"quot", 0x0022},  {"apos", 0x0027},
    {"ndash", 0x2013},  {"mdash", 0x2014},  {"lsquo", 0x2018},   {"rsquo", 0x2019}, {"sbquo", 0x201A},
    {"ldquo", 0x201C},  {"rdquo", 0x201D},  {"bdquo", 0x201E},   {"bull", 0x2022},  {"hellip", 0x2026},
    {"prime", 0x2032},  {"Prime", 0x2033},  {"trade", 0x2122},   {"larr", 0x2190},  {"uarr", 0x2191},
    {"rarr", 0x2192},   {"darr", 0x2193},   {"harr", 0x2194},    {"minus", 0x2212}, {"infin", 0x221E},
    {"asymp", 0x2248},  {"ne", 0x2260},     {"le", 0x2264},      {"ge", 0x2265},    {"radic", 0x221A},
    {"sum", 0x2211},    {"part", 0x2202},   {"alpha", 0x03B1},   {"beta", 0x03B2},  {"gamma", 0x03B3},
    {"Delta", 0x0394},  {"delta", 0x03B4},  {"epsilon", 0x03B5}, {"eta", 0x03B7},   {"theta", 0x03B8},
    {"lambda", 0x03BB}, {"mu", 0x03BC},     {"pi", 0x03C0},      {"rho", 0x03C1},   {"sigma", 0x03C3},
    {"tau", 0x03C4},    {"phi", 0x03C6},    {"Phi", 0x03A6},     {"psi", 0x03C8},   {"omega", 0x03C9},
    {"Omega", 0x03A9},  {"thinsp", 0x2009}, {"ensp", 0x2002},    {"emsp", 0x2003},  {"euro", 0x20AC},
    {"permil", 0x2030}, {"lsaquo", 0x2039}, {"rsaquo", 0x203A},  {"oelig", 0x0153}, {"OElig", 0x0152},
    {"scaron", 0x0161}, {"Scaron", 0x0160}, {"tilde", 0x02DC},   {"circ", 0x02C6},  {"dagger", 0x2020},
    {"Dagger", 0x2021}, {"oline", 0x203E},  {"frasl", 0x2044},   {"sim", 0x223C},   {"equiv", 0x2261}};

/// The character of &#176; or &#xB0; between & and ;. Null where it is none.
QString characterOfNumber(QStringView number)
{
    const bool isHexadecimal = number.startsWith('x', Qt::CaseInsensitive);
    bool isNumber = false;
    const char32_t code = number.sliced(isHexadecimal ? 1 : 0).toUInt(&isNumber, isHexadecimal ? 16 : 10);
    const bool isCharacter =
        isNumber && code >= 32 && code <= QChar::LastValidCodePoint && !QChar::isSurrogate(code);
    return isCharacter ? QString::fromUcs4(&code, 1) : QString();
}

QString characterOfName(QStringView name)
{
    for (std::size_t at = 0; at < std::size(latinNames); ++at) {
        if (name == QLatin1String(latinNames[at]))
            return QChar(static_cast<char16_t>(160 + at));
    }
    for (const auto& [known, code] : otherNames) {
        if (name == QLatin1String(known))
            return QChar(code);
    }
    return {};
}

} // namespace

QString ResolveEntities(QStringView text)
{
    QString resolved;
    for (qsizetype start = 0; (start = text.indexOf('&')) >= 0;) {
        resolved += text.first(start);
        text = text.sliced(start);
        const qsizetype end = text.first(std::min(text.size(), longestEntity)).indexOf(';');
        const QStringView name = end > 1 ? text.sliced(1, end - 1) : QStringView();
        const QString character =
            name.startsWith('#') ? characterOfNumber(name.sliced(1)) : characterOfName(name);
        resolved += character.isNull() ? QString('&') : character;
        text = text.sliced(character.isNull() ? 1 : end + 1);
    }
    resolved += text;
    return resolved;
}
