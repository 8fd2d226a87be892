#include "shell/About.h"

#include "platform/Desktop.h"

#include <QCoreApplication>

using namespace forms;

namespace {

constexpr const char* supportAddress = "mailto:support@dunmoor.example";
constexpr const char* webAddress = "https://www.dunmoor.example/";
constexpr const char* linkFolder = "c:\\";

std::string applicationTitle() { return QCoreApplication::applicationName().toStdString(); }

} // namespace

About::About() : Form("About", FormKind::Dialog)
{
    layOut();
    setDefaultButton(cmdOK);
    closeOnEsc();
    onHelpKey([this] { OpenHelp(*this, HelpTopic::MainPage); });
}

void About::layOut()
{
    lblTitle.setFontSize(240, true);
    lblMoreDescription.hide();
    btnEMAIL.setToolTip("support@dunmoor.example");
    btnURL.setToolTip(webAddress);

    auto* const column = new Column(*this, {28, 24, 28, 20}, 8);
    for (const Control* line :
         std::initializer_list<const Control*>{&lblTitle, &lblVersion, &lblCopyright, &lblCompany,
                                               &lblDescription, &lblMoreDescription, &Line1})
        column->add(*line);
    column->addSpacing(8);
    column->addLayout(ButtonRow({&btnEMAIL, &btnURL}, {&cmdOK}));
}

void About::Form_Load()
{
    setCaption("About " + applicationTitle());
    lblTitle.setCaption(applicationTitle());
    lblVersion.setCaption("Version " + QCoreApplication::applicationVersion().toStdString());
    lblCopyright.setCaption("Copyright 2026, MIT licence");
    lblCompany.setCaption("The Dunmoor developers");
    fitToControls();
    placeInTheMiddle(2);
}

void About::btnEMAIL_Click()
{
    shellResult = ShellExecuteA(*this, "open", supportAddress, "", linkFolder, SW_SHOWNORMAL);
}

void About::btnURL_Click()
{
    shellResult = ShellExecuteA(*this, "open", webAddress, "", linkFolder, SW_SHOWNORMAL);
}
