#include "Slot.h"

using namespace Qt::StringLiterals;

namespace quorvane {

Slot Codec<Slot>::decode(const QJsonValue &value, const CodingPath &path)
{
    const ObjectReader r(value, path);
    return Slot{r.required<Instant>("start"_L1), r.required<Instant>("end"_L1), r.required<int>("score"_L1)};
}

QJsonValue Codec<Slot>::encode(const Slot &s)
{
    return ObjectWriter().set("start"_L1, s.start).set("end"_L1, s.end).set("score"_L1, s.score).object();
}

} // namespace quorvane
