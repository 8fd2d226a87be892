// The help quotes every message that stops or warns the user. The messages are read from the program's
// sources, so a new one fails here until the help explains it.

#include "tests/help/HelpPage.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

QString programSources()
{
    QString all;
    for (const QString floor : {"core", "platform", "chart", "reports", "screens", "shell"}) {
        QDirIterator files(DUNMOOR_SOURCES "/" + floor, {"*.cpp", "*.h"}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            all += QString::fromUtf8(file.readAll()) + '\n';
        }
    }
    return all;
}

/// The string literals in a piece of code, as the user reads them.
QStringList literals(const QString& code)
{
    static const QRegularExpression literal("\"((?:[^\"\\\\]|\\\\.)*)\"");
    QStringList texts;
    for (auto match = literal.globalMatch(code); match.hasNext();) {
        const QString text = match.next().captured(1).replace("\\n", "\n");
        for (const QString& line : text.split('\n')) {
            if (line.simplified().size() > 1)
                texts << line.simplified();
        }
    }
    return texts;
}

/// A message of the program, or a fixed part of one that is assembled at run time.
struct ProgramText
{
    QString words;
    bool isPiece;
};

/// The messages at every match of a pattern.
std::vector<ProgramText> textsAt(const QString& sources, const char* pattern)
{
    std::vector<ProgramText> texts;
    const QRegularExpression place(pattern, QRegularExpression::DotMatchesEverythingOption);
    for (auto match = place.globalMatch(sources); match.hasNext();) {
        const QString code = match.next().captured(1);
        for (const QString& words : literals(code))
            texts.push_back({words, code.contains('+')});
    }
    return texts;
}

/// The page's quotations from the program.
QStringList quotations()
{
    const HelpElement page = readHelpPage("messages.html");
    QStringList quoted;
    for (const HelpElement* quotation : page.all("samp"))
        quoted << quotation->words();
    return quoted;
}

bool isQuoted(const ProgramText& text, const QStringList& quoted)
{
    return text.isPiece ? !quoted.filter(text.words).isEmpty() : quoted.contains(text.words);
}

struct Kind
{
    const char* what;
    const char* pattern;
    std::size_t fewest; ///< the number of known messages
};

constexpr Kind kinds[] = {
    {"message boxes", R"(\bMsgBox\(([^;]*)\);)", 3},
    {"solvers' messages", R"(\bShowCoreMessage\(([^;]*)\);)", 2},
    {"refused pressures", R"(\.refusal = ("[^;]*?"),)", 2},
    {"refused leaving air", R"(\brefuse\(([^;]*)\);)", 2},
    {"red warnings", R"(return ("[^"]* clipped at [^"]*");)", 6},
    {"run-time errors", R"(case ErrorNumber::\w+:\s*return ([^;]*);)", 8},
    {"the unknown error", R"(\}\s*return ("Unknown error");)", 1},
    {"the fatal report", R"(return ("Run-time error '[^;]*);)", 1},
    {"lines that lead", R"(Frame6(?:\.setCaption\(|\{\*this, "Frame6",\s*)("[^"]+"))", 4},
};

} // namespace

TEST(HelpMessages, ExplainEveryTextOfTheProgram)
{
    const QStringList quoted = quotations();
    const QString sources = programSources();
    for (const Kind& kind : kinds) {
        const std::vector<ProgramText> texts = textsAt(sources, kind.pattern);
        EXPECT_GE(texts.size(), kind.fewest) << "the sources hold fewer " << kind.what << " than known";
        for (const ProgramText& text : texts)
            EXPECT_TRUE(isQuoted(text, quoted)) << kind.what << ": " << text.words.toStdString();
    }
}
