#pragma once

#include "Booking.h"
#include "Instant.h"
#include "WeekCalendar.h"

#include <QList>
#include <QString>

#include <optional>

namespace quorvane {

// The statistics behind the Insights screen, computed from the bookings the client holds.
struct Insights {
    struct Week {
        Instant start; // the first moment of the week
        int count = 0;

        [[nodiscard]] const Instant &id() const { return start; }
        bool operator==(const Week &) const = default;
    };

    struct Cell {
        int weekday = 1; // 1 Sunday … 7 Saturday
        int hour = 0;
        int count = 0;

        [[nodiscard]] QString id() const { return QStringLiteral("%1-%2").arg(weekday).arg(hour); }
        bool operator==(const Cell &) const = default;
    };

    struct TypeCount {
        QString slug;
        int count = 0;

        bool operator==(const TypeCount &) const = default;
    };

    int total = 0;
    int confirmed = 0;
    int cancelled = 0;
    int noShows = 0;
    int upcoming = 0;
    QList<Week> weeks;             // oldest first; the current week last
    QList<Cell> heatmap;           // only cells with bookings, by weekday then hour
    QList<TypeCount> byType;       // most used first; ties by slug
    std::optional<int> busiestDay; // weekday; ties go to the lower number
    std::optional<int> busiestHour;

    [[nodiscard]] double cancelRate() const { return total == 0 ? 0.0 : double(cancelled) / total; }
    // Measured against meetings that took place, not against everything booked.
    [[nodiscard]] double noShowRate() const { return confirmed == 0 ? 0.0 : double(noShows) / confirmed; }

    // Only these fields decide whether the screen must redraw its charts.
    bool operator==(const Insights &other) const
    {
        return total == other.total && weeks == other.weeks && heatmap == other.heatmap && cancelled == other.cancelled
               && noShows == other.noShows;
    }

    // `bookings` may repeat an id (the first one counts). The window is the `weeks` weeks ending
    // with the one that holds `now`; the calendar decides week starts, weekdays and hours.
    [[nodiscard]] static Insights compute(const QList<Booking> &bookings, const Instant &now, int weeks,
                                          const WeekCalendar &calendar);
};

} // namespace quorvane
