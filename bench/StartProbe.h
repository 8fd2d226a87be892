#pragma once

/// The environment variable in which the driver hands over the moment it started the process, in nanoseconds
/// of the monotonic clock.
constexpr auto startedAtVariable = "DUNMOOR_BENCH_STARTED_AT";

/// How long after the first picture the memory is read: by then the program has come to rest.
constexpr int restMilliseconds = 300;
