#include "FocusBlock.h"

using namespace Qt::StringLiterals;

namespace quorvane {

FocusBlock Codec<FocusBlock>::decode(const QJsonValue &value, const CodingPath &path)
{
    const ObjectReader r(value, path);
    return FocusBlock{r.required<QString>("id"_L1), r.required<int>("weekday"_L1), r.required<TimeRange>("range"_L1),
                      r.required<QString>("label"_L1)};
}

QJsonValue Codec<FocusBlock>::encode(const FocusBlock &f)
{
    return ObjectWriter()
        .set("id"_L1, f.id)
        .set("weekday"_L1, f.weekday)
        .set("range"_L1, f.range)
        .set("label"_L1, f.label)
        .object();
}

} // namespace quorvane
