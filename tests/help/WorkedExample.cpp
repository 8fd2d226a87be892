#include "tests/help/WorkedExample.h"

#include <QRegularExpression>

namespace {

/// The words between two operands, without conjunctions.
QString joinless(const QString& text)
{
    static const QRegularExpression before("^([\\s.,;:]|(and|then)\\b)+");
    static const QRegularExpression after("[\\s.,;:]+$");
    return text.simplified().toLower().remove(before).remove(after);
}

/// The class of an element that names a control, not a style.
QString controlOf(const HelpElement& element)
{
    for (const QString& name : element.classes()) {
        if (name != "figure" && name != "unit" && name != "dialog")
            return name;
    }
    return {};
}

/// Reads the sentence of a step, one operand at a time.
class StepReader
{
public:
    StepReader(const QString& pageName, const HelpElement& item) : page(pageName)
    {
        step.line = item.line;
        for (const HelpElement& part : item.children)
            read(part);
        finish();
    }

    HelpStep step;

private:
    void read(const HelpElement& part)
    {
        if (part.name.isEmpty())
            words += part.text;
        else if (part.is("b"))
            readControl(part);
        else if (part.is("kbd"))
            readKeys(part);
        else if (part.is("samp"))
            readMessage(part);
        else if (part.is("i"))
            readTitle(part);
        else if (part.is("ol", "dialog"))
            readDialog(part);
        else if (part.is("table", "figures"))
            readFigures(part);
        else if (part.is("pre", "report"))
            step.report = part.allText();
        else if (!part.is("span", "note") && !part.is("br"))
            failAt(page, part.line, "a step can't hold <" + part.name + ">");
    }

    QString takeWords() { return joinless(std::exchange(words, {})); }

    void readControl(const HelpElement& part)
    {
        const QString before = takeWords();
        const QString name = controlOf(part);
        if (name.isEmpty())
            failAt(page, part.line, "no control is named");
        if (before == "click" || before == "click the field" || before == "click the button")
            step.actions.push_back({HelpAction::Click, name, part.words()});
        else if (before == "choose")
            step.actions.push_back({HelpAction::Choose, name, part.words()});
        else if (before == ">" && !step.actions.empty() && step.actions.back().kind == HelpAction::Choose)
            step.actions.back() = {HelpAction::Choose, name, part.words()};
        else if (before == "in the list" && !step.actions.empty() &&
                 step.actions.back().kind == HelpAction::Pick)
            step.actions.back().control = name;
        else
            failAt(page, part.line, "unknown step: " + before);
    }

    void readKeys(const HelpElement& part)
    {
        const QString before = takeWords();
        if (before == "type")
            step.actions.push_back({HelpAction::Type, {}, part.words()});
        else if (before == "press")
            step.actions.push_back({HelpAction::Press, {}, part.words()});
        else if (before == "pick")
            step.actions.push_back({HelpAction::Pick, {}, part.words()});
        else
            failAt(page, part.line, "unknown step: " + before);
    }

    void readMessage(const HelpElement& part)
    {
        const QString before = takeWords();
        if (before != "the message")
            failAt(page, part.line, "unknown step: " + before);
        step.actions.push_back({HelpAction::Read, {}, part.words()});
        messageIsUp = true;
    }

    void readTitle(const HelpElement& part)
    {
        const QString before = takeWords();
        if (before != "the dialog")
            failAt(page, part.line, "unknown step: " + before);
        step.dialogTitle = part.words();
    }

    void readDialog(const HelpElement& list)
    {
        step.dialog = controlOf(list);
        for (const HelpElement& item : list.children) {
            if (item.is("li", "step"))
                step.inDialog.push_back(StepReader(page, item).step);
        }
    }

    void readFigures(const HelpElement& table)
    {
        for (const HelpElement* row : table.all("tr")) {
            QString caption;
            for (const HelpElement* cell : row->all("td")) {
                if (cell->is("td", "figure"))
                    step.figures.push_back({controlOf(*cell), caption, cell->words(), {}, {}});
                else if (cell->is("td", "unit") && !step.figures.empty()) {
                    step.figures.back().unitControl = controlOf(*cell);
                    step.figures.back().unit = cell->words();
                } else if (caption.isEmpty())
                    caption = cell->words();
            }
        }
        if (step.figures.empty())
            failAt(page, table.line, "a table of figures without any");
    }

    void finish()
    {
        const QString rest = takeWords();
        if (rest == "close the window")
            step.actions.push_back({HelpAction::Close, {}, {}});
        else if (!(rest.isEmpty() || (rest == "opens" && !step.dialogTitle.isEmpty()) ||
                   (rest == "appears; click its ok" && messageIsUp)))
            failAt(page, step.line, "unknown step: " + rest);
        if (step.actions.empty() && step.figures.empty() && step.report.isEmpty())
            failAt(page, step.line, "a step that does nothing");
        if (step.dialogTitle.isEmpty() != step.inDialog.empty())
            failAt(page, step.line, "a dialog with a title and steps in it belong together");
    }

    QString page;
    QString words;
    bool messageIsUp = false;
};

} // namespace

WorkedExample readExample(const QString& page, const HelpElement& list)
{
    WorkedExample example{page, list.attributes.value("id"), {}};
    for (const HelpElement& item : list.children) {
        if (item.is("li", "step"))
            example.steps.push_back(StepReader(page, item).step);
        else if (!item.name.isEmpty())
            failAt(page, item.line, "an example holds steps alone");
    }
    if (example.steps.empty())
        failAt(page, list.line, "an example without steps");
    return example;
}
