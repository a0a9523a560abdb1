#include "share/QuickShare.h"

#include "ShareFormatter.h"

#include <QCoreApplication>
#include <QHash>
#include <QMap>
#include <QTimeZone>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quorvane::QuickShare {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(QuickShare)
};

QTimeZone timeZone(const QString &zone)
{
    const QTimeZone tz(zone.toUtf8());
    return tz.isValid() ? tz : QTimeZone::systemTimeZone();
}

QDate dayOf(const Slot &slot, const QTimeZone &tz)
{
    return slot.start.toTimeZone(tz).date();
}

bool byStart(const Slot &a, const Slot &b)
{
    return a.start < b.start;
}

} // namespace

QList<Day> byDay(const QList<Slot> &slots, const QString &zone)
{
    const QTimeZone tz = timeZone(zone);
    QMap<QDate, QList<Slot>> days;
    for (const Slot &slot : slots)
        days[dayOf(slot, tz)].append(slot);
    QList<Day> out;
    for (auto it = days.begin(); it != days.end() && out.size() < daysShown; ++it) {
        std::stable_sort(it->begin(), it->end(), byStart);
        out.append({it.key(), std::move(*it)});
    }
    return out;
}

QSet<Instant> bestIDs(const QList<Slot> &slots, const QString &zone)
{
    const QTimeZone tz = timeZone(zone);
    QHash<QDate, Slot> best;
    for (const Slot &slot : slots) {
        const QDate day = dayOf(slot, tz);
        const auto entry = best.constFind(day);
        if (slot.score > (entry == best.cend() ? -1 : entry->score))
            best.insert(day, slot);
    }
    QSet<Instant> out;
    for (const Slot &slot : std::as_const(best))
        out.insert(slot.start);
    return out;
}

Toggle toggle(QList<Slot> &picked, const Slot &slot)
{
    if (const qsizetype at = picked.indexOf(slot); at >= 0) {
        picked.removeAt(at);
        return Toggle::removed;
    }
    if (picked.size() >= maxPicks)
        return Toggle::refused;
    picked.append(slot);
    return Toggle::added;
}

QList<Slot> suggestBest(const QList<Slot> &slots, const QString &zone)
{
    const QTimeZone tz = timeZone(zone);
    QList<Slot> ranked = slots;
    std::stable_sort(ranked.begin(), ranked.end(), [](const Slot &a, const Slot &b) { return a.score > b.score; });
    QList<Slot> out;
    QList<QDate> days;
    for (const Slot &slot : std::as_const(ranked)) {
        if (out.size() >= maxPicks)
            break;
        const QDate day = dayOf(slot, tz);
        if (days.contains(day))
            continue;
        days.append(day);
        out.append(slot);
    }
    return out;
}

QString link(const std::optional<QString> &answered, const QString &typeLink)
{
    return answered ? *answered : typeLink;
}

QString text(const QList<Slot> &picked, const std::optional<EventType> &type, const QString &link, const QString &zone,
             const QString &locale, const Instant &now)
{
    return ShareFormatter::text(picked, type ? type->title : Text::tr("meeting"), type ? type->minutes : 30, link, zone,
                                locale, now);
}

QString typeChoice(const EventType &type)
{
    return Text::tr("%1 · %2m").arg(type.title).arg(type.minutes);
}

QStringList zoneChoices(const QString &machineZone, const QStringList &guestZonesNewestFirst)
{
    QStringList out{machineZone};
    for (const QString &zone : guestZonesNewestFirst) {
        if (!zone.isEmpty() && !out.contains(zone) && QTimeZone(zone.toUtf8()).isValid())
            out.append(zone);
    }
    const qsizetype known = out.size();
    for (const QByteArray &id : QTimeZone::availableTimeZoneIds()) {
        const QString zone = QString::fromUtf8(id);
        if (!out.first(known).contains(zone))
            out.append(zone);
    }
    return out;
}

} // namespace quorvane::QuickShare
