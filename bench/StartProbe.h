#pragma once

/// The environment variable with the time at which the driver started the process, in nanoseconds of the
/// monotonic clock.
constexpr auto startedAtVariable = "DUNMOOR_BENCH_STARTED_AT";

/// The delay from the first frame to the memory reading. By then the program is idle.
constexpr int restMilliseconds = 300;
