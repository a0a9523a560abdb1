#include "today/NextMeeting.h"

#include "Countdown.h"
#include "Formats.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane::NextMeeting {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(NextMeeting)
};
} // namespace

bool isNow(const Booking &booking, const Instant &date)
{
    return booking.start <= date;
}

QString caption(const Booking &booking, const Instant &date)
{
    if (isNow(booking, date))
        return Text::tr("HAPPENING NOW");
    return Text::tr("NEXT · %1").arg(Countdown::shortText(booking.start, date));
}

QString headline(const QString &typeTitle, const QString &name)
{
    return Text::tr("%1 with %2").arg(typeTitle, name);
}

QString timeRange(const Booking &booking, const QString &locale, const QString &zone)
{
    return u"%1 – %2"_s.arg(Formats::format(booking.start, u"EEEEjmm"_s, locale, zone),
                            Formats::format(booking.end, u"jmm"_s, locale, zone));
}

QString joinAccessibleName(const QString &name)
{
    return Text::tr("Join Google Meet with %1").arg(name);
}

} // namespace quorvane::NextMeeting
