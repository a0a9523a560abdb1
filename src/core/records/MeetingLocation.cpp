#include "MeetingLocation.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(MeetingLocation)
};
} // namespace

namespace Location {

QList<MeetingLocation> allCases()
{
    return {MeetingLocation::meet, MeetingLocation::phone, MeetingLocation::in_person, MeetingLocation::custom};
}

QString rawValue(MeetingLocation location)
{
    switch (location) {
    case MeetingLocation::meet:
        return u"meet"_s;
    case MeetingLocation::phone:
        return u"phone"_s;
    case MeetingLocation::in_person:
        return u"in_person"_s;
    case MeetingLocation::custom:
        return u"custom"_s;
    }
    return {};
}

std::optional<MeetingLocation> fromRawValue(const QString &raw)
{
    for (MeetingLocation location : allCases()) {
        if (rawValue(location) == raw)
            return location;
    }
    return std::nullopt;
}

QString label(MeetingLocation location)
{
    switch (location) {
    case MeetingLocation::meet:
        return Text::tr("Google Meet");
    case MeetingLocation::phone:
        return Text::tr("Phone call");
    case MeetingLocation::in_person:
        return Text::tr("In person");
    case MeetingLocation::custom:
        return Text::tr("Custom");
    }
    return {};
}

QString symbol(MeetingLocation location)
{
    switch (location) {
    case MeetingLocation::meet:
        return u"video.fill"_s;
    case MeetingLocation::phone:
        return u"phone.fill"_s;
    case MeetingLocation::in_person:
        return u"mappin.and.ellipse"_s;
    case MeetingLocation::custom:
        return u"text.bubble.fill"_s;
    }
    return {};
}

} // namespace Location

MeetingLocation Codec<MeetingLocation>::decode(const QJsonValue &value, const CodingPath &path)
{
    const QString raw = Codec<QString>::decode(value, path);
    const std::optional<MeetingLocation> location = Location::fromRawValue(raw);
    if (!location)
        codec::fail(path, u"Cannot initialize MeetingLocation from invalid String value %1"_s.arg(raw));
    return *location;
}

QJsonValue Codec<MeetingLocation>::encode(const MeetingLocation &location)
{
    return Location::rawValue(location);
}

} // namespace quorvane
