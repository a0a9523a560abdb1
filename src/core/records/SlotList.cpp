#include "SlotList.h"

using namespace Qt::StringLiterals;

namespace quorvane {

SlotList Codec<SlotList>::decode(const QJsonValue &value, const CodingPath &path)
{
    const ObjectReader r(value, path);
    return SlotList{r.required<QString>("type"_L1), r.required<QString>("mode"_L1), r.optional<QString>("link"_L1),
                    r.required<QList<Slot>>("slots"_L1)};
}

QJsonValue Codec<SlotList>::encode(const SlotList &s)
{
    return ObjectWriter()
        .set("type"_L1, s.type)
        .set("mode"_L1, s.mode)
        .set("link"_L1, s.link)
        .set("slots"_L1, s.slots)
        .object();
}

} // namespace quorvane
