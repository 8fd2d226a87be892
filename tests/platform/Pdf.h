#pragma once

#include <QProcess>
#include <QRegularExpression>

#include <stdexcept>
#include <string>
#include <vector>

/// The output of a program about a PDF file. @throws std::runtime_error if the program is missing or fails
inline QString OutputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        throw std::runtime_error(program.toStdString() +
                                 " failed: " + process.readAllStandardError().toStdString());
    return QString::fromUtf8(process.readAllStandardOutput());
}

inline int PagesOf(const QString& file)
{
    const QRegularExpression pages("Pages:\\s+(\\d+)");
    return pages.match(OutputOf("pdfinfo", {file})).captured(1).toInt();
}

/// The text of a page in reading order, one line of text per line of the page, with blanks between words
/// collapsed.
inline std::string TextOf(const QString& file, int page = 1)
{
    const QString number = QString::number(page);
    return OutputOf("pdftotext", {"-f", number, "-l", number, "-layout", file, "-"})
        .replace(QRegularExpression("[ ]+"), " ")
        .replace(QRegularExpression("(^|\\n) "), "\\1")
        .remove('\f')
        .toStdString();
}

/// A word of a page and its box, in points from the upper left corner of the paper.
struct Word
{
    QString text;
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

inline std::vector<Word> WordsOf(const QString& file)
{
    static const QRegularExpression word(
        R"x(<word xMin="([^"]*)" yMin="([^"]*)" xMax="([^"]*)" yMax="([^"]*)">([^<]*)</word>)x");
    std::vector<Word> words;
    auto matches = word.globalMatch(OutputOf("pdftotext", {"-bbox", file, "-"}));
    while (matches.hasNext()) {
        const auto match = matches.next();
        words.push_back({.text = match.captured(5),
                         .left = match.captured(1).toDouble(),
                         .top = match.captured(2).toDouble(),
                         .right = match.captured(3).toDouble(),
                         .bottom = match.captured(4).toDouble()});
    }
    return words;
}
