#pragma once

#include "Booking.h"
#include "Instant.h"

#include <QString>

#include <optional>

// How long until a meeting, for the tray and the cards. The clock comes in as `now`.
namespace quorvane::Countdown {

// "now", "in 5m", "in 1h 30m", "in 2d"; minutes round up so one second reads "in 1m".
[[nodiscard]] QString shortText(const Instant &until, const Instant &now);

// "Ann in 25m", or "Now: Ann" while the meeting runs; no value without a meeting that
// starts within `horizonSeconds` and has not ended.
[[nodiscard]] std::optional<QString> menuTitle(const std::optional<Booking> &next, const Instant &now,
                                               qint64 horizonSeconds);

} // namespace quorvane::Countdown
