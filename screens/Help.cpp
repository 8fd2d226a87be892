#include "screens/Help.h"

#include "platform/help/HtmlHelp.h"

using namespace forms;

void OpenHelp(Form& form, HelpTopic topic)
{
    HtmlHelpA(form, "dunmoor.chm", HH_HELP_CONTEXT, static_cast<int>(topic));
}
