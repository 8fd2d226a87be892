#pragma once

#include <exception>

/// The calculator's errors, with the numbers that it reports.
enum class ErrorNumber : int
{
    InvalidArgument = 5,
    Overflow = 6,
    DivisionByZero = 11,
    TypeMismatch = 13,
    FileNotFound = 53,
    FileAlreadyOpen = 55,
    PathFileAccess = 75,
    PathNotFound = 76,
};

/// An error that propagates to the event handler.
class RunTimeError : public std::exception
{
public:
    explicit RunTimeError(ErrorNumber error) : kind(error) {}

    int number() const noexcept { return static_cast<int>(kind); }

    /// The text beside the number in an error report, e.g. "Division by zero".
    const char* what() const noexcept override;

private:
    ErrorNumber kind;
};

/// Throws. Not inline, so that the arithmetic that calls it stays small.
[[noreturn]] void Raise(ErrorNumber error);
