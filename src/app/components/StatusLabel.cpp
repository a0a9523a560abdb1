#include "components/StatusLabel.h"

using namespace Qt::StringLiterals;

namespace quorvane {

std::optional<StatusLabel> StatusLabel::of(const Booking &booking, const Instant &now)
{
    if (booking.noShow.value_or(false))
        return StatusLabel{u"No-show"_s, Tint::red};
    switch (booking.status) {
    case BookingStatus::pending:
        return StatusLabel{u"Pending"_s, Tint::orange};
    case BookingStatus::cancelled:
        return StatusLabel{u"Cancelled"_s, Tint::secondary};
    case BookingStatus::rejected:
        return StatusLabel{u"Declined"_s, Tint::red};
    case BookingStatus::confirmed:
    case BookingStatus::unknown:
        break;
    }
    if (booking.end < now)
        return StatusLabel{u"Done"_s, Tint::secondary};
    return std::nullopt;
}

} // namespace quorvane
