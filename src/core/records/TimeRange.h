#pragma once

#include "Codec.h"
#include "Hashing.h"

namespace quorvane {

// A stretch of one day in minutes from local midnight; `end` is one past the last minute.
struct TimeRange {
    int start = 0;
    int end = 0;

    // Not clamped: a reversed range has a negative duration.
    [[nodiscard]] int duration() const { return end - start; }
    bool operator==(const TimeRange &) const = default;
};

inline size_t qHash(const TimeRange &r, size_t seed = 0)
{
    return hashFields(seed, r.start, r.end);
}

QUORVANE_DECLARE_CODEC(TimeRange)

} // namespace quorvane
