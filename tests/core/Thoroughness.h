#pragma once

#include <iostream>

/// Whether the tests of whole ranges go through them without a gap. Builds that run many times slower take
/// samples, and say so.
#if defined(__OPTIMIZE__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
constexpr bool IsThorough = true;
#else
constexpr bool IsThorough = false;
#endif

/// The step to go through a range in: the first in a thorough build, else the second.
template <typename Number>
Number OneOf(const char* what, Number thorough, Number sample)
{
    const Number step = IsThorough ? thorough : sample;
    if (step != 1)
        std::cout << "one of " << step << ' ' << what << " taken\n";
    return step;
}
