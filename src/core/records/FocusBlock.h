#pragma once

#include "TimeRange.h"

namespace quorvane {

// A protected block of time that is never offered to guests.
struct FocusBlock {
    QString id;
    int weekday = 1;
    TimeRange range;
    QString label;

    bool operator==(const FocusBlock &) const = default;
};

inline size_t qHash(const FocusBlock &f, size_t seed = 0)
{
    return hashFields(seed, f.id, f.weekday, f.range, f.label);
}

QUORVANE_DECLARE_CODEC(FocusBlock)

} // namespace quorvane
