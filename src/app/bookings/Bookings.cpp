#include "bookings/Bookings.h"

#include "Formats.h"
#include "TextSearch.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace quorvane::Bookings {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(Bookings)
};

bool shows(const Booking &b, Filter filter, const Instant &now)
{
    switch (filter) {
    case Filter::upcoming:
        return b.isActive() && b.end > now;
    case Filter::past:
        return b.status == BookingStatus::confirmed && b.end <= now;
    case Filter::cancelled:
        return b.status == BookingStatus::cancelled;
    case Filter::all:
        break;
    }
    return true;
}

// The query found in the booking's searchable text. A query without blanks can't match
// across the blanks that join the parts, so the parts are searched one by one without
// building the joined text.
bool matches(const Booking &b, const TextSearch &search, const QString &typeTitle)
{
    if (search.isEmpty())
        return true;
    const QString notes = b.notes.value_or(QString());
    if (search.hasBlank())
        return search.foundIn(b.name + u' ' + b.email + u' ' + notes + u' ' + typeTitle);
    return search.foundIn(b.name) || search.foundIn(b.email) || search.foundIn(notes) || search.foundIn(typeTitle);
}

} // namespace

QList<Filter> allFilters()
{
    return {Filter::upcoming, Filter::past, Filter::cancelled, Filter::all};
}

QString title(Filter filter)
{
    switch (filter) {
    case Filter::upcoming:
        return Text::tr("Upcoming");
    case Filter::past:
        return Text::tr("Past");
    case Filter::cancelled:
        return Text::tr("Cancelled");
    case Filter::all:
        break;
    }
    return Text::tr("All");
}

QList<Booking> filtered(const QList<Booking> &all, Filter filter, const std::optional<QString> &typeFilter,
                        const QString &query, const Instant &now, const QString &locale, const TypeTitle &typeTitle)
{
    const TextSearch search(query, locale);
    QHash<QString, QString> titles; // by slug: a few types among thousands of bookings
    QList<Booking> out;
    out.reserve(all.size());
    for (const Booking &b : all) {
        if (!shows(b, filter, now) || (typeFilter && b.type != *typeFilter))
            continue;
        if (!search.isEmpty()) {
            auto title = titles.find(b.type);
            if (title == titles.end())
                title = titles.insert(b.type, typeTitle(b.type));
            if (!matches(b, search, *title))
                continue;
        }
        out.append(b);
    }
    if (filter == Filter::upcoming)
        std::stable_sort(out.begin(), out.end(), [](const Booking &a, const Booking &b) { return a.start < b.start; });
    return out;
}

QList<Day> grouped(QList<Booking> filtered, Filter filter, const WeekCalendar &calendar)
{
    // Each booking's day, then the bookings in the order of their days; a stable sort keeps
    // the filtered order within a day.
    constexpr qint64 unixEpochJulianDay = 2440588;
    std::vector<std::pair<QDate, qsizetype>> keyed;
    keyed.reserve(size_t(filtered.size()));
    for (qsizetype i = 0; i < filtered.size(); ++i)
        keyed.emplace_back(QDate::fromJulianDay(unixEpochJulianDay + calendar.dayNumber(filtered.at(i).start)), i);
    const bool ascending = filter == Filter::upcoming;
    std::stable_sort(keyed.begin(), keyed.end(), [ascending](const auto &a, const auto &b) {
        return ascending ? a.first < b.first : a.first > b.first;
    });
    QList<Day> out;
    for (const auto &[day, i] : keyed) {
        if (out.isEmpty() || out.last().day != day)
            out.append(Day{day, {}});
        out.last().bookings.append(std::move(filtered[i]));
    }
    return out;
}

QString theirTime(const Booking &booking, const QString &locale, const QString &machineZone)
{
    const QString zone = Formats::isKnownZone(booking.tz) ? booking.tz : machineZone;
    return u"%1 (%2)"_s.arg(Formats::mediumDateShortTime(booking.start, locale, zone),
                            QString(zone).replace(u'_', u' '));
}

QString firstName(const QString &name)
{
    const QStringList words = name.split(u' ', Qt::SkipEmptyParts);
    return words.isEmpty() ? QString() : words.first();
}

QString emailLabel(const QString &name)
{
    return Text::tr("Email %1").arg(firstName(name));
}

Actions actions(const Booking &booking, const Instant &now)
{
    Actions out;
    out.join = booking.isActive() && booking.meetURL().has_value();
    out.reschedule = booking.isActive() && booking.end > now;
    out.noShow = booking.status == BookingStatus::confirmed && booking.end < now;
    return out;
}

bool joinsFromDetail(const Booking &booking, const Instant &now)
{
    const Actions a = actions(booking, now);
    return a.join && a.reschedule;
}

EmptyState emptyState(Filter filter, const QString &query)
{
    if (query.isEmpty())
        return {Text::tr("No %1 bookings").arg(title(filter).toLower()), u"calendar"_s,
                Text::tr("Bookings made through your links appear here.")};
    return {Text::tr("No results for \u201C%1\u201D").arg(query), u"magnifyingglass"_s,
            Text::tr("Try a name, email or event type.")};
}

} // namespace quorvane::Bookings
