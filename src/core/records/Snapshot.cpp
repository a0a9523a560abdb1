#include "Snapshot.h"

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
template <class Reader>
Snapshot read(const Reader &r)
{
    Snapshot s;
    s.account = r.template optional<Account>("account"_L1);
    s.settings = r.template optional<HostSettings>("settings"_L1);
    s.upcoming = r.template required<QList<Booking>>("upcoming"_L1);
    s.history = r.template required<QList<Booking>>("history"_L1);
    s.polls = r.template required<QList<Poll>>("polls"_L1);
    s.google = r.template optional<GoogleStatus>("google"_L1);
    s.savedAt = r.template required<Instant>("savedAt"_L1);
    return s;
}
} // namespace

Snapshot Codec<Snapshot>::decode(const QJsonValue &value, const CodingPath &path)
{
    return read(ObjectReader(value, path));
}

Snapshot Codec<Snapshot>::decode(const JSONScan::Value &value, const CodingPath &path)
{
    return read(ScanObjectReader(value, path));
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
