#pragma once

#include "platform/forms/Forms.h"
#include "platform/forms/Layout.h"
#include "screens/Help.h"
#include "screens/Shell.h"

#include <initializer_list>
#include <string>
#include <vector>

// What the forms are made of: controls, layouts, the ways to other forms and to the help, and the helpers
// below.

/// One row of a frame: a caption, its field and the unit beside it.
struct Row
{
    forms::Label& caption;
    forms::Control& field;
    forms::Label& unit;
};

/// A field and its unit, without a caption.
struct Pair
{
    forms::TextField& field;
    forms::Label& unit;
};

/// Sets the size and the position of a calculator's screen.
void PlaceScreen(forms::Form& screen);

/// Adds one row to a grid of captions, fields and units.
void AddRow(forms::Grid& grid, int line, const Row& row);

/// Lays out rows in a frame. Captions, fields and units of all frames line up.
void LayOutInFrame(forms::Frame& frame, const std::vector<Row>& rows);

/// Lays out fields in a column, each with its unit.
void LayOutPairs(forms::Frame& frame, const std::vector<Pair>& pairs);

/// The row of buttons at the bottom of a dialog, some at the left edge and some at the right.
forms::Line* ButtonRow(std::initializer_list<forms::Button*> left,
                       std::initializer_list<forms::Button*> right);

void EnableAll(const std::vector<forms::Button*>& buttons, bool enabled);

/// Gives labels a background and black text.
void ColourLabels(std::initializer_list<forms::Label*> labels, forms::Colour colour);

/// Gives fields a light background, black text and right alignment.
void ColourEntries(std::initializer_list<forms::TextField*> fields, forms::Colour colour);

/// Sets a field's accessible name to its meaning and its unit.
void NameWithUnit(forms::Control& field, const std::string& what, const std::string& unit);
