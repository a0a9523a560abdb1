#pragma once

#include "Booking.h"
#include "Instant.h"
#include "Snapshot.h"

#include <QString>

#include <optional>

// The data Quorvane saved for offline use, as quorvanectl reads it, and the words and times
// it shows from it in this user's locale and zone.
namespace quorvane::cli::Saved {

[[nodiscard]] std::optional<Snapshot> load();

// The meeting under way or the next one to start: active, not ended, earliest start.
[[nodiscard]] std::optional<Booking> next(const Snapshot &snapshot, const Instant &now);
// Active bookings starting on the `days` calendar days from today, by start; each once, the
// upcoming list having the last word.
[[nodiscard]] QList<Booking> onDays(const Snapshot &snapshot, const Instant &now, int days);
// The active meetings not yet over, today's and all, as the app's sidebar counts them.
struct Counts {
    int today = 0;
    int upcoming = 0;
};
[[nodiscard]] Counts counts(const Snapshot &snapshot, const Instant &now);
// The booking's event type name, "Meeting" for a type that is gone.
[[nodiscard]] QString title(const Snapshot &snapshot, const Booking &booking);
// The join link when it is one a browser should open.
[[nodiscard]] QString joinLink(const Booking &booking);

[[nodiscard]] QString locale();
[[nodiscard]] QString zone();
// "2:00 – 2:30 PM" style, with the day in front unless it is today: "Wed, Nov 26, 9:00 AM".
[[nodiscard]] QString when(const Instant &start, const Instant &end, const Instant &now);
[[nodiscard]] QString time(const Instant &instant);
[[nodiscard]] QString day(const Instant &instant);
// "Saved data from Tue, Nov 25, 1:58 PM", or "Saved data" when the time isn't known.
[[nodiscard]] QString savedLine(const Instant &savedAt);

} // namespace quorvane::cli::Saved
