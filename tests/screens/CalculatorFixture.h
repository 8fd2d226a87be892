#pragma once

#include "reports/ReportFile.h"
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
    /// The five humidity items with the name that selects each.
    static inline const std::pair<std::string, std::string> humidityItems[] = {{"txtTwb", "Wetbulb"},
                                                                               {"txttd", "Dew Point"},
                                                                               {"txtRH", "Rel"},
                                                                               {"txtW", "W"},
                                                                               {"txtGrains", "Grains"}};

    /// What the air volume dialog offered when it was answered last.
    std::string offeredVolume;

    using Captions = std::vector<std::pair<std::string, std::string>>;

    /// Gives a dry bulb and one item the way most users do.
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

    /// Presses a button that asks for an air volume, and answers.
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
        user.inDialog("cfmForm", [this] {
            offeredVolume = user.text("txtCFMinput");
            user.click("btnCancel");
        });
        user.click(button);
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

    /// The entries of the menu bar, or of one menu of it; a separator is "-", an entry "name=caption".
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

    /// The items of the state that every calculator saves.
    static void expectStateIn(const AirSnapshot& saved)
    {
        EXPECT_EQ(saved.RH, StatePoint.RH.asSingle());
        EXPECT_EQ(saved.W, StatePoint.W.asSingle());
        EXPECT_EQ(saved.SpVol, StatePoint.SpVol.asSingle());
        EXPECT_EQ(saved.h, StatePoint.h);
        EXPECT_EQ(saved.Twb, StatePoint.Twb.asSingle());
        EXPECT_EQ(saved.Tdb, StatePoint.Tdb);
        EXPECT_EQ(saved.P, StatePoint.P.asSingle());
    }

    /// The same and the items that the mixed air leaves out.
    static void expectFullStateIn(const AirSnapshot& saved)
    {
        expectStateIn(saved);
        EXPECT_EQ(saved.Grains, StatePoint.Grains.asSingle());
        EXPECT_EQ(saved.Mu, StatePoint.Mu.asSingle());
        EXPECT_EQ(saved.Pw, StatePoint.Pw.asSingle());
        EXPECT_EQ(saved.Pws, StatePoint.Pws.asSingle());
        EXPECT_EQ(saved.Ws, StatePoint.Ws.asSingle());
    }

    /// What has the focus once a dialog that has just come up is the active window.
    std::string focusAtOpening()
    {
        QApplication::processEvents();
        return user.focus();
    }

    /// Where the Tab key leads from a field on, until it is back there.
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

    /// The window that takes input stands in the middle, a quarter of the free height down.
    void expectAQuarterDownInTheMiddle()
    {
        const QWidget* const window = User::findWindow(user.window());
        const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
        EXPECT_EQ(window->x(), (screen.width() - window->width()) / 2);
        EXPECT_EQ(window->y(), (screen.height() - window->height()) / 4);
    }

    /// Saves the report by the menu of the window that takes input; its text, or "(none)".
    std::string savedReport()
    {
        const QTemporaryDir folder;
        reportsFolder = folder.path().toStdString();
        ReportsBase = [] { return reportsFolder; };
        QFile file(folder.filePath("report"));
        user.inDialog("SaveDialog", [&file] {
            SaveAs(file.fileName())(*qobject_cast<QDialog*>(QApplication::activeModalWidget()));
        });
        user.choose("mnuSave");
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "(none)";
    }

    /// Saves the report and looks for texts in it.
    void expectInReport(const Names& texts)
    {
        const std::string report = savedReport();
        for (const std::string& text : texts)
            EXPECT_NE(report.find(text), std::string::npos) << text << " is not in\n" << report;
    }

    static inline std::string reportsFolder;
};
