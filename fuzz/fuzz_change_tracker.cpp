// The change poll's news, across a restart. The input is a tracker file and two change feeds,
// cut at NUL bytes; the first byte of the file part says whether the first feed primes.
// A booking is announced at most once per kind, however the feeds repeat and whatever the
// file held, and the tracker's file reads back as the same tracker.

#include "ChangeTracker.h"
#include "FuzzInput.h"
#include "ISO.h"
#include "JSON.h"

#include <QSet>

using namespace quorvane;

namespace {

// A feed as the server answers "what changed since": {"changes": [...], "serverTime": "..."}.
struct Feed {
    QList<Booking> changes;
    std::optional<Instant> serverTime;
};

std::optional<Feed> readFeed(const QByteArray &json)
{
    const Result<QJsonValue> value = JSON::parse(json);
    if (!value)
        return std::nullopt;
    try {
        const ObjectReader reader(*value, CodingPath{});
        Feed feed{reader.required<QList<Booking>>(QLatin1StringView("changes")), std::nullopt};
        if (const auto time = reader.optional<QString>(QLatin1StringView("serverTime")))
            feed.serverTime = ISO::parse(*time);
        return feed;
    } catch (const DecodeFailure &) {
        return std::nullopt;
    }
}

ChangeTracker reloaded(const ChangeTracker &tracker)
{
    const QByteArray file = tracker.toFileJson();
    const std::optional<ChangeTracker> again = ChangeTracker::fromFileJson(file);
    if (!again || !(*again == tracker))
        fuzz::fail("the tracker file does not read back", file);
    return *again;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QList<QByteArray> parts = fuzz::split(fuzz::bytes(data, size), 3);
    const bool prime = !parts[0].isEmpty() && (parts[0][0] & 1);
    const std::optional<Feed> first = readFeed(parts[1]);
    const std::optional<Feed> second = readFeed(parts[2]);

    ChangeTracker tracker = ChangeTracker::fromFileJson(parts[0].mid(1)).value_or(ChangeTracker(distantPast()));
    QSet<QPair<int, QString>> announced;
    const auto ingest = [&](const std::optional<Feed> &feed, bool priming) {
        if (!feed)
            return;
        for (const ChangeEvent &event : tracker.ingest(feed->changes, feed->serverTime, priming)) {
            const QPair<int, QString> key{int(event.kind), event.booking.id};
            if (announced.contains(key))
                fuzz::fail("a booking was announced twice", event.booking.id.toUtf8());
            announced.insert(key);
        }
        tracker = reloaded(tracker);
    };
    ingest(first, prime);
    ingest(second, false);
    ingest(first, false);
    ingest(second, false);
    return 0;
}
