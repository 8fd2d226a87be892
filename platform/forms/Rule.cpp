#include "platform/forms/Rule.h"

#include "platform/forms/Form.h"

#include <QFrame>

namespace forms {

Rule::Rule(Form& owner, const std::string& name) : Control(owner, new QFrame(owner.area()), name)
{
    auto* const line = static_cast<QFrame*>(widget());
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Plain);
}

} // namespace forms
