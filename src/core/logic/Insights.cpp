#include "Insights.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>

namespace quorvane {

namespace {

QList<const Booking *> distinctByID(const QList<Booking> &bookings)
{
    QSet<QString> seen;
    seen.reserve(bookings.size());
    QList<const Booking *> out;
    out.reserve(bookings.size());
    for (const Booking &booking : bookings) {
        if (!seen.contains(booking.id)) {
            seen.insert(booking.id);
            out.append(&booking);
        }
    }
    return out;
}

void count(Insights &result, const QList<const Booking *> &all, const Instant &now)
{
    result.total = int(all.size());
    for (const Booking *booking : all) {
        const Booking &b = *booking;
        result.cancelled += b.status == BookingStatus::cancelled;
        result.confirmed += b.status == BookingStatus::confirmed && b.end < now;
        result.noShows += b.noShow.value_or(false);
        result.upcoming += b.isActive() && b.end >= now;
    }
}

// Oldest first. The index is keyed by the local day each week starts on, which places a booking
// with one zone lookup instead of converting its week start back to an instant.
QHash<qint64, qsizetype> makeWeeks(Insights &result, const Instant &now, int weeks, const WeekCalendar &calendar)
{
    const Instant thisWeek = calendar.startOfWeek(now).value_or(now);
    for (int i = 0; i < weeks; ++i) {
        if (const std::optional<Instant> start = calendar.addingWeeks(thisWeek, -i))
            result.weeks.append({*start, 0});
    }
    std::sort(result.weeks.begin(), result.weeks.end(),
              [](const Insights::Week &a, const Insights::Week &b) { return a.start < b.start; });
    QHash<qint64, qsizetype> index;
    for (qsizetype i = 0; i < result.weeks.size(); ++i)
        index.insert(calendar.dayNumber(result.weeks[i].start), i);
    return index;
}

// Highest tally; the first index wins ties. No value when nothing was tallied.
template <std::size_t N>
std::optional<int> busiest(const std::array<int, N> &tally, int firstValue)
{
    const auto top = std::max_element(tally.begin(), tally.end());
    if (*top == 0)
        return std::nullopt;
    return firstValue + int(top - tally.begin());
}

QList<Insights::TypeCount> rankTypes(const QHash<QString, int> &tally)
{
    QList<Insights::TypeCount> out;
    out.reserve(tally.size());
    for (auto it = tally.cbegin(); it != tally.cend(); ++it)
        out.append({it.key(), it.value()});
    std::sort(out.begin(), out.end(), [](const Insights::TypeCount &a, const Insights::TypeCount &b) {
        return a.count != b.count ? a.count > b.count : a.slug < b.slug;
    });
    return out;
}

// Per weekday, hour and type, over the bookings that were not called off.
struct Tallies {
    std::array<std::array<int, 24>, 7> cells{};
    std::array<int, 7> days{};
    std::array<int, 24> hours{};
    QHash<QString, int> types;

    void add(int weekday, int hour, const QString &type)
    {
        ++cells[weekday - 1][hour];
        ++days[weekday - 1];
        ++hours[hour];
        ++types[type];
    }

    [[nodiscard]] QList<Insights::Cell> heatmap() const
    {
        QList<Insights::Cell> out;
        for (int wd = 1; wd <= 7; ++wd) {
            for (int h = 0; h < 24; ++h) {
                if (cells[wd - 1][h] > 0)
                    out.append({wd, h, cells[wd - 1][h]});
            }
        }
        return out;
    }
};

} // namespace

Insights Insights::compute(const QList<Booking> &bookings, const Instant &now, int weeks, const WeekCalendar &calendar)
{
    Insights result;
    const QList<const Booking *> all = distinctByID(bookings);
    count(result, all, now);
    const QHash<qint64, qsizetype> weekIndex = makeWeeks(result, now, weeks, calendar);

    Tallies tallies;
    for (const Booking *b : all) {
        if (b->status == BookingStatus::cancelled || b->status == BookingStatus::rejected)
            continue;
        const WeekCalendar::Position at = calendar.position(b->start);
        // A booking outside the window still counts everywhere but in the weekly bars.
        if (auto found = weekIndex.constFind(at.weekStartDay); found != weekIndex.cend())
            ++result.weeks[*found].count;
        tallies.add(at.weekday, at.hour, b->type);
    }

    result.heatmap = tallies.heatmap();
    result.byType = rankTypes(tallies.types);
    result.busiestDay = busiest(tallies.days, 1);
    result.busiestHour = busiest(tallies.hours, 0);
    return result;
}

} // namespace quorvane
