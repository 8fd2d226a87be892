#pragma once

#include "platform/forms/Control.h"

#include <string>
#include <vector>

namespace forms {

/// The texts of a table: a heading for each column, and rows of as many cells.
struct TableContents
{
    std::vector<std::string> headings;
    std::vector<std::vector<std::string>> rows;

    friend bool operator==(const TableContents&, const TableContents&) = default;
};

/// The rows as lines of cells with tabs between them, below the headings: the form that spreadsheets paste.
std::string TabSeparated(const TableContents& table);

/// A table for reading. The first column names the rows. Ctrl+C or the context menu copies the selected cells
/// with the headings of their columns.
class Table : public Control
{
public:
    Table(Form& owner, const std::string& name);

    /// Replaces the contents. The same contents keep the selection.
    void show(const TableContents& contents);

private:
    TableContents shown;
};

} // namespace forms
