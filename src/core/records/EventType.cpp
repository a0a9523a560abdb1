#include "EventType.h"

#include <QUuid>

using namespace Qt::StringLiterals;

namespace quorvane {

QString newRecordId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

EventType Codec<EventType>::decode(const QJsonValue &value, const CodingPath &path)
{
    const ObjectReader r(value, path);
    const EventType defaults;
    EventType e;
    // Without a readable id the type gets a fresh one, so it differs after every fetch.
    e.id = r.lenient<QString>("id"_L1, newRecordId());
    e.slug = r.required<QString>("slug"_L1);
    e.title = r.lenient("title"_L1, defaults.title);
    e.minutes = r.lenient("minutes"_L1, defaults.minutes);
    e.bufferBefore = r.lenient("bufferBefore"_L1, defaults.bufferBefore);
    e.bufferAfter = r.lenient("bufferAfter"_L1, defaults.bufferAfter);
    e.colorHex = r.lenient("colorHex"_L1, defaults.colorHex);
    e.isActive = r.lenient("isActive"_L1, defaults.isActive);
    e.description = r.lenient("description"_L1, defaults.description);
    e.location = r.lenient("location"_L1, defaults.location);
    e.locationDetail = r.lenient("locationDetail"_L1, defaults.locationDetail);
    e.questions = r.lenient<QList<QString>>("questions"_L1, defaults.questions);
    return e;
}

QJsonValue Codec<EventType>::encode(const EventType &e)
{
    return ObjectWriter()
        .set("id"_L1, e.id)
        .set("slug"_L1, e.slug)
        .set("title"_L1, e.title)
        .set("minutes"_L1, e.minutes)
        .set("bufferBefore"_L1, e.bufferBefore)
        .set("bufferAfter"_L1, e.bufferAfter)
        .set("colorHex"_L1, e.colorHex)
        .set("isActive"_L1, e.isActive)
        .set("description"_L1, e.description)
        .set("location"_L1, e.location)
        .set("locationDetail"_L1, e.locationDetail)
        .set<QList<QString>>("questions"_L1, e.questions)
        .object();
}

} // namespace quorvane
