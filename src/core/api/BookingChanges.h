#pragma once

#include "Booking.h"

#include <QList>

#include <optional>

namespace quorvane {

// The server's answer to "what changed since": the bookings, and the server's clock if
// it gave a readable one.
struct BookingChanges {
    QList<Booking> changes;
    std::optional<Instant> serverTime;
};

} // namespace quorvane
