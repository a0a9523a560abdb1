#include "JSON.h"
#include "Records.h"

#include <QRegularExpression>
#include <functional>
#include <QTest>
#include <QTimeZone>

using namespace Qt::StringLiterals;
using namespace quorvane;

namespace {

QJsonValue parse(const char *json)
{
    Result<QJsonValue> value = JSON::parse(QByteArray(json));
    if (!value)
        qFatal("test fixture is not JSON: %s", json);
    return *value;
}

const char *bookingJson = R"({"id":"b1","type":"intro","start":"2026-03-10T14:00:00Z", "end":"2026-03-10T14:30:00Z","name":"Ann Lee","email":"ann@example.com","tz":"Europe/Paris", "status":"confirmed"})";

QJsonObject bookingObject()
{
    return parse(bookingJson).toObject();
}

} // namespace

class TestRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eventTypeFromSlugOnly()
    {
        const Result<EventType> a = fromJson<EventType>(parse(R"({"slug":"intro"})"));
        const Result<EventType> b = fromJson<EventType>(parse(R"({"slug":"intro"})"));
        QVERIFY(a.ok());
        QCOMPARE((std::tuple{a->slug, a->title, a->minutes, a->colorHex, a->isActive, a->location}),
                 (std::tuple{u"intro"_s, u"Meeting"_s, 30, u"#0A84FF"_s, true, MeetingLocation::meet}));
        QVERIFY(a->questions.isEmpty());
        // A generated id: canonical upper-case UUID, and new at every decoding.
        QVERIFY(QRegularExpression(u"^[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}$"_s)
                    .match(a->id)
                    .hasMatch());
        QVERIFY(a->id != b->id);
        QVERIFY(!(a.value() == b.value()));
    }

    void eventTypeLenientFields_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<int>("minutes");
        QTest::addColumn<MeetingLocation>("location");
        QTest::addColumn<bool>("isActive");
        QTest::newRow("digits in a text are no number")
            << QByteArray(R"({"slug":"x","minutes":"45"})") << 30 << MeetingLocation::meet << true;
        QTest::newRow("fractional minutes") << QByteArray(R"({"slug":"x","minutes":45.5})") << 30
                                            << MeetingLocation::meet << true;
        QTest::newRow("unknown location") << QByteArray(R"({"slug":"x","location":"zoom","minutes":45})") << 45
                                          << MeetingLocation::meet << true;
        QTest::newRow("underscore location") << QByteArray(R"({"slug":"x","location":"in_person"})") << 30
                                             << MeetingLocation::in_person << true;
        QTest::newRow("null and wrong types") << QByteArray(R"({"slug":"x","isActive":null,"location":3})")
                                              << 30 << MeetingLocation::meet << true;
        QTest::newRow("kept values") << QByteArray(R"({"slug":"x","isActive":false,"location":"phone","minutes":15})")
                                     << 15 << MeetingLocation::phone << false;
    }
    void eventTypeLenientFields()
    {
        QFETCH(QByteArray, json);
        const Result<EventType> e = JSON::decode<EventType>(json);
        QVERIFY2(e.ok(), qPrintable(e.ok() ? QString() : e.error().description()));
        QTEST(e->minutes, "minutes");
        QTEST(e->location, "location");
        QTEST(e->isActive, "isActive");
    }

    void hostSettingsDefaults()
    {
        const Result<HostSettings> s = JSON::decode<HostSettings>("{}");
        QVERIFY(s.ok());
        QVERIFY(s->owner.isEmpty() && s->handle.isEmpty());
        QCOMPARE(s->timezone, QString::fromUtf8(QTimeZone::systemTimeZoneId()));
        QCOMPARE((std::tuple{s->maxMeetingsPerDay, s->minNoticeMinutes, s->horizonDays, s->alertMinutesBefore}),
                 (std::tuple{5, 60, 14, 10}));
        QCOMPARE((std::pair{s->busyCalendarIDs, s->bookingCalendarID}), (std::pair{QStringList{u"primary"_s}, u"primary"_s}));
        QVERIFY(s->addMeet);
        QVERIFY(!JSON::decode<HostSettings>("[]").ok());
    }

    void hostSettingsListsAreAllOrNothing()
    {
        const Result<HostSettings> s = JSON::decode<HostSettings>(R"({ "owner":"Ilse","handle":"ilse","maxMeetingsPerDay":"7", "eventTypes":[{"slug":"a"},{}], "availability":[{"weekday":2,"ranges":[{"start":540,"end":1020}]}], "focusBlocks":[{"id":"f","weekday":2,"range":{"start":600},"label":"Deep work"}]})");
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

    void bookingStatusNeverFails_data()
    {
        QTest::addColumn<QJsonValue>("status");
        QTest::addColumn<BookingStatus>("expected");
        QTest::newRow("pending") << QJsonValue(u"pending"_s) << BookingStatus::pending;
        QTest::newRow("capitalised") << QJsonValue(u"Confirmed"_s) << BookingStatus::unknown;
        QTest::newRow("one l") << QJsonValue(u"canceled"_s) << BookingStatus::unknown;
        QTest::newRow("null") << QJsonValue(QJsonValue::Null) << BookingStatus::unknown;
        QTest::newRow("number") << QJsonValue(3) << BookingStatus::unknown;
    }
    void bookingStatusNeverFails()
    {
        QFETCH(QJsonValue, status);
        QJsonObject o = bookingObject();
        o.insert(u"status"_s, status);
        const Result<Booking> b = fromJson<Booking>(o);
        QVERIFY(b.ok());
        QTEST(b->status, "expected");
        // What this client couldn't read goes back out as "unknown", never as the original word.
        if (b->status == BookingStatus::unknown)
            QCOMPARE(toJson(*b).toObject().value(u"status"_s), QJsonValue(u"unknown"_s));
    }

    void bookingStrictness_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QJsonValue>("value"); // Undefined removes the key
        QTest::addColumn<QString>("errorPath");
        QTest::newRow("no status key") << u"status"_s << QJsonValue(QJsonValue::Undefined) << u"status"_s;
        QTest::newRow("no name") << u"name"_s << QJsonValue(QJsonValue::Undefined) << u"name"_s;
        QTest::newRow("null email") << u"email"_s << QJsonValue(QJsonValue::Null) << u"email"_s;
        QTest::newRow("date without zone")
            << u"start"_s << QJsonValue(u"2026-03-10T14:00:00"_s) << u"start"_s;
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
        const Booking b = fromJson<Booking>(bookingObject()).value();
        QCOMPARE(a, b);
        QVERIFY(!a.notes.has_value());
        QVERIFY(!toJson(a).toObject().contains(u"notes"_s));
        QVERIFY(!toJson(a).toObject().contains(u"inCalendar"_s));
        QVERIFY(a.isActive());

        Booking c = a;
        for (BookingStatus s : {BookingStatus::cancelled, BookingStatus::rejected, BookingStatus::unknown}) {
            c.status = s;
            QVERIFY(!c.isActive());
        }
        c.status = BookingStatus::pending;
        QVERIFY(c.isActive());

        c.meet = u""_s;
        QVERIFY(!c.meetURL());
        c.meet = u"https://meet.example.com/abc-defg-hij"_s;
        QCOMPARE(c.meetURL()->host(), u"meet.example.com"_s);
        c.meet = u" https://meet.example.com/x y"_s; // no trimming, no repair
        QVERIFY(!c.meetURL());
    }

    // Strict records: every required field of the right type, or no record at all.
    void strictRecords_data()
    {
        QTest::addColumn<QString>("record");
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<bool>("ok");
        const auto row = [](const char *name, const char *record, const char *json, bool ok) {
            QTest::newRow(name) << QString::fromLatin1(record) << QByteArray(json) << ok;
        };
        // Lenient as it is, an event type still needs its slug.
        row("event type, empty", "EventType", "{}", false);
        row("event type, numeric slug", "EventType", R"({"slug":7})", false);
        row("event type, not an object", "EventType", R"(["slug"])", false);
        row("account id beyond 2^53", "Account", R"({"id":9007199254740993,"email":"a@b.c",)"
            R"("google":{"connected":true},"links":[{"title":"Intro","minutes":30,"url":"https:\/\/x\/y"}]})", true);
        row("account id as text", "Account", R"({"id":"42","email":"a@b.c"})", false);
        row("poll", "Poll", R"({"id":"p","title":"T","minutes":30,"booked":false,"voters":[],)"
            R"("options":[{"start":"2026-03-10T14:00:00Z","votes":2}]})", true);
        row("poll without voters", "Poll", R"({"id":"p","title":"T","minutes":30,"booked":false,"options":[]})", false);
        row("calendar without writable", "CalendarItem", R"({"id":"c","primary":true})", false);
        row("connectedAt is any text", "GoogleStatus",
            R"({"connected":true,"connectedAt":"last tuesday","calendars":[{"id":"p","primary":true,"writable":true}]})",
            true);
        row("slot list, negative score", "SlotList", R"({"type":"intro","mode":"smart","slots":[)"
            R"({"start":"2026-03-10T14:00:00.5Z","end":"2026-03-10T14:30:00Z","score":-3}]})", true);
        row("slot list without mode", "SlotList", R"({"type":"intro","slots":[]})", false);
        row("release size as text", "ReleaseInfo", R"({"version":"2.1","size":"1024","filename":"q"})", false);
        row("snapshot", "Snapshot", R"({"upcoming":[],"history":[],"polls":[],"savedAt":"2026-03-10T14:00:00Z"})", true);
        row("snapshot without savedAt", "Snapshot", R"({"upcoming":[],"history":[],"polls":[]})", false);
        row("snapshot without history", "Snapshot", R"({"upcoming":[],"polls":[],"savedAt":"2026-03-10T14:00:00Z"})",
            false);
        row("location, unknown word", "MeetingLocation", R"("zoom")", false);
        row("location, other case", "MeetingLocation", R"("Meet")", false);
    }
    void strictRecords()
    {
        QFETCH(QString, record);
        QFETCH(QByteArray, json);
        const QHash<QString, std::function<bool()>> decoders{
            {u"EventType"_s, [&] { return JSON::decode<EventType>(json).ok(); }},
            {u"Account"_s, [&] { return JSON::decode<Account>(json).ok(); }},
            {u"Poll"_s, [&] { return JSON::decode<Poll>(json).ok(); }},
            {u"CalendarItem"_s, [&] { return JSON::decode<CalendarItem>(json).ok(); }},
            {u"GoogleStatus"_s, [&] { return JSON::decode<GoogleStatus>(json).ok(); }},
            {u"SlotList"_s, [&] { return JSON::decode<SlotList>(json).ok(); }},
            {u"ReleaseInfo"_s, [&] { return JSON::decode<ReleaseInfo>(json).ok(); }},
            {u"Snapshot"_s, [&] { return JSON::decode<Snapshot>(json).ok(); }},
            {u"MeetingLocation"_s, [&] { return JSON::decode<MeetingLocation>(json).ok(); }},
        };
        QTEST(decoders.value(record)(), "ok");
    }

    void emptySnapshotEncodesTheDistantPast()
    {
        QCOMPARE(JSON::encode(Snapshot()),
                 QByteArray(R"({"history":[],"polls":[],"savedAt":"0001-01-01T00:00:00Z","upcoming":[]})"));
    }

    void timeRangeDurationIsNotClamped() { QCOMPARE((TimeRange{600, 540}).duration(), -60); }
};

QTEST_GUILESS_MAIN(TestRecords)
#include "tst_records.moc"
