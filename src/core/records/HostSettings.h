#pragma once

#include "DayAvailability.h"
#include "EventType.h"
#include "FocusBlock.h"

namespace quorvane {

// The host's scheduling settings: the one document the client saves back whole.
// Decoded leniently; a list is all or nothing.
struct HostSettings {
    QString owner;
    QString handle;
    QString timezone; // an IANA name; decoding falls back to the machine's zone
    QList<EventType> eventTypes;
    QList<DayAvailability> availability;
    QList<FocusBlock> focusBlocks;
    int maxMeetingsPerDay = 5;
    int minNoticeMinutes = 60;
    int horizonDays = 14;
    int alertMinutesBefore = 10;
    QStringList busyCalendarIDs{QStringLiteral("primary")};
    QString bookingCalendarID = QStringLiteral("primary");
    bool addMeet = true;

    bool operator==(const HostSettings &) const = default;
};

QUORVANE_DECLARE_CODEC(HostSettings)

} // namespace quorvane
