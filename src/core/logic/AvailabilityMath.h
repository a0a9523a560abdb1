#pragma once

#include "DayAvailability.h"
#include "TimeRange.h"

#include <QList>
#include <QString>

// Minute arithmetic behind the week grid and the typed-hours parser.
// Minutes count from local midnight; a day is 1440 of them.
namespace quorvane::AvailabilityMath {

inline constexpr int gridStep = 15;
inline constexpr int dayMinutes = 1440;

// The edge of a range that is being dragged.
enum class Edge { start, end };

// Nearest multiple of `step` (halves away from zero), kept within the day.
[[nodiscard]] int snap(int minute, int step = gridStep);

// Drops empty and reversed ranges, sorts by start and merges overlapping or touching ones.
[[nodiscard]] QList<TimeRange> normalize(const QList<TimeRange> &ranges);

// Shifts by `delta`, snapping the start and keeping the length inside the day.
[[nodiscard]] TimeRange move(const TimeRange &range, int delta);

// Drags one edge to `minute` (snapped); it stops `minLength` short of the other edge.
[[nodiscard]] TimeRange resize(const TimeRange &range, Edge edge, int minute, int minLength);

// Replaces one weekday's ranges; a weekday left without hours has no entry at all.
[[nodiscard]] QList<DayAvailability> set(const QList<DayAvailability> &days, int weekday,
                                         const QList<TimeRange> &ranges);

[[nodiscard]] int totalMinutes(const QList<DayAvailability> &days);

// 12-hour clock text such as "9 AM" or "12:45 PM"; 1440 reads as midnight.
[[nodiscard]] QString label(int minute);

} // namespace quorvane::AvailabilityMath
