#pragma once

#include "platform/help/HelpPage.h"
#include "platform/help/HtmlHelp.h"
#include "tests/platform/AnyForm.h"
#include "tests/platform/Dialogs.h"
#include "tests/platform/help/DamagedHelp.h"
#include "tests/support/User.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QToolBar>

#include <stdexcept>

using namespace help;

/// A reader of the help that a form has opened. The help file is in the working directory.
class HelpTest : public testing::Test
{
protected:
    void SetUp() override
    {
        QGuiApplication::setQuitOnLastWindowClosed(false);
        delete findHelp(); // left by an earlier test if both run in one process
        ASSERT_TRUE(QFile::copy(DUNMOOR_SAMPLE_HELP, folder.filePath("sample.chm")));
        QDir::setCurrent(folder.path());
        form<AnyForm>().Show();
        comeToRest();
    }
    void TearDown() override
    {
        QDir::setCurrent("/");
        FormRegistry::clear();
    }

    static void comeToRest()
    {
        for (int round = 0; round < 3; ++round)
            QApplication::processEvents();
    }

    static void ask(int topic, const std::string& file = "sample.chm")
    {
        HtmlHelpA(form<AnyForm>(), file, HH_HELP_CONTEXT, topic);
        comeToRest();
    }

    /// Shows a page of a help file that contains only this page and the given members.
    static void showPage(const QByteArray& html, const QList<ChmMember>& others = {})
    {
        const QList<ChmMember> members = QList<ChmMember>{{"index.html", html}} + others;
        auto* const window = new HelpWindow(std::make_shared<const HelpBook>(members));
        window->goToTopic(100);
        window->showFor(*form<AnyForm>().window());
        comeToRest();
    }

    static QWidget* findHelp() { return User::findWindow("HelpWindow"); }
    static QWidget& help()
    {
        if (findHelp() == nullptr)
            throw std::runtime_error("no help window");
        return *findHelp();
    }
    template <class Widget>
    static Widget& part(const char* name)
    {
        return Child<Widget>(help(), name);
    }
    static HelpPage& page() { return static_cast<HelpPage&>(part<QTextBrowser>("helpPage")); }
    static std::string heading() { return page().toPlainText().section('\n', 0, 0).trimmed().toStdString(); }
    static std::string notice()
    {
        auto& label = part<QLabel>("helpNotice");
        return label.isVisible() ? label.text().toStdString() : "";
    }

    /// Presses a key in the focused control of the help window.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        help().activateWindow();
        comeToRest();
        QWidget* const focused = help().focusWidget();
        QTest::keyClick(focused != nullptr ? focused : &help(), key, modifiers);
        comeToRest();
    }
    static void typeWords(const QString& text)
    {
        QTest::keyClicks(help().focusWidget(), text);
        comeToRest();
    }

    static QWidget& button(const char* command)
    {
        auto* const bar = help().findChild<QToolBar*>();
        return *bar->widgetForAction(help().findChild<QAction*>(command));
    }
    static void click(QWidget& widget, QPoint at)
    {
        QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, at);
        comeToRest();
    }
    static void clickButton(const char* command) { click(button(command), button(command).rect().center()); }

    static void showPane(int which)
    {
        QTabBar* const bar = part<QTabWidget>("helpPanes").tabBar();
        click(*bar, bar->tabRect(which).center());
    }

    /// The visible lines of a list or tree, from top to bottom.
    static std::vector<std::string> lines(const char* view)
    {
        std::vector<std::string> shown;
        for (const QModelIndex& index : indexes(view))
            shown.push_back(index.data().toString().toStdString());
        return shown;
    }
    static void clickLine(const char* view, const QString& text)
    {
        auto& lines = part<QAbstractItemView>(view);
        for (const QModelIndex& index : indexes(view)) {
            if (index.data().toString() == text) {
                click(*lines.viewport(), lines.visualRect(index).center());
                return;
            }
        }
        throw std::runtime_error("no line " + text.toStdString());
    }
    static std::string currentLine(const char* view)
    {
        return part<QAbstractItemView>(view).currentIndex().data().toString().toStdString();
    }

    /// Clicks the link with these words on the current page.
    static void clickLink(const QString& words)
    {
        const QTextCursor found = page().document()->find(words);
        if (found.isNull() || found.charFormat().anchorHref().isEmpty())
            throw std::runtime_error("no link " + words.toStdString());
        QTextCursor within = found;
        within.setPosition(found.selectionStart() + 1);
        click(*page().viewport(), page().cursorRect(within).center());
    }

    QTemporaryDir folder;
    User user;

private:
    static void collect(const QAbstractItemView& view, const QModelIndex& parent, QList<QModelIndex>& found)
    {
        for (int row = 0; row < view.model()->rowCount(parent); ++row) {
            const QModelIndex index = view.model()->index(row, 0, parent);
            if (!view.visualRect(index).isEmpty())
                found.append(index);
            collect(view, index, found);
        }
    }
    static QList<QModelIndex> indexes(const char* view)
    {
        QList<QModelIndex> found;
        collect(part<QAbstractItemView>(view), {}, found);
        return found;
    }
};
