#include "Answer.h"

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
template <class Reader>
Answer read(const Reader &r)
{
    return Answer{r.template required<QString>("q"_L1), r.template required<QString>("a"_L1)};
}
} // namespace

Answer Codec<Answer>::decode(const QJsonValue &value, const CodingPath &path)
{
    return read(ObjectReader(value, path));
}

Answer Codec<Answer>::decode(const JSONScan::Value &value, const CodingPath &path)
{
    return read(ScanObjectReader(value, path));
}

QJsonValue Codec<Answer>::encode(const Answer &x)
{
    return ObjectWriter().set("q"_L1, x.q).set("a"_L1, x.a).object();
}

} // namespace quorvane
