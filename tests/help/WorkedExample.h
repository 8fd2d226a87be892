#pragma once

#include "tests/help/HelpPage.h"

/// One thing that a step tells the reader to do.
struct HelpAction
{
    enum Kind
    {
        Click,  ///< a button or a field
        Type,   ///< where the focus is
        Press,  ///< a key
        Choose, ///< an entry of a menu
        Pick,   ///< an entry of a list
        Close,  ///< the window
        Read,   ///< a message that is up
    };
    Kind kind;
    QString control; ///< its name in the program
    QString text;    ///< its caption, or what is typed, pressed, picked or read
};

/// What a field shows then.
struct HelpFigure
{
    QString control;
    QString caption;
    QString text;
    QString unitControl; ///< empty where no unit is told
    QString unit;
};

/// A numbered step: what to do, what is done in the dialog that it opens, what then stands on the screen.
struct HelpStep
{
    qint64 line = 0;
    std::vector<HelpAction> actions;
    QString dialog;
    QString dialogTitle;
    std::vector<HelpStep> inDialog;
    std::vector<HelpFigure> figures;
    QString report; ///< what the saved file holds
};

/// How the pages write an example, so that people and the tests read the same:
///
///     <ol class="example" id="name"> <li class="step"> ... </li> </ol>
///
/// A step is a sentence of "Click", "Type", "Press", "Choose", "Pick ... in the list", "Close the window" and
/// "The message ...", with <b class="CONTROL">caption</b>, <kbd>keys</kbd> and <samp>message</samp>. A remark
/// stands in <span class="note">. "The dialog <i>title</i> opens" leads to <ol class="dialog FORM">, a list
/// of the steps in it. Behind the sentence may stand <table class="figures">, with <td class="figure
/// CONTROL"> and <td class="unit CONTROL">, and <pre class="report">.
struct WorkedExample
{
    QString page;
    QString id;
    std::vector<HelpStep> steps;
};

/// @throws std::runtime_error with the place, for a step that can't be understood
WorkedExample readExample(const QString& page, const HelpElement& list);
