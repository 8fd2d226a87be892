#pragma once

#include <stdexcept>

/// An error that ends the run: a bad option, header or file. Its text is one line for the user.
class TableError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};
