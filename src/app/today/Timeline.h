#pragma once

#include "Booking.h"
#include "Instant.h"

#include <QString>

// One row of the day's timeline, judged at the moment of the redraw.
namespace quorvane::Timeline {

// Ended: the row is dimmed and loses its join button, but stays in the day.
[[nodiscard]] bool isPast(const Booking &booking, const Instant &now);

// Running now: the row's marker turns green.
[[nodiscard]] bool isLive(const Booking &booking, const Instant &now);

// Whole minutes from start to end, the fraction dropped: 29 min 59 s reads 29.
[[nodiscard]] qint64 minutes(const Booking &booking);

// "Intro call · 30 min".
[[nodiscard]] QString detail(const QString &typeTitle, qint64 minutes);

[[nodiscard]] bool showsJoin(const Booking &booking, const Instant &now);

[[nodiscard]] QString joinAccessibleName(const QString &name);

} // namespace quorvane::Timeline
