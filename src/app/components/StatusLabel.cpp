#include "components/StatusLabel.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(StatusLabel)
};
} // namespace

std::optional<StatusLabel> StatusLabel::of(const Booking &booking, const Instant &now)
{
    if (booking.noShow.value_or(false))
        return StatusLabel{Text::tr("No-show"), Tint::red};
    switch (booking.status) {
    case BookingStatus::pending:
        return StatusLabel{Text::tr("Pending"), Tint::orange};
    case BookingStatus::cancelled:
        return StatusLabel{Text::tr("Cancelled"), Tint::secondary};
    case BookingStatus::rejected:
        return StatusLabel{Text::tr("Declined"), Tint::red};
    case BookingStatus::confirmed:
    case BookingStatus::unknown:
        break;
    }
    if (booking.end < now)
        return StatusLabel{Text::tr("Done"), Tint::secondary};
    return std::nullopt;
}

} // namespace quorvane
