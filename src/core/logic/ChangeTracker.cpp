#include "ChangeTracker.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace quorvane {

namespace {

const Instant &referenceDate()
{
    static const Instant date(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC);
    return date;
}

// Keeps the last ids in the set's own order: which ones survive doesn't matter, only
// that the set stays bounded.
void trim(QSet<QString> &ids)
{
    if (ids.size() <= ChangeTracker::trimAbove)
        return;
    QSet<QString> kept;
    kept.reserve(ChangeTracker::keepAfterTrim);
    qsizetype skip = ids.size() - ChangeTracker::keepAfterTrim;
    for (const QString &id : std::as_const(ids))
        if (skip-- <= 0)
            kept.insert(id);
    ids = std::move(kept);
}

bool insertNew(QSet<QString> &ids, const QString &id)
{
    const qsizetype before = ids.size();
    ids.insert(id);
    return ids.size() > before;
}

QJsonArray toArray(const QSet<QString> &ids)
{
    QJsonArray array;
    for (const QString &id : ids)
        array.append(id);
    return array;
}

std::optional<QSet<QString>> toSet(const QJsonValue &value)
{
    if (!value.isArray())
        return std::nullopt;
    QSet<QString> ids;
    for (const QJsonValue item : value.toArray()) {
        if (!item.isString())
            return std::nullopt;
        ids.insert(item.toString());
    }
    return ids;
}

} // namespace

QList<ChangeEvent> ChangeTracker::ingest(const QList<Booking> &bookings, std::optional<Instant> serverTime, bool prime)
{
    QList<Booking> sorted = bookings;
    const auto key = [](const Booking &b) { return b.updated.value_or(b.start); };
    std::stable_sort(sorted.begin(), sorted.end(), [&](const Booking &a, const Booking &b) { return key(a) < key(b); });

    QList<ChangeEvent> events;
    for (const Booking &booking : std::as_const(sorted)) {
        switch (booking.status) {
        case BookingStatus::pending:
        case BookingStatus::confirmed:
            if (insertNew(seenActive, booking.id) && !prime)
                events.append({ChangeEvent::Kind::booked, booking});
            break;
        case BookingStatus::cancelled:
            // Counted as seen too, so it can never be announced as booked afterwards.
            seenActive.insert(booking.id);
            if (insertNew(seenCancelled, booking.id) && !prime)
                events.append({ChangeEvent::Kind::cancelled, booking});
            break;
        case BookingStatus::rejected:
        case BookingStatus::unknown:
            break;
        }
    }
    if (serverTime)
        cursor = serverTime->addSecs(-overlapSeconds);
    trim(seenActive);
    trim(seenCancelled);
    return events;
}

QByteArray ChangeTracker::toFileJson() const
{
    QJsonObject object;
    object.insert(QLatin1StringView("seenActive"), toArray(seenActive));
    object.insert(QLatin1StringView("seenCancelled"), toArray(seenCancelled));
    object.insert(QLatin1StringView("cursor"), double(referenceDate().msecsTo(cursor)) / 1000.0);
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<ChangeTracker> ChangeTracker::fromFileJson(const QByteArray &bytes)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        return std::nullopt;
    const QJsonObject object = document.object();
    const QJsonValue seconds = object.value(QLatin1StringView("cursor"));
    std::optional<QSet<QString>> active = toSet(object.value(QLatin1StringView("seenActive")));
    std::optional<QSet<QString>> cancelled = toSet(object.value(QLatin1StringView("seenCancelled")));
    if (!seconds.isDouble() || !std::isfinite(seconds.toDouble()) || !active || !cancelled)
        return std::nullopt;
    // A cursor far outside the calendar can't come from us; treat it as a damaged file.
    const double msecs = std::round(seconds.toDouble() * 1000.0);
    if (std::abs(msecs) > 1e17)
        return std::nullopt;
    ChangeTracker tracker(referenceDate().addMSecs(qint64(msecs)));
    if (!tracker.cursor.isValid())
        return std::nullopt;
    tracker.seenActive = std::move(*active);
    tracker.seenCancelled = std::move(*cancelled);
    return tracker;
}

} // namespace quorvane
