#pragma once

#include "Booking.h"
#include "Snapshot.h"

#include <QList>

#include <optional>

namespace quorvane {

// A snapshot's bookings in the orders the screens read them, worked out once per snapshot.
struct BookingOrder {
    QList<Booking> activeByStart; // the active upcoming bookings, by start
    QList<Booking> all;           // every booking once, newest first

    [[nodiscard]] static BookingOrder of(const Snapshot &snapshot);
};

// Saved data as a start reads it: the snapshot and its orders, both made off the main thread.
struct SavedData {
    Snapshot snapshot;
    BookingOrder order;

    [[nodiscard]] static std::optional<SavedData> of(std::optional<Snapshot> snapshot);
};

} // namespace quorvane
