// The one-pass JSON reader: whatever it reads, it reads as QJsonDocument does; whatever it
// declines leaves a decode exactly as it was; and the records come out the same either way.
#include "JSON.h"
#include "JSONScan.h"
#include "JSONScanCompare.h"
#include "Records.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;

class TestJSONScan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAsQJsonDocument_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("scanned"); // false: declined, left to QJsonDocument
        const auto row = [](const char *name, const QByteArray &text, bool scanned) {
            QTest::newRow(name) << text << scanned;
        };
        row("record", R"({"a":1,"b":[true,false,null],"c":{"d":"e"}})", true);
        row("spaces", " { \"a\" : [ 1 , 2 ] }\n", true);
        row("empty containers", R"({"a":[],"b":{}})", true);
        row("escapes", "[\"q\\\"b\\\\s\\/n\\nt\\tr\\rf\\fb\\bu\\u00e9\\u0001\"]", true);
        row("surrogate pair", R"(["\ud83d\ude00"])", true);
        row("raw UTF-8", "[\"caf\xc3\xa9 \xf0\x9f\x98\x80\"]", true);
        row("numbers", R"([0,-0,12,-3.5,1e5,2.5E-3,9007199254740993])", true);
        row("top-level text", R"("alone")", true);
        row("keys out of order", R"({"b":1,"a":2})", false);
        row("a key twice", R"({"a":1,"a":2})", false);
        row("escaped key", R"({"\u0061":1})", false);
        row("lone surrogate", R"(["\ud83d"])", false);
        row("raw control character", "[\"a\x01\"]", false);
        row("invalid UTF-8", "[\"\xc3\x28\"]", false);
        row("number out of range", "[1e400]", false);
        row("leading zero", "[01]", false);
        row("bare fraction", "[1.]", false);
        row("trailing comma", "[1,]", false);
        row("unknown escape", R"(["\x"])", false);
        row("text after the value", "{} {}", false);
        row("cut short", R"({"a":[1,2)", false);
        row("too deep", QByteArray(100, '[') + QByteArray(100, ']'), false);
    }
    void readsAsQJsonDocument()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, scanned);
        const std::optional<JSONScan> scan = JSONScan::of(text);
        QCOMPARE(scan.has_value(), scanned);
        if (!scan)
            return;
        const QJsonDocument document = QJsonDocument::fromJson('[' + text + ']');
        QVERIFY2(!document.isNull(), "QJsonDocument refuses what the scan read");
        QVERIFY(test::sameValue(scan->root(), document.array().first()));
    }

    // Texts the app writes, with every kind of field a booking has, present, absent and null.
    void recordsComeOutTheSame()
    {
        Snapshot snapshot;
        Account account;
        account.id = 7;
        account.email = u"ilse@example.com"_s;
        account.handle = u"ilse"_s;
        snapshot.account = account;
        Booking full;
        full.id = u"bk-1"_s;
        full.type = u"intro"_s;
        full.start = QDateTime(QDate(2026, 3, 10), QTime(14, 0), Qt::UTC);
        full.end = full.start.addSecs(1800);
        full.name = u"Tom\u00e1s \"Tom\" Ferreira \U0001F600"_s;
        full.email = u"tomas@example.com"_s;
        full.tz = u"Europe/Lisbon"_s;
        full.notes = u"Two lines\nand a tab\t, a backslash \\ and \u0001"_s;
        full.status = BookingStatus::confirmed;
        full.meet = u"https://meet.example.com/abc"_s;
        full.inCalendar = true;
        full.created = full.start.addDays(-3);
        full.updated = full.start.addDays(-1);
        full.noShow = false;
        full.answers = QList<Answer>{{u"Company?"_s, u"Example Ltd"_s}};
        Booking bare = full;
        bare.id = u"bk-2"_s;
        bare.notes.reset();
        bare.meet.reset();
        bare.inCalendar.reset();
        bare.created.reset();
        bare.updated.reset();
        bare.noShow.reset();
        bare.answers.reset();
        bare.status = BookingStatus::unknown;
        snapshot.upcoming = {full, bare};
        snapshot.history = QList<Booking>(1500, full); // long enough to be read in slices
        snapshot.savedAt = full.start;
        const QByteArray bytes = JSON::encode(snapshot);

        const std::optional<JSONScan> scan = JSONScan::of(bytes);
        QVERIFY(scan);
        const Snapshot scanned = Codec<Snapshot>::decode(scan->root(), CodingPath{});
        const Result<Snapshot> full_ = fromJson<Snapshot>(*JSON::parse(bytes));
        QVERIFY(full_);
        QCOMPARE(scanned.upcoming, full_->upcoming);
        QCOMPARE(scanned.history, full_->history);
        QCOMPARE(scanned.account, full_->account);
        QCOMPARE(scanned.savedAt, full_->savedAt);
        QCOMPARE(JSON::encode(scanned), bytes);
    }

    // A booking's status may be null, but it must be there; a text where an instant belongs
    // fails. Both are judged by the full decoder, in its own words, whichever way the text came.
    void failuresKeepTheirWords_data()
    {
        QTest::addColumn<QByteArray>("text");
        const QByteArray fields = R"("email":"e","end":"2026-03-10T15:00:00Z","id":"x","name":"n",)"
                                  R"("start":"2026-03-10T14:00:00Z",)";
        QTest::newRow("status missing") << '{' + fields + R"("type":"t","tz":"UTC"})";
        QTest::newRow("status null") << '{' + fields + R"("status":null,"type":"t","tz":"UTC"})";
        QTest::newRow("bad instant") << QByteArray(fields).replace("15:00:00Z", "later").prepend('{')
                                            + R"("status":"confirmed","type":"t","tz":"UTC"})";
        QTest::newRow("keys out of order, bad type")
            << QByteArray(R"({"type":"t","tz":"UTC","status":"confirmed","email":"e","end":"2026-03-10T15:00:00Z",)"
                          R"("id":7,"name":"n","start":"2026-03-10T14:00:00Z"})");
    }
    void failuresKeepTheirWords()
    {
        QFETCH(QByteArray, text);
        const Result<Booking> decoded = JSON::decode<Booking>(text);
        const Result<Booking> expected = fromJson<Booking>(*JSON::parse(text));
        QCOMPARE(bool(decoded), bool(expected));
        if (decoded)
            QCOMPARE(*decoded, *expected);
        else
            QCOMPARE(decoded.error(), expected.error());
    }
};

QTEST_GUILESS_MAIN(TestJSONScan)
#include "tst_json_scan.moc"
