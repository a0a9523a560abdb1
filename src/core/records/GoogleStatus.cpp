#include "GoogleStatus.h"

using namespace Qt::StringLiterals;

namespace quorvane {

GoogleStatus Codec<GoogleStatus>::decode(const QJsonValue &value, const CodingPath &path)
{
    const ObjectReader r(value, path);
    GoogleStatus g;
    g.connected = r.required<bool>("connected"_L1);
    g.email = r.optional<QString>("email"_L1);
    g.connectedAt = r.optional<QString>("connectedAt"_L1);
    g.lastError = r.optional<QString>("lastError"_L1);
    g.error = r.optional<QString>("error"_L1);
    g.calendars = r.optional<QList<CalendarItem>>("calendars"_L1);
    return g;
}

QJsonValue Codec<GoogleStatus>::encode(const GoogleStatus &g)
{
    return ObjectWriter()
        .set("connected"_L1, g.connected)
        .set("email"_L1, g.email)
        .set("connectedAt"_L1, g.connectedAt)
        .set("lastError"_L1, g.lastError)
        .set("error"_L1, g.error)
        .set("calendars"_L1, g.calendars)
        .object();
}

} // namespace quorvane
