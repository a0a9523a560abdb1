#pragma once

#include "Booking.h"

namespace quorvane {

// One piece of news found by the change poll.
struct ChangeEvent {
    enum class Kind { booked, cancelled };

    Kind kind = Kind::booked;
    Booking booking; // as it arrived from the server

    bool operator==(const ChangeEvent &) const = default;
};

} // namespace quorvane
