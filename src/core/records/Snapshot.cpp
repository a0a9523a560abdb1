#include "Snapshot.h"

using namespace Qt::StringLiterals;

namespace quorvane {

Snapshot Codec<Snapshot>::decode(const QJsonValue &value, const CodingPath &path)
{
    const ObjectReader r(value, path);
    Snapshot s;
    s.account = r.optional<Account>("account"_L1);
    s.settings = r.optional<HostSettings>("settings"_L1);
    s.upcoming = r.required<QList<Booking>>("upcoming"_L1);
    s.history = r.required<QList<Booking>>("history"_L1);
    s.polls = r.required<QList<Poll>>("polls"_L1);
    s.google = r.optional<GoogleStatus>("google"_L1);
    s.savedAt = r.required<Instant>("savedAt"_L1);
    return s;
}

QJsonValue Codec<Snapshot>::encode(const Snapshot &s)
{
    return ObjectWriter()
        .set("account"_L1, s.account)
        .set("settings"_L1, s.settings)
        .set("upcoming"_L1, s.upcoming)
        .set("history"_L1, s.history)
        .set("polls"_L1, s.polls)
        .set("google"_L1, s.google)
        .set("savedAt"_L1, s.savedAt)
        .object();
}

} // namespace quorvane
