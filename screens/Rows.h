#pragma once

#include "platform/forms/Button.h"
#include "platform/forms/Frame.h"
#include "platform/forms/Label.h"
#include "platform/forms/Layout.h"
#include "platform/forms/TextField.h"

#include <initializer_list>
#include <string>
#include <vector>

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

/// Adds one row to a grid of captions, fields and units.
void addRow(forms::Grid& grid, int line, const Row& row);

/// Lays out rows in a frame. Captions, fields and units of all frames line up.
void layOutInFrame(forms::Frame& frame, const std::vector<Row>& rows);

/// Lays out fields in a column, each with its unit.
void layOutPairs(forms::Frame& frame, const std::vector<Pair>& pairs);

/// Lays out a form as a panel below an empty frame, whose caption is an instruction.
void layOutBelowBanner(const forms::Form& form, forms::Frame& banner, forms::Grid& panel);

/// The row of buttons at the bottom of a dialog, some at the left edge and some at the right.
forms::Line* buttonRow(std::initializer_list<forms::Button*> left,
                       std::initializer_list<forms::Button*> right);

/// Gives a field a light background, black text and right alignment.
void colourEntry(forms::TextField& field, forms::Colour colour);

/// Sets a field's accessible name to its meaning and its unit.
void nameWithUnit(forms::Control& field, const std::string& what, const std::string& unit);
