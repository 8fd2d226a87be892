#pragma once

#include "platform/Registry.h"
#include "screens/FormParts.h"

/// The about box: the program, its makers and how to contact them.
class About : public forms::Form
{
public:
    About();

    /// Starts the system information viewer that the registry names, or shows a message if there is none.
    static void StartSysInfo(Registry& registry = MachineRegistry());

    /// Reads a registry value as text: a string unchanged, a 32-bit number in decimal.
    /// @param KeyVal  the text; empty if the value can't be read, unchanged for a value of another type
    /// @return        false if the value can't be read
    static bool GetKeyValue(std::uint32_t KeyRoot, const std::string& KeyName, const std::string& SubKeyRef,
                            std::string& KeyVal, Registry& registry = MachineRegistry());

protected:
    void Form_Load() override;
    void Form_Activate() override { cmdOK.takeFocus(); }

private:
    void layOut();

    void btnEMAIL_Click();
    void btnURL_Click();
    void cmdOK_Click() { Unload(); }

    int shellResult = 0; ///< of the last link; never read

    Label lblTitle{*this, "lblTitle"};
    Label lblVersion{*this, "lblVersion"};
    Label lblCopyright{*this, "lblCopyright"};
    Label lblCompany{*this, "lblCompany"};
    Label lblDescription{*this, "lblDescription"};
    Label lblMoreDescription{*this, "lblMoreDescription"};
    Rule Line1{*this, "Line1"};
    Button btnEMAIL{*this, "btnEMAIL", "&E-mail support", [this] { btnEMAIL_Click(); }};
    Button btnURL{*this, "btnURL", "&Web site", [this] { btnURL_Click(); }};
    Button cmdOK{*this, "cmdOK", "OK", [this] { cmdOK_Click(); }};
};
