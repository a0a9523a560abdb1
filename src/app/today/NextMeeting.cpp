#include "today/NextMeeting.h"

#include "Countdown.h"
#include "Formats.h"

using namespace Qt::StringLiterals;

namespace quorvane::NextMeeting {

bool isNow(const Booking &booking, const Instant &date)
{
    return booking.start <= date;
}

QString caption(const Booking &booking, const Instant &date)
{
    if (isNow(booking, date))
        return u"HAPPENING NOW"_s;
    return u"NEXT · %1"_s.arg(Countdown::shortText(booking.start, date));
}

QString headline(const QString &typeTitle, const QString &name)
{
    return u"%1 with %2"_s.arg(typeTitle, name);
}

QString timeRange(const Booking &booking, const QString &locale, const QString &zone)
{
    return u"%1 – %2"_s.arg(Formats::format(booking.start, u"EEEEjmm"_s, locale, zone),
                            Formats::format(booking.end, u"jmm"_s, locale, zone));
}

QString joinAccessibleName(const QString &name)
{
    return u"Join Google Meet with %1"_s.arg(name);
}

} // namespace quorvane::NextMeeting
