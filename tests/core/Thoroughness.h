#pragma once

#include <cstdlib>
#include <iostream>

/// True if tests of whole ranges cover them without a gap. Builds that run many times slower or often use
/// samples and say so.
#if defined(__OPTIMIZE__) && !defined(DUNMOOR_SAMPLES) && !defined(__SANITIZE_ADDRESS__) &&                  \
    !defined(__SANITIZE_THREAD__)
constexpr bool IsThorough = true;
#else
constexpr bool IsThorough = false;
#endif

/// The step for a range: `thorough` in a thorough build, otherwise `sample`.
template <typename Number>
Number OneOf(const char* what, Number thorough, Number sample)
{
    const Number step = IsThorough ? thorough : sample;
    if (step != 1)
        std::cout << "one of " << step << ' ' << what << " taken\n";
    return step;
}

/// How many times as many random cases as usual to take. "./dev prove" sets it.
inline int ProofFactor()
{
    const char* const factor = std::getenv("DUNMOOR_PROOF_FACTOR");
    return factor == nullptr ? 1 : std::atoi(factor);
}

/// True if ranges that take minutes are covered without a gap. "./dev prove" sets it.
inline bool IsProof() { return ProofFactor() > 1; }
