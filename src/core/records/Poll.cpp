#include "Poll.h"

using namespace Qt::StringLiterals;

namespace quorvane {

Poll::Option Codec<Poll::Option>::decode(const QJsonValue &value, const CodingPath &path)
{
    const ObjectReader r(value, path);
    return Poll::Option{r.required<Instant>("start"_L1), r.required<int>("votes"_L1)};
}

QJsonValue Codec<Poll::Option>::encode(const Poll::Option &o)
{
    return ObjectWriter().set("start"_L1, o.start).set("votes"_L1, o.votes).object();
}

Poll Codec<Poll>::decode(const QJsonValue &value, const CodingPath &path)
{
    const ObjectReader r(value, path);
    Poll p;
    p.id = r.required<QString>("id"_L1);
    p.title = r.required<QString>("title"_L1);
    p.minutes = r.required<int>("minutes"_L1);
    p.booked = r.required<bool>("booked"_L1);
    p.voters = r.required<QList<QString>>("voters"_L1);
    p.options = r.required<QList<Poll::Option>>("options"_L1);
    return p;
}

QJsonValue Codec<Poll>::encode(const Poll &p)
{
    return ObjectWriter()
        .set("id"_L1, p.id)
        .set("title"_L1, p.title)
        .set("minutes"_L1, p.minutes)
        .set("booked"_L1, p.booked)
        .set<QList<QString>>("voters"_L1, p.voters)
        .set("options"_L1, p.options)
        .object();
}

} // namespace quorvane
