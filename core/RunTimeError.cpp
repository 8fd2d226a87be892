#include "core/RunTimeError.h"

const char* RunTimeError::what() const noexcept
{
    switch (kind) {
    case ErrorNumber::InvalidArgument:
        return "Invalid procedure call or argument";
    case ErrorNumber::Overflow:
        return "Overflow";
    case ErrorNumber::DivisionByZero:
        return "Division by zero";
    case ErrorNumber::TypeMismatch:
        return "Type mismatch";
    case ErrorNumber::FileNotFound:
        return "File not found";
    case ErrorNumber::FileAlreadyOpen:
        return "File already open";
    case ErrorNumber::PathFileAccess:
        return "Path/File access error";
    case ErrorNumber::PathNotFound:
        return "Path not found";
    }
    return "Unknown error";
}

void Raise(ErrorNumber error) { throw RunTimeError(error); }
