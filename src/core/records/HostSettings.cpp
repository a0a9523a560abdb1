#include "HostSettings.h"

#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace quorvane {

HostSettings Codec<HostSettings>::decode(const QJsonValue &value, const CodingPath &path)
{
    const ObjectReader r(value, path);
    const HostSettings defaults;
    HostSettings s;
    s.owner = r.lenient("owner"_L1, defaults.owner);
    s.handle = r.lenient("handle"_L1, defaults.handle);
    s.timezone = r.lenient("timezone"_L1, QString::fromUtf8(QTimeZone::systemTimeZoneId()));
    s.eventTypes = r.lenient("eventTypes"_L1, defaults.eventTypes);
    s.availability = r.lenient("availability"_L1, defaults.availability);
    s.focusBlocks = r.lenient("focusBlocks"_L1, defaults.focusBlocks);
    s.maxMeetingsPerDay = r.lenient("maxMeetingsPerDay"_L1, defaults.maxMeetingsPerDay);
    s.minNoticeMinutes = r.lenient("minNoticeMinutes"_L1, defaults.minNoticeMinutes);
    s.horizonDays = r.lenient("horizonDays"_L1, defaults.horizonDays);
    s.alertMinutesBefore = r.lenient("alertMinutesBefore"_L1, defaults.alertMinutesBefore);
    s.busyCalendarIDs = r.lenient<QList<QString>>("busyCalendarIDs"_L1, defaults.busyCalendarIDs);
    s.bookingCalendarID = r.lenient("bookingCalendarID"_L1, defaults.bookingCalendarID);
    s.addMeet = r.lenient("addMeet"_L1, defaults.addMeet);
    return s;
}

QJsonValue Codec<HostSettings>::encode(const HostSettings &s)
{
    return ObjectWriter()
        .set("owner"_L1, s.owner)
        .set("handle"_L1, s.handle)
        .set("timezone"_L1, s.timezone)
        .set("eventTypes"_L1, s.eventTypes)
        .set("availability"_L1, s.availability)
        .set("focusBlocks"_L1, s.focusBlocks)
        .set("maxMeetingsPerDay"_L1, s.maxMeetingsPerDay)
        .set("minNoticeMinutes"_L1, s.minNoticeMinutes)
        .set("horizonDays"_L1, s.horizonDays)
        .set("alertMinutesBefore"_L1, s.alertMinutesBefore)
        .set<QList<QString>>("busyCalendarIDs"_L1, s.busyCalendarIDs)
        .set("bookingCalendarID"_L1, s.bookingCalendarID)
        .set("addMeet"_L1, s.addMeet)
        .object();
}

} // namespace quorvane
