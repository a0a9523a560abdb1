#pragma once

#include "TimeRange.h"

#include <QList>

namespace quorvane {

// The bookable ranges of one weekday (1 Sunday … 7 Saturday).
struct DayAvailability {
    int weekday = 1;
    QList<TimeRange> ranges;

    [[nodiscard]] int id() const { return weekday; }
    bool operator==(const DayAvailability &) const = default;
};

inline size_t qHash(const DayAvailability &d, size_t seed = 0)
{
    return hashFields(seed, d.weekday, d.ranges);
}

QUORVANE_DECLARE_CODEC(DayAvailability)

} // namespace quorvane
