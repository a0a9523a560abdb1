#pragma once

#include "Codec.h"

#include <QList>
#include <QString>

#include <optional>

namespace quorvane {

// Where a meeting of an event type takes place. The enumerator names match the wire names.
enum class MeetingLocation { meet, phone, in_person, custom };

namespace Location {
// In the order of the event type editor's picker.
QList<MeetingLocation> allCases();
QString rawValue(MeetingLocation location);
std::optional<MeetingLocation> fromRawValue(const QString &raw);
QString label(MeetingLocation location);
QString symbol(MeetingLocation location);
} // namespace Location

inline size_t qHash(MeetingLocation l, size_t seed = 0)
{
    return ::qHash(int(l), seed);
}

// Decoded by itself it fails on an unknown text; EventType turns that into `meet`.
QUORVANE_DECLARE_CODEC(MeetingLocation)

} // namespace quorvane
