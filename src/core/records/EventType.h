#pragma once

#include "Hashing.h"
#include "MeetingLocation.h"

namespace quorvane {

// A bookable meeting type. Decoded leniently: every field but `slug` falls back to its default.
struct EventType {
    QString id;
    QString slug;
    QString title = QStringLiteral("Meeting");
    int minutes = 30;
    int bufferBefore = 0;
    int bufferAfter = 0;
    QString colorHex = QStringLiteral("#0A84FF");
    bool isActive = true;
    QString description;
    MeetingLocation location = MeetingLocation::meet;
    QString locationDetail;
    QStringList questions;

    bool operator==(const EventType &) const = default;
};

// A random UUID in its canonical upper-case form, as new records get.
QString newRecordId();

inline size_t qHash(const EventType &e, size_t seed = 0)
{
    return hashFields(seed, e.id, e.slug, e.title, e.minutes, e.bufferBefore, e.bufferAfter, e.colorHex, e.isActive,
                      e.description, e.location, e.locationDetail, e.questions);
}

QUORVANE_DECLARE_CODEC(EventType)

} // namespace quorvane
