#pragma once

#include "Records.h"

namespace quorvane::test::FixtureSnapshot {

// The moment every fixture lives at: Tuesday 2026-03-10 13:40 UTC, 09:40 in New York.
[[nodiscard]] Instant now();
inline constexpr char zone[] = "America/New_York";
inline constexpr char locale[] = "en_US";

// A believable account as the server would send it, around now(): Ilse Varga ("ilse"), four
// event types (one inactive), weekday hours, a week of bookings with one in progress,
// three months of history, two polls, Google Calendar connected.
[[nodiscard]] Snapshot make();

// The same account with nothing booked and no polls.
[[nodiscard]] Snapshot empty();

} // namespace quorvane::test::FixtureSnapshot
