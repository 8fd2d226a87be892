#pragma once

#include "tests/platform/forms/TestForms.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QTest>

using namespace forms;

/// A screen with every kind of menu.
class MenuScreen : public Form
{
public:
    MenuScreen() : Form("MenuScreen", FormKind::Screen)
    {
        auto* const column = new QVBoxLayout(area());
        column->addWidget(txtFirst.widget());
        column->addWidget(btnHelp.widget());
        mnuFile.add(mnuSave);
        mnuFile.add(mnuSep);
        mnuFile.add(mnuExit);
        mnuHelp.add(mnuContents);
        addToMenuBar(mnuFile);
        addToMenuBar(mnuMain1);
        addToMenuBar(mnuHelp);
        mnuContents.setShortcut("F1");
        mnuSave.setShortcut("Ctrl+S");
        mnuSave.onClick(Recorder("mnuSave"));
        mnuExit.onClick(Recorder("mnuExit"));
        mnuMain1.onClick(Recorder("mnuMain1"));
        mnuContents.onClick(Recorder("mnuContents"));
    }

    TextField txtFirst{*this, "txtFirst"};
    Button btnHelp{*this, "btnHelp", "A button"};
    Menu mnuFile{*this, "mnuFile", "&File"};
    MenuCommand mnuSave{*this, "mnuSave", "&Save Results ..."};
    MenuSeparator mnuSep{*this, "mnuSep"};
    MenuCommand mnuExit{*this, "mnuExit", "E&xit"};
    MenuCommand mnuMain1{*this, "mnuMain1", "&Main Menu"};
    Menu mnuHelp{*this, "mnuHelp1", "&Help"};
    MenuCommand mnuContents{*this, "mnuContents", "&Contents"};
};

class Menus : public FormsTest
{
protected:
    static MenuScreen& show()
    {
        form<MenuScreen>().Show();
        QApplication::processEvents();
        form<MenuScreen>().txtFirst.takeFocus();
        return form<MenuScreen>();
    }

    static QMenuBar* bar() { return static_cast<QMainWindow*>(form<MenuScreen>().window())->menuBar(); }

    /// Opens a menu by its access key and presses another key.
    void pressInMenu(Qt::Key accessKey, Qt::Key key)
    {
        user.key(accessKey, Qt::AltModifier);
        QWidget* const open = QApplication::activePopupWidget();
        ASSERT_NE(open, nullptr) << "no menu has opened";
        QTest::keyClick(open, key);
    }
};
