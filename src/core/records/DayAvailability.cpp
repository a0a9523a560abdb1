#include "DayAvailability.h"

using namespace Qt::StringLiterals;

namespace quorvane {

DayAvailability Codec<DayAvailability>::decode(const QJsonValue &value, const CodingPath &path)
{
    const ObjectReader r(value, path);
    return DayAvailability{r.required<int>("weekday"_L1), r.required<QList<TimeRange>>("ranges"_L1)};
}

QJsonValue Codec<DayAvailability>::encode(const DayAvailability &d)
{
    return ObjectWriter().set("weekday"_L1, d.weekday).set("ranges"_L1, d.ranges).object();
}

} // namespace quorvane
