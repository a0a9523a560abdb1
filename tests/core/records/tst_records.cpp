// The records as the server sends them: which fields are strict, optional or lenient, their
// defaults, and what goes back out.
#include "JSON.h"
#include "Records.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QTest>
#include <QTimeZone>

using namespace Qt::StringLiterals;
using namespace quorvane;

namespace {

template <class T>
bool decodes(const char *json)
{
    return JSON::decode<T>(QByteArray(json)).ok();
}

QJsonObject bookingObject()
{
    return QJsonDocument::fromJson(R"({"id":"b1","type":"intro","start":"2026-03-10T14:00:00Z",)"
                                   R"("end":"2026-03-10T14:30:00Z","name":"Ann Lee","email":"ann@example.com",)"
                                   R"("tz":"Europe/Paris","status":"confirmed"})")
        .object();
}

} // namespace

class TestRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A slug is all an event type needs. Any other field that doesn't read takes its default:
    // digits in a text, a fraction, an unknown word, null.
    void eventTypeDefaults()
    {
        const EventType a = JSON::decode<EventType>(R"({"slug":"intro"})").value();
        QCOMPARE((std::tuple{a.slug, a.title, a.minutes, a.colorHex, a.isActive, a.location, a.questions.size()}),
                 (std::tuple{u"intro"_s, u"Meeting"_s, 30, u"#0A84FF"_s, true, MeetingLocation::meet, qsizetype(0)}));
        // A generated id: canonical upper-case UUID, and new at every decoding.
        QVERIFY(QRegularExpression(u"^[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}$"_s)
                    .match(a.id)
                    .hasMatch());
        QVERIFY(a.id != JSON::decode<EventType>(R"({"slug":"intro"})")->id);

        const auto read = [](const char *json) {
            const EventType e = JSON::decode<EventType>(QByteArray(json)).value();
            return std::tuple{e.minutes, e.location, e.isActive};
        };
        QCOMPARE(read(R"({"slug":"x","minutes":"45","location":"zoom","isActive":null})"),
                 (std::tuple{30, MeetingLocation::meet, true}));
        QCOMPARE(read(R"({"slug":"x","minutes":45.5})"), (std::tuple{30, MeetingLocation::meet, true}));
        QCOMPARE(read(R"({"slug":"x","isActive":false,"location":"in_person","minutes":15})"),
                 (std::tuple{15, MeetingLocation::in_person, false}));
    }

    void hostSettingsDefaults()
    {
        // Every field has a default, the zone being the machine's; but it must be an object.
        const Result<HostSettings> s = JSON::decode<HostSettings>("{}");
        QVERIFY(s.ok());
        QCOMPARE(s->timezone, QString::fromUtf8(QTimeZone::systemTimeZoneId()));
        QCOMPARE((std::tuple{s->maxMeetingsPerDay, s->minNoticeMinutes, s->horizonDays, s->alertMinutesBefore}),
                 (std::tuple{5, 60, 14, 10}));
        QVERIFY(!JSON::decode<HostSettings>("[]").ok());
    }

    void hostSettingsListsAreAllOrNothing()
    {
        const Result<HostSettings> s = JSON::decode<HostSettings>(
            R"({ "owner":"Ilse","handle":"ilse","maxMeetingsPerDay":"7", "eventTypes":[{"slug":"a"},{}], "availability":[{"weekday":2,"ranges":[{"start":540,"end":1020}]}], "focusBlocks":[{"id":"f","weekday":2,"range":{"start":600},"label":"Deep work"}]})");
        QVERIFY(s.ok());
        QVERIFY(s->eventTypes.isEmpty());  // one bad element empties the list
        QVERIFY(s->focusBlocks.isEmpty()); // a nested strict record that fails
        QCOMPARE(s->availability.size(), 1);
        QCOMPARE(s->availability.first().ranges.first(), (TimeRange{540, 1020}));
        QCOMPARE(s->owner, u"Ilse"_s);
        QCOMPARE(s->maxMeetingsPerDay, 5);
    }

    void hostSettingsRoundTrip()
    {
        HostSettings s;
        s.owner = u"Ilse Varga"_s;
        s.timezone = u"America/New_York"_s;
        EventType e;
        e.id = u"E1"_s;
        e.slug = u"intro"_s;
        e.location = MeetingLocation::in_person;
        e.questions = {u"Why?"_s};
        s.eventTypes = {e};
        s.focusBlocks = {FocusBlock{u"f1"_s, 3, TimeRange{600, 720}, u"Focus"_s}};
        const QByteArray bytes = JSON::encode(s);
        QVERIFY(bytes.contains(R"("location":"in_person")"));
        QCOMPARE(JSON::decode<HostSettings>(bytes).value(), s);
    }

    // Any status decodes; what this client can't read goes back out as "unknown", never as the word.
    void bookingStatusNeverFails()
    {
        const auto decoded = [](const QJsonValue &status) {
            QJsonObject o = bookingObject();
            o.insert(u"status"_s, status);
            return fromJson<Booking>(o).value();
        };
        QCOMPARE(decoded(u"pending"_s).status, BookingStatus::pending);
        for (const QJsonValue &status : {QJsonValue(u"Confirmed"_s), QJsonValue(QJsonValue::Null)}) {
            const Booking b = decoded(status);
            QCOMPARE(b.status, BookingStatus::unknown);
            QCOMPARE(toJson(b).toObject().value(u"status"_s), QJsonValue(u"unknown"_s));
        }
    }

    void bookingStrictness_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QJsonValue>("value"); // Undefined removes the key
        QTest::addColumn<QString>("errorPath");
        QTest::newRow("no status key") << u"status"_s << QJsonValue(QJsonValue::Undefined) << u"status"_s;
        QTest::newRow("no name") << u"name"_s << QJsonValue(QJsonValue::Undefined) << u"name"_s;
        QTest::newRow("null email") << u"email"_s << QJsonValue(QJsonValue::Null) << u"email"_s;
        QTest::newRow("optional of wrong type") << u"noShow"_s << QJsonValue(u"yes"_s) << u"noShow"_s;
        QTest::newRow("bad answer") << u"answers"_s << QJsonValue(QJsonArray{QJsonObject{{u"q"_s, u"Why"_s}}})
                                    << u"answers[0].a"_s;
    }
    void bookingStrictness()
    {
        QFETCH(QString, key);
        QFETCH(QJsonValue, value);
        QJsonObject o = bookingObject();
        if (value.isUndefined())
            o.remove(key);
        else
            o.insert(key, value);
        const Result<Booking> b = fromJson<Booking>(o);
        QVERIFY(!b.ok());
        QTEST(b.error().path, "errorPath");
    }

    void bookingOptionalsAndComputed()
    {
        QJsonObject withNull = bookingObject();
        withNull.insert(u"notes"_s, QJsonValue::Null);
        const Booking a = fromJson<Booking>(withNull).value();
        QCOMPARE(a, fromJson<Booking>(bookingObject()).value());
        QVERIFY(!a.notes.has_value());
        QVERIFY(!toJson(a).toObject().contains(u"notes"_s));
        QVERIFY(a.isActive());

        Booking c = a;
        for (BookingStatus s :
             {BookingStatus::cancelled, BookingStatus::rejected, BookingStatus::unknown, BookingStatus::pending}) {
            c.status = s;
            QCOMPARE(c.isActive(), s == BookingStatus::pending);
        }

        c.meet = u""_s;
        QVERIFY(!c.meetURL());
        c.meet = u"https://meet.example.com/abc-defg-hij"_s;
        QCOMPARE(c.meetURL()->host(), u"meet.example.com"_s);
        c.meet = u" https://meet.example.com/x y"_s; // no trimming, no repair
        QVERIFY(!c.meetURL());
    }

    // Strict records: every required field of the right type, or no record at all.
    void strictRecords()
    {
        QVERIFY(!decodes<EventType>("{}")); // lenient as it is, an event type still needs its slug
        QVERIFY(decodes<Account>(R"({"id":9007199254740993,"email":"a@b.c","google":{"connected":true},)"
                                 R"("links":[{"title":"Intro","minutes":30,"url":"https:\/\/x\/y"}]})")); // beyond 2^53
        QVERIFY(!decodes<Account>(R"({"id":"42","email":"a@b.c"})"));
        QVERIFY(decodes<Poll>(R"({"id":"p","title":"T","minutes":30,"booked":false,"voters":[],)"
                              R"("options":[{"start":"2026-03-10T14:00:00Z","votes":2}]})"));
        QVERIFY(!decodes<Poll>(R"({"id":"p","title":"T","minutes":30,"booked":false,"options":[]})"));
        QVERIFY(!decodes<CalendarItem>(R"({"id":"c","primary":true})"));
        QVERIFY(decodes<GoogleStatus>(R"({"connected":true,"connectedAt":"last tuesday",)" // any text
                                      R"("calendars":[{"id":"p","primary":true,"writable":true}]})"));
        QVERIFY(decodes<SlotList>(R"({"type":"intro","mode":"smart","slots":[)"
                                  R"({"start":"2026-03-10T14:00:00.5Z","end":"2026-03-10T14:30:00Z","score":-3}]})"));
        QVERIFY(!decodes<SlotList>(R"({"type":"intro","slots":[]})"));
        QVERIFY(!decodes<ReleaseInfo>(R"({"version":"2.1","size":"1024","filename":"q"})"));
        const QJsonObject snapshot = QJsonDocument::fromJson(R"({"upcoming":[],"history":[],"polls":[],)"
                                                             R"("savedAt":"2026-03-10T14:00:00Z"})")
                                         .object();
        QVERIFY(fromJson<Snapshot>(snapshot).ok());
        for (const QString &key : snapshot.keys()) { // each part of a snapshot is required
            QJsonObject partial = snapshot;
            partial.remove(key);
            QVERIFY2(!fromJson<Snapshot>(partial).ok(), qPrintable(key));
        }
        QVERIFY(!decodes<MeetingLocation>(R"("Meet")")); // the words are case-sensitive
    }

    void emptySnapshotEncodesTheDistantPast()
    {
        QCOMPARE(JSON::encode(Snapshot()),
                 QByteArray(R"({"history":[],"polls":[],"savedAt":"0001-01-01T00:00:00Z","upcoming":[]})"));
    }
};

QTEST_GUILESS_MAIN(TestRecords)
#include "tst_records.moc"
