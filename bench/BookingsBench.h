#pragma once

#include "Booking.h"

#include <QList>

namespace quorvane::bench {

// The bookings screen over a host's 10,000 bookings: the search with its days, and the list
// model after a refresh. Prints its figures; false when one is over its budget.
bool benchBookings(const QList<Booking> &bookings);

} // namespace quorvane::bench
