#pragma once

#include "Booking.h"
#include "components/Tint.h"

#include <optional>

namespace quorvane {

// The pill beside a booking. A coming confirmed booking has none: no pill is the normal case.
struct StatusLabel {
    QString text;
    Tint tint = Tint::secondary;

    // First match: no-show (above every status), pending, cancelled, declined, then "Done"
    // once the booking has ended.
    [[nodiscard]] static std::optional<StatusLabel> of(const Booking &booking, const Instant &now);

    bool operator==(const StatusLabel &) const = default;
};

} // namespace quorvane
