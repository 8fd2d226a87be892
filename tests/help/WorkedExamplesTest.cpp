// Follows the worked examples of the help on the real forms and compares every figure.

#include "platform/Desktop.h"
#include "reports/ReportFile.h"
#include "tests/help/WorkedExample.h"
#include "tests/support/ProgramTest.h"

#include <QApplication>
#include <QFile>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QWidget>

namespace {

struct ExamplePlace
{
    std::string page;
    std::string id;
};

std::ostream& operator<<(std::ostream& out, const ExamplePlace& place)
{
    return out << place.page << " " << place.id;
}

/// Every example of the pages. An unreadable page is included as one example, whose test fails.
std::vector<ExamplePlace> examplePlaces()
{
    std::vector<ExamplePlace> places;
    for (const QString& page : helpPages()) {
        try {
            const HelpElement html = readHelpPage(page);
            for (const HelpElement* list : html.all("ol", "example"))
                places.push_back({page.toStdString(), list->attributes.value("id").toStdString()});
        } catch (const std::exception&) {
            places.push_back({page.toStdString(), "unreadable"});
        }
    }
    return places;
}

std::string testName(const testing::TestParamInfo<ExamplePlace>& place)
{
    QString name = QString::fromStdString(place.param.id);
    return name.replace('-', '_').toStdString();
}

WorkedExample find(const ExamplePlace& place)
{
    const QString page = QString::fromStdString(place.page);
    const HelpElement html = readHelpPage(page);
    for (const HelpElement* list : html.all("ol", "example")) {
        if (list->attributes.value("id").toStdString() == place.id)
            return readExample(page, *list);
    }
    throw std::runtime_error("no such example");
}

std::string str(const QString& text) { return text.toStdString(); }

/// A caption without access key markers.
QString bare(QString caption) { return caption.remove('&').trimmed(); }

} // namespace

class WorkedExamples : public ProgramTest, public testing::WithParamInterface<ExamplePlace>
{
protected:
    void SetUp() override
    {
        reportsBase = folder.path().toStdString();
        ReportsBase = [] { return reportsBase; };
    }

    QString shown(const QString& control) const
    {
        return bare(QString::fromStdString(user.text(control.toStdString())));
    }

    /// A field's caption: the text of its label.
    QString captionOf(const QString& control) const
    {
        QWidget* const widget = user.widget(control.toStdString());
        for (const QLabel* label : widget->window()->findChildren<QLabel*>()) {
            if (label->buddy() == widget)
                return bare(label->text());
        }
        return {};
    }

    void expectCaption(const HelpAction& action) const
    {
        const bool isField = qobject_cast<QLineEdit*>(user.widget(action.control.toStdString())) != nullptr;
        EXPECT_EQ(str(action.text), str(isField ? captionOf(action.control) : shown(action.control)))
            << where();
    }

    void press(const QString& keys)
    {
        const QKeyCombination key = QKeySequence(keys)[0];
        ASSERT_NE(key.key(), Qt::Key_unknown) << where() << keys.toStdString();
        user.key(key.key(), key.keyboardModifiers());
    }

    void readMessage(const QString& text)
    {
        ASSERT_FALSE(user.messages.empty()) << where() << "no message is up";
        EXPECT_EQ(text.toStdString(), user.messages.front().text) << where();
        user.messages.erase(user.messages.begin());
    }

    void act(const HelpAction& action)
    {
        const std::string control = action.control.toStdString();
        switch (action.kind) {
        case HelpAction::Click:
            expectCaption(action);
            EXPECT_TRUE(user.isEnabled(control) && user.isVisible(control)) << where() << control;
            return user.click(control);
        case HelpAction::Type:
            lastTyped = action.text;
            return user.keys(action.text.toStdString());
        case HelpAction::Press:
            return press(action.text);
        case HelpAction::Choose:
            EXPECT_EQ(str(action.text), str(bare(user.menuEntry(control)->text()))) << where();
            return user.choose(control);
        case HelpAction::Pick:
            return user.chooseFromList(control, action.text.toStdString());
        case HelpAction::Close:
            return user.closeWindow();
        case HelpAction::Read:
            return readMessage(action.text);
        }
    }

    /// Runs inside the dialog's event loop, so it must not throw.
    void doInDialog(const HelpStep& step)
    {
        QApplication::processEvents(); // lets the dialog become the active window
        const std::string dialog = user.window();
        dialogsLeft.removeOne(step.dialog);
        EXPECT_EQ(str(step.dialogTitle), str(bare(QString::fromStdString(user.title())))) << where();
        try {
            follow(step.inDialog);
        } catch (const std::exception& failure) {
            ADD_FAILURE() << where() << failure.what();
        }
        QWidget* const window = User::findWindow(dialog);
        if (window != nullptr && window->isVisible()) {
            ADD_FAILURE() << where() << dialog << " is still open behind its steps";
            window->close();
        }
    }

    void follow(const std::vector<HelpStep>& steps)
    {
        for (const HelpStep& step : steps) {
            line = step.line;
            if (!step.dialog.isEmpty()) {
                dialogsLeft.append(step.dialog);
                user.inDialog(step.dialog.toStdString(), [this, step] { doInDialog(step); });
            }
            for (const HelpAction& action : step.actions)
                act(action);
            line = step.line;
            EXPECT_EQ(dialogsLeft.contains(step.dialog), false) << where() << "the dialog does not open";
            for (const HelpFigure& figure : step.figures)
                expectFigure(figure);
            if (!step.report.isEmpty())
                expectReport(step.report);
        }
    }

    void expectFigure(const HelpFigure& figure) const
    {
        const QString real = shown(figure.control);
        EXPECT_EQ(str(figure.text), real.isEmpty() ? "(empty)" : str(real.simplified()))
            << where() << str(figure.control);
        const QString caption = captionOf(figure.control);
        if (!caption.isEmpty()) {
            EXPECT_EQ(str(figure.caption), str(caption)) << where();
        }
        if (!figure.unitControl.isEmpty()) {
            EXPECT_EQ(str(figure.unit), str(shown(figure.unitControl).simplified())) << where();
        }
    }

    /// The page has "today" in place of the date, and no trailing blanks.
    void expectReport(const QString& told) const
    {
        QFile file(folder.filePath("data/" + lastTyped));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << where() << "nothing is saved";
        QStringList real = QString::fromLocal8Bit(file.readAll()).split('\n');
        for (QString& text : real)
            text.replace(QString::fromStdString(ShortDate()), "today").replace(QRegularExpression(" +$"), "");
        while (!real.isEmpty() && real.last().isEmpty())
            real.removeLast();
        EXPECT_EQ(str(told), str(real.join('\n'))) << where();
    }

    std::string where() const { return "help/" + GetParam().page + ":" + std::to_string(line) + ": "; }

    QTemporaryDir folder;
    static inline std::string reportsBase;
    QStringList dialogsLeft;
    QString lastTyped;
    qint64 line = 0;
};

TEST_P(WorkedExamples, GiveWhatThePagesSay)
{
    const WorkedExample example = find(GetParam());
    start();
    follow(example.steps);
    for (const Message& message : user.messages)
        ADD_FAILURE() << "a message that the page does not tell: " << message.text;
}

INSTANTIATE_TEST_SUITE_P(Help, WorkedExamples, testing::ValuesIn(examplePlaces()), testName);
