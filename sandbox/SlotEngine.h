#pragma once

#include "Records.h"

#include <QTimeZone>

// Offered times for one event type: a 15-minute grid over the host's weekly availability,
// in the host's own zone, with everything that makes a time unbookable taken out, and a
// score that puts the host's best hours first.
namespace quorvane::sandbox::SlotEngine {

inline constexpr int gridMinutes = 15;
inline constexpr auto mode = "smart";

struct Query {
    HostSettings settings;
    EventType type;
    QList<Booking> bookings; // any status; only active ones block time
    Instant now;
    int days = 14;       // capped by settings.horizonDays
    QTimeZone guestZone; // optional; invalid means unknown
};

// Chronological.
[[nodiscard]] QList<Slot> slots(const Query &query);

// The `count` highest-scoring slots, at most one per local day of `zone`, in chronological
// order. Ties go to the earlier time.
[[nodiscard]] QList<Slot> bestOnDifferentDays(QList<Slot> candidates, int count, const QTimeZone &zone);

// The host's zone, or the machine's if the settings name none that exists.
[[nodiscard]] QTimeZone hostZone(const HostSettings &settings);

// 1 Sunday … 7 Saturday, as the records number weekdays.
[[nodiscard]] int weekday(const QDate &date);

} // namespace quorvane::sandbox::SlotEngine
