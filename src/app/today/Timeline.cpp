#include "today/Timeline.h"

using namespace Qt::StringLiterals;

namespace quorvane::Timeline {

bool isPast(const Booking &booking, const Instant &now)
{
    return booking.end < now;
}

bool isLive(const Booking &booking, const Instant &now)
{
    return booking.start <= now && booking.end > now;
}

qint64 minutes(const Booking &booking)
{
    return booking.start.msecsTo(booking.end) / 60'000;
}

QString detail(const QString &typeTitle, qint64 minutes)
{
    return u"%1 · %2 min"_s.arg(typeTitle).arg(minutes);
}

bool showsJoin(const Booking &booking, const Instant &now)
{
    return booking.meetURL().has_value() && !isPast(booking, now);
}

QString joinAccessibleName(const QString &name)
{
    return u"Join meeting with %1"_s.arg(name);
}

} // namespace quorvane::Timeline
