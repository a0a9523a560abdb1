#pragma once

#include "Instant.h"

#include <QString>

#include <memory>
#include <optional>

namespace quorvane {

// The week rules of one locale in one time zone: where a week starts, weeks added by the
// calendar (wall-clock time kept across daylight-saving changes), and the weekday and hour of
// an instant there. A cheap value; copies share the zone's immutable ICU data.
class WeekCalendar
{
public:
    WeekCalendar(const QString &locale, const QString &zone);

    [[nodiscard]] const QString &locale() const { return m_locale; }
    [[nodiscard]] const QString &zone() const { return m_zone; }

    // 1 Sunday … 7 Saturday, as the locale has it.
    [[nodiscard]] int firstWeekday() const { return m_firstWeekday; }

    // The first moment of the week that holds the instant: local midnight of its first day, or the
    // first moment after midnight where a daylight-saving jump skips midnight itself.
    [[nodiscard]] std::optional<Instant> startOfWeek(const Instant &instant) const;

    // The same wall-clock time `weeks` weeks later (earlier when negative).
    [[nodiscard]] std::optional<Instant> addingWeeks(const Instant &instant, int weeks) const;

    // 1 Sunday … 7 Saturday in this zone.
    [[nodiscard]] int weekday(const Instant &instant) const;
    // 0 … 23 in this zone.
    [[nodiscard]] int hour(const Instant &instant) const;
    // Local calendar days since 1970-01-01; the difference of two gives "days from today".
    [[nodiscard]] qint64 dayNumber(const Instant &instant) const;

    // Everything above at the price of one zone lookup, for code that places many instants.
    struct Position {
        qint64 day = 0;          // as dayNumber()
        qint64 weekStartDay = 0; // dayNumber() of the week's first day: equal for instants in one week
        int weekday = 1;
        int hour = 0;
    };
    [[nodiscard]] Position position(const Instant &instant) const;

private:
    struct Zone;

    [[nodiscard]] qint64 localMSecs(const Instant &instant) const;
    [[nodiscard]] Instant fromLocalMSecs(qint64 local) const;

    QString m_locale;
    QString m_zone;
    int m_firstWeekday = 1;
    std::shared_ptr<const Zone> m_data;
};

} // namespace quorvane
