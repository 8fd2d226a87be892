// The help call: what opens, and the messages when nothing can be opened.

#include "tests/platform/help/HelpTest.h"

#include <QMessageBox>

#include <sys/stat.h>

using namespace forms;
using namespace help;

namespace {

using Messages = std::vector<Message>;

class HtmlHelp : public HelpTest
{
protected:
    void write(const char* name, const QByteArray& bytes)
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    void expectUnreadable(const std::string& file)
    {
        user.messages.clear();
        ask(100, file);
        ASSERT_EQ(user.messages.size(), 1U) << file;
        EXPECT_EQ(user.messages[0].text,
                  "The help file " + file + " can't be read. It is damaged, or no help file.");
        EXPECT_EQ(findHelp(), nullptr);
    }
};

TEST_F(HtmlHelp, OpensThePageOfEachTopic)
{
    const std::pair<int, std::string> topics[] = {
        {100, "Welcome"}, {105, "Air properties"}, {110, "Mixed air"}, {4000, "Units"}};
    for (const auto& [topic, expected] : topics) {
        ask(topic);
        EXPECT_EQ(heading(), expected) << topic;
        EXPECT_EQ(notice(), "") << topic;
    }
    EXPECT_TRUE(help().isVisible());
    EXPECT_EQ(help().windowTitle(), "Sample Help");
    EXPECT_EQ(user.messages, Messages());
}

TEST_F(HtmlHelp, OpensTheFirstPageForATopicThatIsNotThere)
{
    ask(999);
    EXPECT_EQ(heading(), "Welcome");
    EXPECT_EQ(notice(), "This help has no topic 999. Here is its first page.");
    ask(105);
    EXPECT_EQ(notice(), "");
}

TEST_F(HtmlHelp, NamesAFileThatIsNotThereAndGoesOn)
{
    ask(100, "dunmoor.chm");
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages[0].text, "The help file dunmoor.chm was not found.\n\nIt was looked for in " +
                                         QDir::currentPath().toStdString() + ".");
    EXPECT_EQ(findHelp(), nullptr);
    EXPECT_TRUE(form<AnyForm>().isVisible());
}

TEST_F(HtmlHelp, LooksInTheWorkingDirectoryAsItStands)
{
    QDir::setCurrent("/");
    ask(100);
    EXPECT_EQ(user.messages.size(), 1U);
    QDir::setCurrent(folder.path());
    ask(100);
    EXPECT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(heading(), "Welcome");
    QDir::setCurrent("/");
    ask(105);
    EXPECT_EQ(user.messages.size(), 2U);
    EXPECT_EQ(heading(), "Welcome") << "what is open stays as it is";
}

TEST_F(HtmlHelp, SaysWhenAFileIsNoHelpFile)
{
    write("empty.chm", {});
    expectUnreadable("empty.chm");
    write("text.chm", "This is not the file you are looking for.");
    expectUnreadable("text.chm");
    write("signature.chm", "ITSF");
    expectUnreadable("signature.chm");
    write("cut.chm", BytesOf(DUNMOOR_SAMPLE_HELP).first(3000));
    expectUnreadable("cut.chm");
    write("large.chm", BytesOf(DUNMOOR_SAMPLE_HELP) + QByteArray(largestChmFile, '\0'));
    expectUnreadable("large.chm");
}

TEST_F(HtmlHelp, SaysWhenAFileIsAFolder)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir("folder.chm"));
    ask(100, "folder.chm");
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_NE(user.messages[0].text.find("folder.chm"), std::string::npos);
}

TEST_F(HtmlHelp, IsNotHeldUpByAPipe)
{
    ASSERT_EQ(mkfifo("pipe.chm", 0600), 0);
    ask(100, "pipe.chm");
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_NE(user.messages[0].text.find("The help file pipe.chm was not found."), std::string::npos);
}

TEST_F(HtmlHelp, KeepsTheOpenHelpWhenAnotherFileCannotBeRead)
{
    ask(105);
    write("text.chm", "no help");
    ask(100, "text.chm");
    EXPECT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(heading(), "Air properties");
}

TEST_F(HtmlHelp, DoesNothingForAnotherCommand)
{
    HtmlHelpA(form<AnyForm>(), "sample.chm", 1, 100);
    HtmlHelpA(form<AnyForm>(), "missing.chm", 1, 100);
    EXPECT_EQ(findHelp(), nullptr);
    EXPECT_EQ(user.messages, Messages());
}

TEST_F(HtmlHelp, UsesTheOpenWindowAgain)
{
    ask(100);
    const QPointer<QWidget> first = &help();
    ask(110);
    EXPECT_EQ(&help(), first);
    EXPECT_EQ(heading(), "Mixed air");
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(heading(), "Welcome") << "the way back is kept";
}

TEST_F(HtmlHelp, ReadsAFileAgainThatHasChanged)
{
    ask(100);
    ASSERT_TRUE(QFile::remove("sample.chm"));
    write("sample.chm", "no help any more");
    ask(105);
    EXPECT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(heading(), "Welcome");
}

TEST_F(HtmlHelp, NamesNoFolderIfTheWorkingFolderIsGone)
{
    QTemporaryDir gone;
    ASSERT_TRUE(QDir::setCurrent(gone.path()) && gone.remove());
    ask(100);
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages[0].text, "The help file sample.chm was not found.\n\nIt was looked for in the "
                                     "working folder, which no longer exists.");
}

TEST_F(HtmlHelp, ShowsAnotherFileFromItsBeginning)
{
    ask(105);
    ASSERT_TRUE(QFile::copy("sample.chm", "other.chm"));
    ask(105, "other.chm");
    EXPECT_EQ(heading(), "Air properties");
    EXPECT_FALSE(button("helpBack").isEnabled()) << "the way back ends where the other file began";
    ask(110);
    EXPECT_EQ(heading(), "Mixed air");
    EXPECT_FALSE(button("helpBack").isEnabled()) << "nor does it lead into another file from another page";
}

TEST_F(HtmlHelp, OpensAfreshAfterItWasClosed)
{
    ask(105);
    press(Qt::Key_Plus, Qt::ControlModifier);
    press(Qt::Key_Escape);
    EXPECT_EQ(findHelp(), nullptr);
    ask(100);
    EXPECT_EQ(heading(), "Welcome");
    EXPECT_EQ(page().textSize(), 0);
    EXPECT_FALSE(button("helpBack").isEnabled());
}

TEST_F(HtmlHelp, IsUpWhenTheProgramEnds)
{
    ask(100);
    QTimer::singleShot(0, qApp, EndProcess);
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_TRUE(help().isVisible()) << "and this process is to end without a crash";
}

} // namespace
