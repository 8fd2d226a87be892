#pragma once

#include "reports/ReportFolders.h"
#include "tests/platform/Dialogs.h"
#include "tests/support/ProgramTest.h"

#include <QAction>
#include <QFile>
#include <QGuiApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QTemporaryDir>

#include <algorithm>

/// A user at one of the calculators with an air-state panel.
class CalculatorTest : public ProgramTest
{
protected:
    using Names = std::vector<std::string>;
    /// The five humidity items and their selector names.
    static inline const std::pair<std::string, std::string> humidityItems[] = {{"txtTwb", "Wetbulb"},
                                                                               {"txttd", "Dew Point"},
                                                                               {"txtRH", "Rel"},
                                                                               {"txtW", "W"},
                                                                               {"txtGrains", "Grains"}};

    /// What the air volume dialog last offered.
    std::string offeredVolume;

    using Captions = std::vector<std::pair<std::string, std::string>>;

    /// Enters a dry bulb and one item as most users do.
    void enter(const std::string& tdb, const std::string& field, const std::string& text)
    {
        user.type("txtTdb", tdb);
        user.click(field);
        user.type(field, text);
    }

    void calculate(const std::string& tdb, const std::string& field, const std::string& text)
    {
        enter(tdb, field, text);
        user.click("btnCALCULATE");
    }

    /// Presses a button that asks for an air volume and answers the dialog.
    void answerVolume(const std::string& button, const std::string& volume)
    {
        user.inDialog("cfmForm", [this, volume] {
            offeredVolume = user.text("txtCFMinput");
            user.type("txtCFMinput", volume);
            user.click("btnOK");
        });
        user.click(button);
    }

    void cancelVolume(const std::string& button)
    {
        user.inDialog("cfmForm", [this] { user.click("btnCancel"); });
        user.click(button);
    }

    /// Opens a calculator and leaves it by each of its ways back to the main menu.
    template <class Calculator>
    void expectToLeaveByEveryWay(const std::string& button)
    {
        const std::function<void()> ways[] = {[this] { user.choose("mnuExit"); },
                                              [this] { user.choose("mnuMain1"); },
                                              [this] { user.closeWindow(); }};
        for (const auto& leave : ways) {
            user.click(button);
            EXPECT_TRUE(isLoaded<Calculator>());
            EXPECT_FALSE(User::findWindow("MainForm")->isVisible());
            leave();
            EXPECT_EQ(user.window(), "MainForm");
            EXPECT_FALSE(isLoaded<Calculator>());
        }
    }

    /// Edits each humidity item after a calculation. The caller's functions check the buttons before and
    /// after.
    void expectEachEditToSelectItsItem(const std::function<void()>& before,
                                       const std::function<void()>& after)
    {
        for (const auto& [field, selector] : humidityItems) {
            calculate("70", "txtRH", "50");
            before();
            user.type(field, "0.005");
            after();
            EXPECT_EQ(HumiditySelector, selector);
        }
    }

    /// Clicks each humidity item after a calculation, which clears the others and the two results.
    void expectEachClickToEmptyTheOthers(const std::function<void()>& before,
                                         const std::function<void()>& after)
    {
        for (const auto& [item, selector] : humidityItems) {
            calculate("70", "txtRH", "50");
            before();
            const std::string kept = user.text(item);
            user.click(item);
            after();
            EXPECT_EQ(HumiditySelector, selector);
            EXPECT_EQ(user.text("txtTdb"), "70");
            for (const std::string other :
                 {"txtTwb", "txttd", "txtRH", "txtW", "txtGrains", "txth", "txtSpVol"})
                EXPECT_EQ(user.text(other), other == item ? kept : "") << item << " clicked: " << other;
        }
    }

    void expectCaptions(const Captions& captions)
    {
        for (const auto& [name, caption] : captions)
            EXPECT_EQ(user.text(name), caption) << name;
    }

    void expectEmpty(const Names& controls)
    {
        for (const std::string& control : controls)
            EXPECT_EQ(user.text(control), "") << control;
    }

    void expectInside(const std::string& frame, const Names& controls)
    {
        for (const std::string& control : controls)
            EXPECT_TRUE(user.widget(frame)->isAncestorOf(user.widget(control))) << control;
    }

    /// The entries of the menu bar or of one of its menus. A separator is "-", an entry "name=caption".
    Names menu(const std::string& ofMenu = {})
    {
        const auto* const bar = static_cast<QMainWindow*>(User::findWindow(user.window()))->menuBar();
        Names entries;
        for (const QAction* entry :
             ofMenu.empty() ? bar->actions() : user.menuEntry(ofMenu)->menu()->actions()) {
            const QString text = entry->objectName() + "=" + entry->text();
            entries.push_back(entry->isSeparator() ? "-" : text.toStdString());
        }
        return entries;
    }

    QColor back(const std::string& control)
    {
        const QWidget* const shown = user.widget(control);
        return shown->palette().color(shown->backgroundRole());
    }

    QColor fore(const std::string& control)
    {
        const QWidget* const shown = user.widget(control);
        return shown->palette().color(shown->foregroundRole());
    }

    void expectWarning(const std::string& label, const std::string& caption)
    {
        EXPECT_EQ(user.text(label), caption);
        EXPECT_EQ(back(label), QColor(255, 0, 0));
        EXPECT_EQ(fore(label), QColor(255, 255, 255));
    }

    void expectNoWarning(const std::string& label, const std::string& caption)
    {
        EXPECT_EQ(user.text(label), caption);
        EXPECT_EQ(back(label), QColor(192, 192, 192));
        EXPECT_EQ(fore(label), QColor(0, 0, 0));
    }

    /// The control with the focus once a new dialog is the active window.
    std::string focusAtOpening()
    {
        QApplication::processEvents();
        return user.focus();
    }

    /// The controls that Tab visits from a field until it returns there.
    Names tabStopsFrom(const std::string& field)
    {
        constexpr std::size_t tooMany = 30;
        user.widget(field)->setFocus(Qt::TabFocusReason);
        Names stops;
        do {
            stops.push_back(user.focus());
            user.key(Qt::Key_Tab);
        } while (user.focus() != field && stops.size() < tooMany);
        return stops;
    }

    void expectNothingCanBeTypedInto(const std::string& field)
    {
        const std::string before = user.text(field);
        user.click(field);
        EXPECT_EQ(user.focus(), field);
        user.keys("7");
        EXPECT_EQ(user.text(field), before);
    }

    /// Expects the active window to be centered, a quarter of the free height down.
    void expectAQuarterDownInTheMiddle()
    {
        const QWidget* const window = User::findWindow(user.window());
        const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
        EXPECT_EQ(window->x(), (screen.width() - window->width()) / 2);
        EXPECT_EQ(window->y(), (screen.height() - window->height()) / 4);
    }

    /// Saves the report through the active window's menu. Returns its text, or "(none)".
    std::string savedReport()
    {
        const QTemporaryDir folder;
        reportsFolder = folder.path().toStdString();
        ReportsBase = [] { return reportsFolder; };
        QFile file(folder.filePath("report"));
        user.inDialog("SaveDialog", [&file] {
            saveAs(file.fileName())(*qobject_cast<QDialog*>(QApplication::activeModalWidget()));
        });
        user.choose("mnuSave");
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(none)";
    }

    static inline std::string reportsFolder;
};
