#include "Saved.h"

#include "DataPaths.h"
#include "Formats.h"
#include "SnapshotCache.h"

#include <QLocale>
#include <QSet>
#include <QTimeZone>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quorvane::cli::Saved {

namespace {

bool byStart(const Booking &a, const Booking &b)
{
    return a.start < b.start;
}

QDate localDate(const Instant &instant)
{
    return instant.toTimeZone(QTimeZone(zone().toUtf8())).date();
}

} // namespace

std::optional<Snapshot> load()
{
    return SnapshotCache(DataPaths::cacheIn(DataPaths::defaultDirectory())).load();
}

std::optional<Booking> next(const Snapshot &snapshot, const Instant &now)
{
    std::optional<Booking> best;
    for (const Booking &b : snapshot.upcoming) {
        if (b.isActive() && b.end > now && (!best || b.start < best->start))
            best = b;
    }
    return best;
}

QList<Booking> onDays(const Snapshot &snapshot, const Instant &now, int days)
{
    const QDate first = localDate(now);
    const QDate last = first.addDays(days - 1);
    QSet<QString> seen;
    QList<Booking> out;
    for (const QList<Booking> *list : {&snapshot.upcoming, &snapshot.history}) {
        for (const Booking &b : *list) {
            const QDate day = localDate(b.start);
            if (b.isActive() && day >= first && day <= last && !seen.contains(b.id))
                out.append(b);
            seen.insert(b.id);
        }
    }
    std::stable_sort(out.begin(), out.end(), byStart);
    return out;
}

Counts counts(const Snapshot &snapshot, const Instant &now)
{
    const QDate today = localDate(now);
    Counts c;
    for (const Booking &b : snapshot.upcoming) {
        if (!b.isActive() || b.end <= now)
            continue;
        ++c.upcoming;
        if (localDate(b.start) == today)
            ++c.today;
    }
    return c;
}

QString title(const Snapshot &snapshot, const Booking &booking)
{
    if (snapshot.settings) {
        for (const EventType &type : snapshot.settings->eventTypes) {
            if (type.slug == booking.type)
                return type.title;
        }
    }
    return u"Meeting"_s;
}

QString joinLink(const Booking &booking)
{
    const std::optional<QUrl> url = booking.meetURL();
    return url && (url->scheme() == "https"_L1 || url->scheme() == "http"_L1) ? url->toString() : QString();
}

QString locale()
{
    return QLocale::system().name();
}

QString zone()
{
    return QString::fromUtf8(QTimeZone::systemTimeZoneId());
}

QString time(const Instant &instant)
{
    return Formats::format(instant, u"jmm"_s, locale(), zone());
}

QString day(const Instant &instant)
{
    return Formats::format(instant, u"EEEMMMd"_s, locale(), zone());
}

QString when(const Instant &start, const Instant &end, const Instant &now)
{
    const QString range = time(start) + u" \u2013 "_s + time(end);
    return localDate(start) == localDate(now) ? range : day(start) + u", "_s + range;
}

QString savedLine(const Instant &savedAt)
{
    if (!savedAt.isValid() || savedAt <= distantPast())
        return u"Saved data"_s;
    return u"Saved data from "_s + day(savedAt) + u", "_s + time(savedAt);
}

} // namespace quorvane::cli::Saved
