#include "Answer.h"

using namespace Qt::StringLiterals;

namespace quorvane {

Answer Codec<Answer>::decode(const QJsonValue &value, const CodingPath &path)
{
    const ObjectReader r(value, path);
    return Answer{r.required<QString>("q"_L1), r.required<QString>("a"_L1)};
}

QJsonValue Codec<Answer>::encode(const Answer &x)
{
    return ObjectWriter().set("q"_L1, x.q).set("a"_L1, x.a).object();
}

} // namespace quorvane
