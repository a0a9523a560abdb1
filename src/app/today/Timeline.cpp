#include "today/Timeline.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane::Timeline {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(Timeline)
};
} // namespace

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
    return Text::tr("%1 · %2 min").arg(typeTitle).arg(minutes);
}

bool showsJoin(const Booking &booking, const Instant &now)
{
    return booking.meetURL().has_value() && !isPast(booking, now);
}

QString joinAccessibleName(const QString &name)
{
    return Text::tr("Join meeting with %1").arg(name);
}

} // namespace quorvane::Timeline
