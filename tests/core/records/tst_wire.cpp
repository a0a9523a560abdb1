// The wire format underneath every record: ISO dates in and out, JSON parsing and encoding, and
// what a decoding failure says.
#include "ISO.h"
#include "JSON.h"
#include "Records.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;

class TestWire : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isoParse_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("utc"); // empty: no value
        QTest::newRow("zulu") << u"2026-03-10T14:00:00Z"_s << u"2026-03-10T14:00:00.000Z"_s;
        QTest::newRow("fraction") << u"2026-03-10T14:00:00.25Z"_s << u"2026-03-10T14:00:00.250Z"_s;
        QTest::newRow("long fraction") << u"2026-03-10T14:00:00.123456Z"_s << u"2026-03-10T14:00:00.123Z"_s;
        QTest::newRow("offset") << u"2026-03-10T09:00:00-05:00"_s << u"2026-03-10T14:00:00.000Z"_s;
        QTest::newRow("no zone") << u"2026-03-10T14:00:00"_s << QString();
        QTest::newRow("offset without colon") << u"2026-03-10T14:00:00+0100"_s << QString();
        QTest::newRow("impossible day") << u"2026-02-30T10:00:00Z"_s << QString();
        QTest::newRow("half-hour offset") << u"2026-03-10T19:30:00+05:30"_s << u"2026-03-10T14:00:00.000Z"_s;
        QTest::newRow("empty fraction") << u"2026-03-10T14:00:00.Z"_s << QString();
        QTest::newRow("text after zone") << u"2026-03-10T14:00:00Zjunk"_s << QString();
        QTest::newRow("hour 24") << u"2026-03-10T24:00:00Z"_s << QString();
        QTest::newRow("non-ASCII digit") << u"2026-03-10T14:00:0\u0663Z"_s << QString();
        // Every date read must write back as one: a year of four digits in UTC too.
        QTest::newRow("first moment") << u"0001-01-01T00:00:00Z"_s << u"0001-01-01T00:00:00.000Z"_s;
        QTest::newRow("before year 1 in UTC") << u"0001-01-01T00:00:00+01:00"_s << QString();
        QTest::newRow("after year 9999 in UTC") << u"9999-12-31T23:59:59-05:00"_s << QString();
    }
    void isoParse()
    {
        QFETCH(QString, text);
        QFETCH(QString, utc);
        const std::optional<Instant> parsed = ISO::parse(text);
        QCOMPARE(parsed.has_value(), !utc.isEmpty());
        if (parsed)
            QCOMPARE(ISO::string(*parsed), utc);
    }

    void threeDatePaths()
    {
        const Instant t = *ISO::parse(u"2026-03-10T14:00:05.789Z"_s);
        QCOMPARE(ISO::string(t), u"2026-03-10T14:00:05.789Z"_s);
        QCOMPARE(ISO::secondsString(t), u"2026-03-10T14:00:05Z"_s);
        QCOMPARE(JSON::encode(toJson(t)), QByteArray("\"2026-03-10T14:00:05Z\""));
        // A zone other than UTC still goes out in UTC.
        QCOMPARE(ISO::string(t.toTimeZone(QTimeZone("Asia/Tokyo"))), u"2026-03-10T14:00:05.789Z"_s);
    }

    void badDateNamesTheText()
    {
        const Result<Slot> s =
            JSON::decode<Slot>(R"({"start":"2026-03-10 14:00","end":"2026-03-10T14:30:00Z","score":1})");
        QVERIFY(!s.ok());
        QCOMPARE(s.error().reason, u"Bad date 2026-03-10 14:00"_s);
        QCOMPARE(s.error().description(), u"start: Bad date 2026-03-10 14:00"_s);
        // A date that isn't a text at all is a type failure, not a bad date.
        const Result<Slot> n = JSON::decode<Slot>(R"({"start":5,"end":"2026-03-10T14:30:00Z","score":1})");
        QVERIFY(!n.ok());
        QVERIFY(!n.error().reason.startsWith(u"Bad date"_s));
    }

    void encoderSortsKeysAndOmitsMissingOptionals()
    {
        Booking b;
        b.id = u"b1"_s;
        b.type = u"intro"_s;
        b.start = *ISO::parse(u"2026-03-10T14:00:00.900Z"_s);
        b.end = *ISO::parse(u"2026-03-10T14:30:00Z"_s);
        b.name = u"Ann"_s;
        b.email = u"ann@example.com"_s;
        b.tz = u"UTC"_s;
        b.noShow = false;
        QCOMPARE(JSON::encode(b),
                 QByteArray(
                     R"({"email":"ann@example.com","end":"2026-03-10T14:30:00Z","id":"b1","name":"Ann",)"
                     R"("noShow":false,"start":"2026-03-10T14:00:00Z","status":"pending","type":"intro","tz":"UTC"})"));
    }

    // Long lists are decoded in slices on several threads; the result and the error must be
    // those of a plain loop: every element in place, and the first failing element named.
    void longListsDecodeAsOne_data()
    {
        QTest::addColumn<QList<int>>("broken"); // elements whose start is made unreadable
        QTest::addColumn<QString>("path");
        QTest::newRow("sound") << QList<int>{} << QString();
        QTest::newRow("one bad element late") << QList<int>{2900} << u"[2900].start"_s;
        QTest::newRow("earliest of several wins") << QList<int>{2900, 1500, 7} << u"[7].start"_s;
        QTest::newRow("same slice") << QList<int>{1030, 1025} << u"[1025].start"_s;
    }
    void longListsDecodeAsOne()
    {
        QFETCH(QList<int>, broken);
        QFETCH(QString, path);

        const Instant base = *ISO::parse(u"2026-03-10T14:00:00Z"_s);
        QList<Booking> bookings;
        for (int i = 0; i < 3000; ++i) {
            Booking b;
            b.id = u"b%1"_s.arg(i);
            b.type = u"intro"_s;
            b.start = base.addSecs(i * 1800);
            b.end = b.start.addSecs(1800);
            b.name = u"Guest %1"_s.arg(i);
            b.email = u"g%1@example.com"_s.arg(i);
            b.tz = u"UTC"_s;
            bookings.append(b);
        }
        QJsonArray array = toJson(bookings).toArray();
        for (int i : std::as_const(broken)) {
            QJsonObject object = array.at(i).toObject();
            object.insert(u"start"_s, u"soon"_s);
            array.replace(i, object);
        }

        const Result<QList<Booking>> decoded = fromJson<QList<Booking>>(array);
        if (path.isEmpty()) {
            QVERIFY(decoded.ok());
            QCOMPARE(*decoded, bookings);
        } else {
            QVERIFY(!decoded.ok());
            QCOMPARE(decoded.error().path, path);
            QCOMPARE(decoded.error().reason, u"Bad date soon"_s);
        }
    }

    void parseRejectsGarbage()
    {
        QVERIFY(!JSON::parse("").ok());
        QVERIFY(!JSON::parse("{\"a\":").ok());
        // Any JSON value is a document, not only objects and arrays.
        QCOMPARE(JSON::parse("\"text\"")->toString(), u"text"_s);
        QCOMPARE(JSON::parse("12")->toInt(), 12);
    }
};

QTEST_GUILESS_MAIN(TestWire)
#include "tst_wire.moc"
