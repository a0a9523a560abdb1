#include "CalendarItem.h"

using namespace Qt::StringLiterals;

namespace quorvane {

CalendarItem Codec<CalendarItem>::decode(const QJsonValue &value, const CodingPath &path)
{
    const ObjectReader r(value, path);
    return CalendarItem{r.required<QString>("id"_L1), r.optional<QString>("title"_L1), r.required<bool>("primary"_L1),
                        r.required<bool>("writable"_L1), r.optional<QString>("color"_L1)};
}

QJsonValue Codec<CalendarItem>::encode(const CalendarItem &c)
{
    return ObjectWriter()
        .set("id"_L1, c.id)
        .set("title"_L1, c.title)
        .set("primary"_L1, c.primary)
        .set("writable"_L1, c.writable)
        .set("color"_L1, c.color)
        .object();
}

} // namespace quorvane
