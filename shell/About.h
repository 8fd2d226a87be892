#pragma once

#include "platform/Registry.h"
#include "platform/forms/Button.h"
#include "platform/forms/Form.h"
#include "platform/forms/Label.h"
#include "platform/forms/Rule.h"

#include <cstdint>
#include <string>

/// The about box: what the program is, who makes it, and how to reach them.
class About : public forms::Form
{
public:
    About();

    /// Starts the system's information viewer, where the registry names one, and says so where there is none.
    static void StartSysInfo(Registry& registry = MachineRegistry());

    /// Reads a value of the registry as text: a string as it stands, a 32-bit number in decimal.
    /// @param KeyVal  the text; empty where the value can't be read, untouched for a value of another type
    /// @return        false where the value can't be read
    static bool GetKeyValue(std::uint32_t KeyRoot, const std::string& KeyName, const std::string& SubKeyRef,
                            std::string& KeyVal, Registry& registry = MachineRegistry());

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    void layOut();

    void btnEMAIL_Click();
    void btnURL_Click();
    void cmdOK_Click();

    int shellResult = 0; ///< of the last link; nothing reads it

    Label lblTitle{*this, "lblTitle"};
    Label lblVersion{*this, "lblVersion"};
    Label lblCopyright{*this, "lblCopyright"};
    Label lblCompany{*this, "lblCompany"};
    Label lblDescription{*this, "lblDescription"};
    Label lblMoreDescription{*this, "lblMoreDescription"};
    Rule Line1{*this, "Line1"};
    Button btnEMAIL{*this, "btnEMAIL", "&E-mail support"};
    Button btnURL{*this, "btnURL", "&Web site"};
    Button cmdOK{*this, "cmdOK", "OK"};
};
