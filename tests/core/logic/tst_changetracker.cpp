// Which bookings are news: each booking and each cancellation announced once, in order, and the
// tracker's state kept in its file.
#include "ChangeTracker.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

const Instant noon(QDate(2026, 3, 10), QTime(12, 0), Qt::UTC);

Booking booking(const QString &id, BookingStatus status, int startMinutes = 0, std::optional<int> updatedMinutes = {})
{
    Booking b;
    b.id = id;
    b.status = status;
    b.start = noon.addSecs(startMinutes * 60);
    b.end = b.start.addSecs(1800);
    if (updatedMinutes)
        b.updated = noon.addSecs(*updatedMinutes * 60);
    return b;
}

// "booked:a cancelled:b", for readable comparisons.
QString describe(const QList<ChangeEvent> &events)
{
    QStringList out;
    for (const ChangeEvent &e : events)
        out.append((e.kind == ChangeEvent::Kind::booked ? u"booked:"_s : u"cancelled:"_s) + e.booking.id);
    return out.join(u' ');
}

// One poll written as "a=confirmed b=cancelled"; a leading "!" primes.
QString poll(ChangeTracker &tracker, QString answer)
{
    const bool prime = answer.startsWith(u'!');
    QList<Booking> bookings;
    for (const QString &item : answer.remove(u'!').split(u' ', Qt::SkipEmptyParts))
        bookings.append(booking(item.section(u'=', 0, 0), *Status::fromRawValue(item.section(u'=', 1))));
    return describe(tracker.ingest(bookings, std::nullopt, prime));
}

} // namespace

class TestChangeTracker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ingestAnnouncesOnce_data()
    {
        QTest::addColumn<QStringList>("polls");
        QTest::addColumn<QStringList>("events"); // one entry per poll
        QTest::newRow("primed, then news only") << QStringList{u"!a=confirmed b=pending"_s, u"a=confirmed b=pending"_s,
                                                               u"a=confirmed c=confirmed"_s, u"c=confirmed"_s}
                                                << QStringList{{}, {}, u"booked:c"_s, {}};
        QTest::newRow("created and cancelled between polls")
            << QStringList{u"x=cancelled"_s, u"x=confirmed"_s, u"x=cancelled"_s}
            << QStringList{u"cancelled:x"_s, {}, {}};
        QTest::newRow("booked, then cancelled")
            << QStringList{u"y=pending"_s, u"y=cancelled"_s} << QStringList{u"booked:y"_s, u"cancelled:y"_s};
        QTest::newRow("primed cancellation")
            << QStringList{u"!z=cancelled"_s, u"z=confirmed z=cancelled"_s} << QStringList{{}, {}};
        QTest::newRow("rejected and unknown leave no trace")
            << QStringList{u"r=rejected u=unknown"_s, u"r=confirmed u=cancelled"_s}
            << QStringList{{}, u"booked:r cancelled:u"_s};
    }
    void ingestAnnouncesOnce()
    {
        QFETCH(QStringList, polls);
        QFETCH(QStringList, events);
        ChangeTracker tracker(distantPast());
        for (qsizetype i = 0; i < polls.size(); ++i)
            QCOMPARE(poll(tracker, polls.at(i)), events.at(i));
    }

    void ingestOrdersByUpdatedElseStart()
    {
        ChangeTracker tracker(distantPast());
        QList<Booking> answer{booking(u"late"_s, BookingStatus::confirmed, 0, 90),
                              booking(u"noUpdate"_s, BookingStatus::confirmed, 60),
                              booking(u"early"_s, BookingStatus::confirmed, 500, 30)};
        QStringList expected{u"booked:early"_s, u"booked:noUpdate"_s, u"booked:late"_s};
        // Equal keys keep their order of arrival; enough of them that an unstable sort would shuffle.
        for (int i = 0; i < 64; ++i) {
            const bool odd = i % 2;
            answer.append(booking(QString::number(i), BookingStatus::pending, odd ? 120 : 999,
                                  odd ? std::nullopt : std::optional(120)));
            expected.append(u"booked:"_s + QString::number(i));
        }
        QCOMPARE(describe(tracker.ingest(answer, std::nullopt, false)), expected.join(u' '));
    }

    void ingestMovesCursorOnlyWithServerTime()
    {
        ChangeTracker tracker(distantPast());
        QVERIFY(tracker.ingest({}, noon.addSecs(5), false).isEmpty());
        QCOMPARE(tracker.cursor, noon);
        QCOMPARE(tracker.ingest({booking(u"a"_s, BookingStatus::confirmed)}, std::nullopt, false).size(), 1);
        QCOMPARE(tracker.cursor, noon);
    }

    void ingestTrimsEachSetIndependently()
    {
        ChangeTracker tracker(distantPast());
        for (int i = 0; i < 5001; ++i) {
            tracker.seenActive.insert(u"a"_s + QString::number(i % 4999));
            tracker.seenCancelled.insert(u"c"_s + QString::number(i));
        }
        // The bound applies after this call's ids are in: 5000 stays, 5001 is cut to 2000.
        QCOMPARE(poll(tracker, u"new=confirmed"_s), u"booked:new"_s);
        QCOMPARE(tracker.seenActive.size(), 5000);
        QCOMPARE(tracker.seenCancelled.size(), 2000);
        QCOMPARE(poll(tracker, u"newer=pending"_s), u"booked:newer"_s);
        QCOMPARE(tracker.seenActive.size(), 2000);
        QCOMPARE(tracker.seenCancelled.size(), 2000);
    }

    void fileRoundTrip()
    {
        for (const Instant &cursor : {distantPast(), noon.addMSecs(250), noon.addMSecs(-1)}) {
            ChangeTracker tracker(cursor);
            tracker.seenActive = {u"a"_s, u"b"_s};
            tracker.seenCancelled = {u"b"_s};
            const std::optional<ChangeTracker> back = ChangeTracker::fromFileJson(tracker.toFileJson());
            QVERIFY(back.has_value());
            QCOMPARE(*back, tracker);
        }
        // 2026-03-10T12:00:00.5Z is 794 836 800.5 s after 2001-01-01.
        const QByteArray json = ChangeTracker(noon.addMSecs(500)).toFileJson();
        QVERIFY2(json.contains("\"cursor\":794836800.5"), json.constData());
        const auto read =
            ChangeTracker::fromFileJson(R"({"seenActive":["x"],"seenCancelled":[],"cursor":0.25,"extra":1})");
        QVERIFY(read.has_value());
        QCOMPARE(read->cursor, Instant(QDate(2001, 1, 1), QTime(0, 0, 0, 250), Qt::UTC));
        QCOMPARE(read->seenActive, QSet<QString>{u"x"_s});
    }

    void fileRejectsAnythingElse()
    {
        for (const char *json : {"{seenActive", "[]", R"({"seenActive":[],"cursor":1})",
                                 R"({"seenActive":[],"seenCancelled":[],"cursor":"2026-03-10T12:00:00Z"})",
                                 R"({"seenActive":[1],"seenCancelled":[],"cursor":1})",
                                 R"({"seenActive":[],"seenCancelled":[],"cursor":1e300})"})
            QVERIFY2(!ChangeTracker::fromFileJson(json).has_value(), json);
    }
};

QTEST_APPLESS_MAIN(TestChangeTracker)
#include "tst_changetracker.moc"
