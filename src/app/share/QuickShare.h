#pragma once

#include "EventType.h"
#include "Instant.h"
#include "Slot.h"

#include <QDate>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

// The Share Times window's derivations: the days of open times, each day's best time, the
// picks, the suggestion and the message. Days are calendar days in the zone the times are
// shown in, an IANA id passed in.
namespace quorvane::QuickShare {

constexpr int maxPicks = 3;
constexpr int daysShown = 7;
constexpr int chipsPerDay = 12;
constexpr int daysAsked = 14;

struct Day {
    QDate date;
    QList<Slot> slots; // all of the day's times, by start; the screen shows the first 12
};

// The first 7 days that have times, in order, each with its times by start.
[[nodiscard]] QList<Day> byDay(const QList<Slot> &slots, const QString &zone);

// The start of each day's best time: the first of the highest score in the server's order.
// A time with a negative score never is a day's best.
[[nodiscard]] QSet<Instant> bestIDs(const QList<Slot> &slots, const QString &zone);

enum class Toggle { added, removed, refused };
// Picks a time, or unpicks it when it is picked; a fourth pick is refused and changes nothing.
Toggle toggle(QList<Slot> &picked, const Slot &slot);

// Up to three times on different days, the highest scores first (the server's order among
// equals), from all of `slots`, shown or not.
[[nodiscard]] QList<Slot> suggestBest(const QList<Slot> &slots, const QString &zone);

// The link to share: the server's answer's own, else the type's link in the model, else none.
[[nodiscard]] QString link(const std::optional<QString> &answered, const QString &typeLink);

// The message for the picks, as they were picked; a type that is gone reads "meeting", 30.
[[nodiscard]] QString text(const QList<Slot> &picked, const std::optional<EventType> &type, const QString &link,
                           const QString &zone, const QString &locale, const Instant &now);

// The picker's entry for a type: "Intro Call · 30m".
[[nodiscard]] QString typeChoice(const EventType &type);

// The zones to show times in: the machine's zone first, the recent guests' zones (newest
// booking first, each once), then every other zone the system knows.
[[nodiscard]] QStringList zoneChoices(const QString &machineZone, const QStringList &guestZonesNewestFirst);

} // namespace quorvane::QuickShare
