#include "WeekCalendar.h"

#include "ICUBridge.h"

#include <unicode/basictz.h>
#include <unicode/calendar.h>
#include <unicode/tzrule.h>
#include <unicode/tztrans.h>

#include <algorithm>
#include <vector>

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

// Offsets come from the zone rather than through icu::Calendar, which recomputes every field
// on each call; and between 1970 and 2100 from a table of the zone's transitions, since ICU
// evaluates its recurring daylight-saving rules afresh at each lookup. Statistics place
// thousands of instants at a time.
struct WeekCalendar::Zone {
    static constexpr qint64 tableStart = 0;               // 1970-01-01
    static constexpr qint64 tableEnd = 4'102'444'800'000; // 2100-01-01

    std::unique_ptr<icu::TimeZone> zone;
    const icu::BasicTimeZone *basic = nullptr;
    std::vector<qint64> transitions; // UTC, ascending
    std::vector<qint32> offsets;     // offsets[i] holds after i transitions; one more than transitions

    void makeTable();
    [[nodiscard]] qint64 offsetAt(qint64 utc) const;
};

void WeekCalendar::Zone::makeTable()
{
    if (!basic)
        return;
    UErrorCode status = U_ZERO_ERROR;
    int32_t raw = 0;
    int32_t dst = 0;
    zone->getOffset(UDate(tableStart), false, raw, dst, status);
    if (U_FAILURE(status))
        return;
    offsets.push_back(raw + dst);
    icu::TimeZoneTransition transition;
    UDate after = UDate(tableStart);
    while (basic->getNextTransition(after, false, transition) && transition.getTime() < UDate(tableEnd)) {
        after = transition.getTime();
        transitions.push_back(qint64(after));
        offsets.push_back(transition.getTo()->getRawOffset() + transition.getTo()->getDSTSavings());
    }
}

qint64 WeekCalendar::Zone::offsetAt(qint64 utc) const
{
    if (!offsets.empty() && utc >= tableStart && utc < tableEnd) {
        const auto passed = std::upper_bound(transitions.begin(), transitions.end(), utc) - transitions.begin();
        return offsets[std::size_t(passed)];
    }
    UErrorCode status = U_ZERO_ERROR;
    int32_t raw = 0;
    int32_t dst = 0;
    zone->getOffset(UDate(utc), false, raw, dst, status);
    return U_SUCCESS(status) ? raw + dst : 0;
}

WeekCalendar::WeekCalendar(const QString &locale, const QString &zone)
    : m_locale(locale)
    , m_zone(zone)
    , m_firstWeekday(localeFirstWeekday(locale))
{
    auto data = std::make_shared<Zone>();
    data->zone = ICUBridge::zone(zone);
    data->basic = dynamic_cast<const icu::BasicTimeZone *>(data->zone.get());
    data->makeTable();
    m_data = std::move(data);
}

qint64 WeekCalendar::localMSecs(const Instant &instant) const
{
    const qint64 utc = instant.toMSecsSinceEpoch();
    return utc + m_data->offsetAt(utc);
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
        m_data->basic->getOffsetFromLocal(UDate(local), UCAL_TZ_LOCAL_FORMER, UCAL_TZ_LOCAL_FORMER, raw, dst, status);
    else
        m_data->zone->getOffset(UDate(local), true, raw, dst, status);
    const qint64 utc = U_SUCCESS(status) ? local - raw - dst : local;
    return QDateTime::fromMSecsSinceEpoch(utc, Qt::UTC);
}

WeekCalendar::Position WeekCalendar::position(const Instant &instant) const
{
    const qint64 local = localMSecs(instant);
    Position p;
    p.day = floorDiv(local, msPerDay);
    p.weekday = weekdayOfDay(p.day);
    p.weekStartDay = p.day - (p.weekday - m_firstWeekday + 7) % 7;
    p.hour = int(floorMod(local, msPerDay) / msPerHour);
    return p;
}

std::optional<Instant> WeekCalendar::startOfWeek(const Instant &instant) const
{
    if (!instant.isValid())
        return std::nullopt;
    return fromLocalMSecs(position(instant).weekStartDay * msPerDay);
}

std::optional<Instant> WeekCalendar::addingWeeks(const Instant &instant, int weeks) const
{
    if (!instant.isValid())
        return std::nullopt;
    return fromLocalMSecs(localMSecs(instant) + qint64(weeks) * 7 * msPerDay);
}

int WeekCalendar::weekday(const Instant &instant) const
{
    return position(instant).weekday;
}

int WeekCalendar::hour(const Instant &instant) const
{
    return position(instant).hour;
}

qint64 WeekCalendar::dayNumber(const Instant &instant) const
{
    return position(instant).day;
}

} // namespace quorvane
