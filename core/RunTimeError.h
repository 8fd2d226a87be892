#pragma once

#include <exception>

/// The failures that the calculator knows, under the numbers it reports them by.
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

/// A failure that leaves a routine at once and travels up to the event handler.
class RunTimeError : public std::exception
{
public:
    explicit RunTimeError(ErrorNumber error) : error_(error) {}

    ErrorNumber error() const noexcept { return error_; }
    int number() const noexcept { return static_cast<int>(error_); }

    /// The text that stands beside the number in a report of the failure, e.g. "Division by zero".
    const char* what() const noexcept override;

private:
    ErrorNumber error_;
};

/// Throws. Kept out of line, so that the arithmetic that calls it stays small.
[[noreturn]] void Raise(ErrorNumber error);
