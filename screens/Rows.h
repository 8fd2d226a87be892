#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/Frame.h"
#include "platform/forms/Label.h"
#include "platform/forms/Layout.h"
#include "platform/forms/TextField.h"

#include <initializer_list>
#include <string>
#include <vector>

/// One row of a frame: a caption, the field that it describes, the unit beside it.
struct Row
{
    forms::Label& caption;
    forms::Control& field;
    forms::Label& unit;
};

/// A field with its unit alone.
struct Pair
{
    forms::TextField& field;
    forms::Label& unit;
};

/// Adds one row to a grid of captions, fields and units.
void addRow(forms::Grid& grid, int line, const Row& row);

/// Lays rows out in a frame, so that captions, fields and units of all frames line up.
void layOutInFrame(forms::Frame& frame, const std::vector<Row>& rows);

/// Lays fields out under one another, each with its unit.
void layOutPairs(forms::Frame& frame, const std::vector<Pair>& pairs);

/// Lays a form out as a frame that holds nothing, whose caption is a line of instruction, above a panel.
void layOutBelowBanner(const forms::Form& form, forms::Frame& banner, forms::Grid& panel);

/// The row of buttons at the foot of a dialog: some at its left edge, the others at its right.
forms::Line* buttonRow(std::initializer_list<forms::Button*> left,
                       std::initializer_list<forms::Button*> right);

/// Gives a field a light back colour, black text on it, and its value the right place.
void colourEntry(forms::TextField& field, forms::Colour colour);

/// Calls a field by what it is and its unit.
void nameWithUnit(forms::Control& field, const std::string& what, const std::string& unit);
