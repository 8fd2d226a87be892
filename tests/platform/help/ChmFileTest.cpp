// The members of a compiled help file.

#include "platform/help/ChmFile.h"
#include "tests/support/Bytes.h"

#include <gtest/gtest.h>

#include <QStringList>

using namespace help;

namespace {

QString source(const QString& name) { return QString(DUNMOOR_TEST_DATA) + "/help/" + name; }

TEST(ChmFile, HoldsEveryFileAsItWas)
{
    QStringList files;
    for (const ChmMember& member : UnpackChm(BytesOf(DUNMOOR_SAMPLE_HELP))) {
        const bool isTable = member.name.startsWith('#') || member.name.startsWith('$') ||
                             member.name.startsWith("::") || member.name.startsWith('_');
        if (isTable || member.name.isEmpty() || member.name.endsWith('/'))
            continue;
        files << member.name;
        EXPECT_EQ(member.bytes, BytesOf(source(member.name))) << member.name.toStdString();
    }
    files.sort();
    EXPECT_EQ(files, (QStringList{"air.html", "images/chart.png", "index.html", "mixed air.html",
                                  "more/units.html", "sample.css", "sample.hhc", "sample.hhk"}));
}

TEST(ChmFile, UnpacksNothingElse)
{
    EXPECT_TRUE(UnpackChm({}).isEmpty());
    EXPECT_TRUE(UnpackChm("ITSF").isEmpty());
    EXPECT_TRUE(UnpackChm(BytesOf(source("images/chart.png"))).isEmpty());
    const QByteArray sample = BytesOf(DUNMOOR_SAMPLE_HELP);
    EXPECT_TRUE(UnpackChm(sample + QByteArray(largestChmFile, '\0')).isEmpty());
}

} // namespace
