#pragma once

#include "Booking.h"
#include "Instant.h"

#include <QList>

namespace quorvane::bench {

// A host's bookings as the server would send them: two years around `now`, mixed statuses,
// a handful of event types, some with notes, answers and no-shows. The same seed gives the same list.
[[nodiscard]] QList<Booking> sampleBookings(int count, const Instant &now, quint32 seed = 2026);

} // namespace quorvane::bench
