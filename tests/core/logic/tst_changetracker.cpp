#include "ChangeTracker.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;
using Kind = ChangeEvent::Kind;

namespace {

const Instant noon(QDate(2026, 3, 10), QTime(12, 0), Qt::UTC);

Booking booking(const QString &id, BookingStatus status, int startMinutes = 0,
                std::optional<int> updatedMinutes = std::nullopt)
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
        out.append((e.kind == Kind::booked ? QStringLiteral("booked:") : QStringLiteral("cancelled:")) + e.booking.id);
    return out.join(u' ');
}

QSet<QString> ids(const QString &prefix, int count)
{
    QSet<QString> out;
    for (int i = 0; i < count; ++i)
        out.insert(prefix + QString::number(i));
    return out;
}

} // namespace

class TestChangeTracker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ingestAnnouncesOnce()
    {
        ChangeTracker tracker(distantPast());
        const QList<Booking> answer{booking(u"a"_s, BookingStatus::confirmed), booking(u"b"_s, BookingStatus::pending)};
        QCOMPARE(describe(tracker.ingest(answer, std::nullopt, true)), QString());
        QCOMPARE(describe(tracker.ingest(answer, std::nullopt, false)), QString());
        const QList<Booking> later{booking(u"a"_s, BookingStatus::confirmed), booking(u"c"_s, BookingStatus::confirmed)};
        QCOMPARE(describe(tracker.ingest(later, std::nullopt, false)), u"booked:c"_s);
        QCOMPARE(describe(tracker.ingest(later, std::nullopt, false)), QString());
    }

    void ingestOrdersByUpdatedElseStart()
    {
        ChangeTracker tracker(distantPast());
        const QList<Booking> answer{
            booking(u"late"_s, BookingStatus::confirmed, 0, 90),
            booking(u"noUpdate"_s, BookingStatus::confirmed, 60),
            booking(u"early"_s, BookingStatus::confirmed, 500, 30),
            booking(u"tieFirst"_s, BookingStatus::pending, 120),
            booking(u"tieSecond"_s, BookingStatus::cancelled, 0, 120),
        };
        QCOMPARE(describe(tracker.ingest(answer, std::nullopt, false)),
                 u"booked:early booked:noUpdate booked:late booked:tieFirst cancelled:tieSecond"_s);
    }

    void ingestKeepsArrivalOrderOnTies()
    {
        // Enough equal keys that an unstable sort would shuffle them.
        QList<Booking> answer;
        QStringList expected;
        for (int i = 0; i < 64; ++i) {
            answer.append(booking(QString::number(i), BookingStatus::confirmed, i % 2 ? 30 : 500, 30));
            expected.append(u"booked:"_s + QString::number(i));
        }
        ChangeTracker tracker(distantPast());
        QCOMPARE(describe(tracker.ingest(answer, std::nullopt, false)), expected.join(u' '));
    }

    void ingestStatusRules()
    {
        ChangeTracker tracker(distantPast());
        // Created and cancelled between two polls: only the cancellation is news.
        QCOMPARE(describe(tracker.ingest({booking(u"x"_s, BookingStatus::cancelled)}, std::nullopt, false)),
                 u"cancelled:x"_s);
        QVERIFY(tracker.seenActive.contains(u"x"_s));
        QCOMPARE(describe(tracker.ingest({booking(u"x"_s, BookingStatus::confirmed)}, std::nullopt, false)), QString());
        QCOMPARE(describe(tracker.ingest({booking(u"x"_s, BookingStatus::cancelled)}, std::nullopt, false)), QString());

        // Known as active, then cancelled: one event each.
        QCOMPARE(describe(tracker.ingest({booking(u"y"_s, BookingStatus::pending)}, std::nullopt, false)), u"booked:y"_s);
        QCOMPARE(describe(tracker.ingest({booking(u"y"_s, BookingStatus::cancelled)}, std::nullopt, false)),
                 u"cancelled:y"_s);

        const QList<Booking> traceless{booking(u"r"_s, BookingStatus::rejected), booking(u"u"_s, BookingStatus::unknown)};
        QCOMPARE(describe(tracker.ingest(traceless, std::nullopt, false)), QString());
        QVERIFY(!tracker.seenActive.contains(u"r"_s) && !tracker.seenCancelled.contains(u"r"_s));
        QVERIFY(!tracker.seenActive.contains(u"u"_s) && !tracker.seenCancelled.contains(u"u"_s));
    }

    void ingestMovesCursorOnlyWithServerTime()
    {
        ChangeTracker tracker(distantPast());
        QVERIFY(tracker.ingest({}, noon.addSecs(5), false).isEmpty());
        QCOMPARE(tracker.cursor, noon);
        QVERIFY(tracker.seenActive.isEmpty());
        QVERIFY(tracker.ingest({booking(u"a"_s, BookingStatus::confirmed)}, std::nullopt, false).size() == 1);
        QCOMPARE(tracker.cursor, noon);
    }

    void ingestTrimsEachSetIndependently_data()
    {
        QTest::addColumn<int>("active");
        QTest::addColumn<int>("cancelled");
        QTest::addColumn<int>("expectedActive");
        QTest::addColumn<int>("expectedCancelled");
        // One confirmed id arrives on top of what is already known.
        QTest::newRow("at the bound") << 4999 << 0 << 5000 << 0;
        QTest::newRow("over the bound") << 5000 << 0 << 2000 << 0;
        QTest::newRow("cancelled set alone") << 0 << 5001 << 1 << 2000;
    }
    void ingestTrimsEachSetIndependently()
    {
        QFETCH(int, active);
        QFETCH(int, cancelled);
        QFETCH(int, expectedActive);
        QFETCH(int, expectedCancelled);
        ChangeTracker tracker(distantPast());
        tracker.seenActive = ids(u"a"_s, active);
        tracker.seenCancelled = ids(u"c"_s, cancelled);
        QCOMPARE(tracker.ingest({booking(u"new"_s, BookingStatus::confirmed)}, std::nullopt, false).size(), 1);
        QCOMPARE(tracker.seenActive.size(), expectedActive);
        QCOMPARE(tracker.seenCancelled.size(), expectedCancelled);
    }

    void fileRoundTrip()
    {
        for (const Instant &cursor : {distantPast(), noon.addMSecs(250), noon.addMSecs(-1), Instant(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC)}) {
            ChangeTracker tracker(cursor);
            tracker.seenActive = {u"a"_s, u"b"_s};
            tracker.seenCancelled = {u"b"_s};
            const std::optional<ChangeTracker> back = ChangeTracker::fromFileJson(tracker.toFileJson());
            QVERIFY(back.has_value());
            QCOMPARE(back->cursor, cursor);
            QCOMPARE(*back, tracker);
        }
    }

    void fileCursorIsSecondsSince2001()
    {
        const QByteArray json = ChangeTracker(noon.addMSecs(500)).toFileJson();
        // 2026-03-10T12:00:00.5Z is 794 836 800.5 s after 2001-01-01.
        QVERIFY2(json.contains("\"cursor\":794836800.5"), json.constData());
        const auto read = ChangeTracker::fromFileJson(R"({"seenActive":["x"],"seenCancelled":[],"cursor":0.25,"extra":1})");
        QVERIFY(read.has_value());
        QCOMPARE(read->cursor, Instant(QDate(2001, 1, 1), QTime(0, 0, 0, 250), Qt::UTC));
        QCOMPARE(read->seenActive, QSet<QString>{u"x"_s});
    }

    void fileRejectsAnythingElse_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("not json") << QByteArray("{seenActive");
        QTest::newRow("array") << QByteArray("[]");
        QTest::newRow("missing cursor") << QByteArray(R"({"seenActive":[],"seenCancelled":[]})");
        QTest::newRow("missing set") << QByteArray(R"({"seenActive":[],"cursor":1})");
        QTest::newRow("ISO cursor") << QByteArray(R"({"seenActive":[],"seenCancelled":[],"cursor":"2026-03-10T12:00:00Z"})");
        QTest::newRow("null set") << QByteArray(R"({"seenActive":null,"seenCancelled":[],"cursor":1})");
        QTest::newRow("number in set") << QByteArray(R"({"seenActive":[1],"seenCancelled":[],"cursor":1})");
        QTest::newRow("cursor beyond calendar") << QByteArray(R"({"seenActive":[],"seenCancelled":[],"cursor":1e300})");
    }
    void fileRejectsAnythingElse()
    {
        QFETCH(QByteArray, json);
        QVERIFY(!ChangeTracker::fromFileJson(json).has_value());
    }
};

QTEST_APPLESS_MAIN(TestChangeTracker)
#include "tst_changetracker.moc"
