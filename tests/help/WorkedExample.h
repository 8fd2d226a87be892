#pragma once

#include "tests/help/HelpPage.h"

/// One action of a step.
struct HelpAction
{
    enum Kind
    {
        Click,  ///< a button or a field
        Type,   ///< into the focused control
        Press,  ///< a key
        Choose, ///< an entry of a menu
        Pick,   ///< an entry of a list
        Close,  ///< the window
        Read,   ///< the open message
    };
    Kind kind;
    QString control; ///< object name
    QString text;    ///< its caption, or the text that is typed, pressed, picked or read
};

/// What a field shows afterwards.
struct HelpFigure
{
    QString control;
    QString caption;
    QString text;
    QString unitControl; ///< empty if the page gives no unit
    QString unit;
};

/// A numbered step: the actions, the steps in the dialog that they open, and the figures shown afterwards.
struct HelpStep
{
    qint64 line = 0;
    std::vector<HelpAction> actions;
    QString dialog;
    QString dialogTitle;
    std::vector<HelpStep> inDialog;
    std::vector<HelpFigure> figures;
    QString report; ///< the contents of the saved file
};

/// The markup of an example, which people and the tests read alike:
///
///     <ol class="example" id="name"> <li class="step"> ... </li> </ol>
///
/// A step is a sentence of "Click", "Type", "Press", "Choose", "Pick ... in the list", "Close the window" and
/// "The message ...", with <b class="CONTROL">caption</b>, <kbd>keys</kbd> and <samp>message</samp>. Remarks
/// are in <span class="note">. After "The dialog <i>title</i> opens", <ol class="dialog FORM"> lists the
/// steps in the dialog. <table class="figures">, with <td class="figure CONTROL"> and <td class="unit
/// CONTROL">, and <pre class="report"> may follow the sentence.
struct WorkedExample
{
    QString page;
    QString id;
    std::vector<HelpStep> steps;
};

/// @throws std::runtime_error with the position, for a step that can't be understood
WorkedExample readExample(const QString& page, const HelpElement& list);
