#include "WeekCalendar.h"

#include "ICUBridge.h"

#include <unicode/basictz.h>
#include <unicode/calendar.h>

namespace quorvane {

namespace {

constexpr qint64 msPerHour = 3'600'000;
constexpr qint64 msPerDay = 24 * msPerHour;

qint64 floorDiv(qint64 a, qint64 b)
{
    return a / b - ((a % b != 0) && ((a < 0) != (b < 0)) ? 1 : 0);
}

qint64 floorMod(qint64 a, qint64 b)
{
    return a - floorDiv(a, b) * b;
}

// 1970-01-01 was a Thursday (5).
int weekdayOfDay(qint64 day)
{
    return int(floorMod(day + 4, 7)) + 1;
}

int localeFirstWeekday(const QString &locale)
{
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> calendar(icu::Calendar::createInstance(ICUBridge::locale(locale), status));
    if (U_FAILURE(status))
        return UCAL_SUNDAY;
    const UCalendarDaysOfWeek first = calendar->getFirstDayOfWeek(status);
    return U_SUCCESS(status) ? int(first) : UCAL_SUNDAY;
}

} // namespace

// Offsets are looked up in the zone directly rather than through icu::Calendar: a calendar
// recomputes every field on each call, which is too slow for statistics over years of bookings.
struct WeekCalendar::Zone {
    std::unique_ptr<icu::TimeZone> zone;
    const icu::BasicTimeZone *basic = nullptr;
};

WeekCalendar::WeekCalendar(const QString &locale, const QString &zone)
    : m_locale(locale), m_zone(zone), m_firstWeekday(localeFirstWeekday(locale))
{
    auto data = std::make_shared<Zone>();
    data->zone = ICUBridge::zone(zone);
    data->basic = dynamic_cast<const icu::BasicTimeZone *>(data->zone.get());
    m_data = std::move(data);
}

qint64 WeekCalendar::localMSecs(const Instant &instant) const
{
    const qint64 utc = instant.toMSecsSinceEpoch();
    UErrorCode status = U_ZERO_ERROR;
    int32_t raw = 0;
    int32_t dst = 0;
    m_data->zone->getOffset(UDate(utc), false, raw, dst, status);
    return U_SUCCESS(status) ? utc + raw + dst : utc;
}

// A wall time that a spring-forward skips, or that a fall-back repeats, is read with the
// offset from before the change: midnight in a gap becomes the first moment of the day, and a
// repeated hour its first occurrence.
Instant WeekCalendar::fromLocalMSecs(qint64 local) const
{
    UErrorCode status = U_ZERO_ERROR;
    int32_t raw = 0;
    int32_t dst = 0;
    if (m_data->basic)
        m_data->basic->getOffsetFromLocal(UDate(local), UCAL_TZ_LOCAL_FORMER, UCAL_TZ_LOCAL_FORMER, raw, dst,
                                          status);
    else
        m_data->zone->getOffset(UDate(local), true, raw, dst, status);
    const qint64 utc = U_SUCCESS(status) ? local - raw - dst : local;
    return QDateTime::fromMSecsSinceEpoch(utc, Qt::UTC);
}

std::optional<Instant> WeekCalendar::startOfWeek(const Instant &instant) const
{
    if (!instant.isValid())
        return std::nullopt;
    const qint64 day = floorDiv(localMSecs(instant), msPerDay);
    const int back = (weekdayOfDay(day) - m_firstWeekday + 7) % 7;
    return fromLocalMSecs((day - back) * msPerDay);
}

std::optional<Instant> WeekCalendar::addingWeeks(const Instant &instant, int weeks) const
{
    if (!instant.isValid())
        return std::nullopt;
    return fromLocalMSecs(localMSecs(instant) + qint64(weeks) * 7 * msPerDay);
}

int WeekCalendar::weekday(const Instant &instant) const
{
    return weekdayOfDay(dayNumber(instant));
}

int WeekCalendar::hour(const Instant &instant) const
{
    return int(floorMod(localMSecs(instant), msPerDay) / msPerHour);
}

qint64 WeekCalendar::dayNumber(const Instant &instant) const
{
    return floorDiv(localMSecs(instant), msPerDay);
}

} // namespace quorvane
