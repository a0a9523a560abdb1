#include "TimeRange.h"

using namespace Qt::StringLiterals;

namespace quorvane {

TimeRange Codec<TimeRange>::decode(const QJsonValue &value, const CodingPath &path)
{
    const ObjectReader r(value, path);
    return TimeRange{r.required<int>("start"_L1), r.required<int>("end"_L1)};
}

QJsonValue Codec<TimeRange>::encode(const TimeRange &t)
{
    return ObjectWriter().set("start"_L1, t.start).set("end"_L1, t.end).object();
}

} // namespace quorvane
