#include "SampleBookings.h"

#include <QRandomGenerator>

namespace quorvane::bench {

namespace {

const QStringList slugs{QStringLiteral("intro"),   QStringLiteral("demo"),   QStringLiteral("check-in"),
                        QStringLiteral("review"),  QStringLiteral("office"), QStringLiteral("support"),
                        QStringLiteral("pairing"), QStringLiteral("gone")};

BookingStatus pickStatus(QRandomGenerator &random)
{
    const int roll = random.bounded(100);
    return roll < 70   ? BookingStatus::confirmed
           : roll < 82 ? BookingStatus::pending
           : roll < 94 ? BookingStatus::cancelled
           : roll < 98 ? BookingStatus::rejected
                       : BookingStatus::unknown;
}

} // namespace

QList<Booking> sampleBookings(int count, const Instant &now, quint32 seed)
{
    QRandomGenerator random(seed);
    QList<Booking> out;
    out.reserve(count);
    for (int i = 0; i < count; ++i) {
        Booking b;
        b.id = QStringLiteral("bk-%1-%2").arg(i).arg(random.generate(), 8, 16, QLatin1Char('0'));
        b.type = slugs.at(random.bounded(int(slugs.size())));
        // Quarter hours from 07:00 to 19:00 UTC, within a year either side of now.
        const qint64 day = random.bounded(-365, 365);
        const int quarter = 28 + random.bounded(48);
        b.start = now.addDays(day).addSecs(quarter * 900 - now.time().msecsSinceStartOfDay() / 1000);
        b.end = b.start.addSecs(60 * (15 + 15 * random.bounded(4)));
        b.name = QStringLiteral("Guest %1").arg(i);
        b.email = QStringLiteral("guest%1@example.com").arg(i);
        b.tz = QStringLiteral("Europe/Berlin");
        b.status = pickStatus(random);
        b.created = b.start.addDays(-random.bounded(1, 30));
        if (random.bounded(4) == 0)
            b.notes = QStringLiteral("Looking forward to it. Could we talk about the roadmap?");
        if (random.bounded(3) == 0)
            b.meet = QStringLiteral("https://meet.google.com/abc-defg-hij");
        if (random.bounded(20) == 0)
            b.noShow = true;
        if (random.bounded(5) == 0)
            b.answers = QList<Answer>{{QStringLiteral("Company?"), QStringLiteral("Example Ltd")}};
        out.append(b);
    }
    return out;
}

} // namespace quorvane::bench
