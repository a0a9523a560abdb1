// Prints the measured figures next to their budgets. Run it through scripts/bench (an optimised
// build); the exit code is 1 when a figure is over its budget. Names as arguments (parse,
// insights, decode, bookings, availability, palette, startup, share) run only those.

#include "AvailabilityBench.h"
#include "BenchReport.h"
#include "BookingsBench.h"
#include "Insights.h"
#include "JSON.h"
#include "NLAvailability.h"
#include "SampleBookings.h"
#include "ShareBench.h"
#include "Snapshot.h"
#include "Startup.h"

#include <QElapsedTimer>
#include <QJsonDocument>

#include <cstdio>

using namespace quorvane;
using namespace quorvane::bench;

namespace {

bool benchParse()
{
    const QStringList sentences{
        QStringLiteral("weekdays 9-5"),
        QStringLiteral("mon-thu 9am-12pm and 1pm-5:30pm, fri 9-1"),
        QStringLiteral("tuesdays and thursdays 10:00-16:00"),
        QStringLiteral("every day 8-20 except sunday"),
    };
    qsizetype next = 0;
    const double nanos = nanosPerCall(15, 2000, [&] {
        keep(NLAvailability::parse(sentences.at(next)));
        next = (next + 1) % sentences.size();
    });
    return report("NLAvailability::parse per call", nanos / 1e3, "us", 50);
}

bool benchInsights(const QList<Booking> &bookings, const Instant &now)
{
    const WeekCalendar calendar(QStringLiteral("en_US"), QStringLiteral("America/New_York"));
    const double nanos = nanosPerCall(15, 5, [&] { keep(Insights::compute(bookings, now, 12, calendar)); });
    return report("Insights::compute, 10,000 bookings", nanos / 1e6, "ms", 10);
}

bool benchDecode(const QList<Booking> &bookings, const Instant &now)
{
    Snapshot snapshot;
    snapshot.upcoming = bookings.mid(0, bookings.size() / 2);
    snapshot.history = bookings.mid(bookings.size() / 2);
    snapshot.savedAt = now;
    const QByteArray bytes = JSON::encode(snapshot);

    const double parseOnly = nanosPerCall(9, 3, [&] { keep(QJsonDocument::fromJson(bytes)); });
    const double decode = nanosPerCall(9, 3, [&] {
        const Result<Snapshot> result = JSON::decode<Snapshot>(bytes);
        if (!result)
            std::abort(); // the figure would mean nothing
        keep(result);
    });
    std::printf("%-44s %10.3f ms (%lld KiB)\n", "QJsonDocument::fromJson, 10,000 bookings", parseOnly / 1e6,
                static_cast<long long>(bytes.size() / 1024));
    std::printf("%-44s %10.3f ms\n", "JSON::decode<Snapshot>, same bytes", decode / 1e6);
    return report("decode / fromJson", decode / parseOnly, "x", 2);
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc == 3 && qstrcmp(argv[1], "--floor") == 0)
        return bench::runFloor(QString::fromLatin1(argv[2]), argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--home") == 0)
        return bench::prepareHome(QString::fromLocal8Bit(argv[2]));
    // `quorvane-bench bookings startup` runs only those; no names, all of them.
    QStringList chosen;
    for (int i = 1; i < argc; ++i)
        chosen << QString::fromLocal8Bit(argv[i]);
    const auto runs = [&chosen](const char *name) { return chosen.isEmpty() || chosen.contains(QLatin1String(name)); };

    const Instant now = QDateTime::currentDateTimeUtc();
    const QList<Booking> bookings = bench::sampleBookings(10'000, now);
    bool ok = true;
    if (runs("parse"))
        ok = benchParse() && ok;
    if (runs("insights"))
        ok = benchInsights(bookings, now) && ok;
    if (runs("decode"))
        ok = benchDecode(bookings, now) && ok;
    if (runs("bookings"))
        ok = bench::benchBookings(bookings) && ok;
    if (runs("availability"))
        ok = bench::benchAvailability() && ok;
    if (runs("palette"))
        ok = bench::benchPalette() && ok;
    if (runs("startup"))
        ok = bench::benchStartup(QString::fromLocal8Bit(argv[0]), QStringLiteral(QUORVANE_APP_PATH)) && ok;
    if (runs("share"))
        ok = bench::benchShareOpening(QString::fromLocal8Bit(argv[0]), QStringLiteral(QUORVANE_APP_PATH)) && ok;
    return ok ? 0 : 1;
}
