#include "Account.h"

using namespace Qt::StringLiterals;

namespace quorvane {

Account::Google Codec<Account::Google>::decode(const QJsonValue &value, const CodingPath &path)
{
    const ObjectReader r(value, path);
    return Account::Google{r.required<bool>("connected"_L1), r.optional<QString>("email"_L1),
                           r.optional<QString>("lastError"_L1)};
}

QJsonValue Codec<Account::Google>::encode(const Account::Google &g)
{
    return ObjectWriter()
        .set("connected"_L1, g.connected)
        .set("email"_L1, g.email)
        .set("lastError"_L1, g.lastError)
        .object();
}

Account::Link Codec<Account::Link>::decode(const QJsonValue &value, const CodingPath &path)
{
    const ObjectReader r(value, path);
    return Account::Link{r.required<QString>("title"_L1), r.required<int>("minutes"_L1), r.required<QString>("url"_L1)};
}

QJsonValue Codec<Account::Link>::encode(const Account::Link &l)
{
    return ObjectWriter().set("title"_L1, l.title).set("minutes"_L1, l.minutes).set("url"_L1, l.url).object();
}

Account Codec<Account>::decode(const QJsonValue &value, const CodingPath &path)
{
    const ObjectReader r(value, path);
    Account a;
    a.id = r.required<qint64>("id"_L1);
    a.email = r.required<QString>("email"_L1);
    a.name = r.optional<QString>("name"_L1);
    a.handle = r.optional<QString>("handle"_L1);
    a.base = r.optional<QString>("base"_L1);
    a.google = r.optional<Account::Google>("google"_L1);
    a.links = r.optional<QList<Account::Link>>("links"_L1);
    return a;
}

QJsonValue Codec<Account>::encode(const Account &a)
{
    return ObjectWriter()
        .set("id"_L1, a.id)
        .set("email"_L1, a.email)
        .set("name"_L1, a.name)
        .set("handle"_L1, a.handle)
        .set("base"_L1, a.base)
        .set("google"_L1, a.google)
        .set("links"_L1, a.links)
        .object();
}

} // namespace quorvane
