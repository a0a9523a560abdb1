#include "JSON.h"
#include "Records.h"

#include <QRegularExpression>
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
        QCOMPARE(a->slug, u"intro"_s);
        QCOMPARE(a->title, u"Meeting"_s);
        QCOMPARE(a->minutes, 30);
        QCOMPARE(a->colorHex, u"#0A84FF"_s);
        QVERIFY(a->isActive);
        QCOMPARE(a->location, MeetingLocation::meet);
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

    void eventTypeNeedsSlug_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::newRow("empty object") << QByteArray("{}");
        QTest::newRow("numeric slug") << QByteArray(R"({"slug":7})");
        QTest::newRow("null slug") << QByteArray(R"({"slug":null})");
        QTest::newRow("not an object") << QByteArray(R"(["slug"])");
    }
    void eventTypeNeedsSlug()
    {
        QFETCH(QByteArray, json);
        QVERIFY(!JSON::decode<EventType>(json).ok());
    }

    void hostSettingsDefaults()
    {
        const Result<HostSettings> s = JSON::decode<HostSettings>("{}");
        QVERIFY(s.ok());
        QVERIFY(s->owner.isEmpty() && s->handle.isEmpty());
        QCOMPARE(s->timezone, QString::fromUtf8(QTimeZone::systemTimeZoneId()));
        QCOMPARE(s->maxMeetingsPerDay, 5);
        QCOMPARE(s->minNoticeMinutes, 60);
        QCOMPARE(s->horizonDays, 14);
        QCOMPARE(s->alertMinutesBefore, 10);
        QCOMPARE(s->busyCalendarIDs, QStringList{u"primary"_s});
        QCOMPARE(s->bookingCalendarID, u"primary"_s);
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
        QTest::newRow("rejected") << QJsonValue(u"rejected"_s) << BookingStatus::rejected;
        QTest::newRow("capitalised") << QJsonValue(u"Confirmed"_s) << BookingStatus::unknown;
        QTest::newRow("one l") << QJsonValue(u"canceled"_s) << BookingStatus::unknown;
        QTest::newRow("null") << QJsonValue(QJsonValue::Null) << BookingStatus::unknown;
        QTest::newRow("number") << QJsonValue(3) << BookingStatus::unknown;
        QTest::newRow("object") << QJsonValue(QJsonObject{{u"a"_s, 1}}) << BookingStatus::unknown;
    }
    void bookingStatusNeverFails()
    {
        QFETCH(QJsonValue, status);
        QJsonObject o = bookingObject();
        o.insert(u"status"_s, status);
        const Result<Booking> b = fromJson<Booking>(o);
        QVERIFY(b.ok());
        QTEST(b->status, "expected");
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

    void unknownStatusDoesNotSurviveEncoding()
    {
        QJsonObject o = bookingObject();
        o.insert(u"status"_s, u"tentative"_s);
        const Booking b = fromJson<Booking>(o).value();
        QCOMPARE(toJson(b).toObject().value(u"status"_s).toString(), u"unknown"_s);
    }

    void accountIdIsANumber()
    {
        QVERIFY(JSON::decode<Account>(R"({"id":42,"email":"a@b.c"})").ok());
        QVERIFY(!JSON::decode<Account>(R"({"id":"42","email":"a@b.c"})").ok());
        const Result<Account> big = JSON::decode<Account>(R"({"id":9007199254740993,"email":"a@b.c", "google":{"connected":true},"links":[{"title":"Intro","minutes":30,"url":"https:\/\/x\/y"}]})");
        QVERIFY(big.ok());
        QCOMPARE(big->links->first().minutes, 30);
        QVERIFY(big->google->connected);
        QVERIFY(!big->name);
    }

    void strictRecordsRejectMissingFields_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<bool>("ok");
        QTest::newRow("poll") << QByteArray(R"({"id":"p","title":"T","minutes":30,"booked":false,"voters":[], "options":[{"start":"2026-03-10T14:00:00Z","votes":2}]})") << true;
        QTest::newRow("poll without voters") << QByteArray(R"({"id":"p","title":"T","minutes":30,"booked":false, "options":[]})") << false;
        QTest::newRow("calendar") << QByteArray(R"({"id":"c","primary":true,"writable":false})") << true;
        QTest::newRow("calendar without writable") << QByteArray(R"({"id":"c","primary":true})") << false;
    }
    void strictRecordsRejectMissingFields()
    {
        QFETCH(QByteArray, json);
        const bool decoded = json.contains("\"options\"") ? JSON::decode<Poll>(json).ok()
                                                          : JSON::decode<CalendarItem>(json).ok();
        QTEST(decoded, "ok");
    }

    void googleStatusKeepsConnectedAtAsText()
    {
        const Result<GoogleStatus> g = JSON::decode<GoogleStatus>(
            R"({"connected":true,"connectedAt":"last tuesday","calendars":[{"id":"primary","primary":true,"writable":true}]})");
        QVERIFY(g.ok());
        QCOMPARE(*g->connectedAt, u"last tuesday"_s);
        QCOMPARE(g->calendars->size(), 1);
    }

    void slotListAndReleaseInfo()
    {
        const Result<SlotList> l = JSON::decode<SlotList>(R"({"type":"intro","mode":"smart","slots":[ {"start":"2026-03-10T14:00:00.5Z","end":"2026-03-10T14:30:00Z","score":-3}]})");
        QVERIFY(l.ok());
        QVERIFY(!l->link);
        QCOMPARE(l->slots.first().score, -3);
        QCOMPARE(l->slots.first().start.time().msec(), 500);
        QVERIFY(!JSON::decode<SlotList>(R"({"type":"intro","slots":[]})").ok());
        QVERIFY(JSON::decode<ReleaseInfo>(R"({"version":"2.1","size":1024,"filename":"q.AppImage"})").ok());
        QVERIFY(!JSON::decode<ReleaseInfo>(R"({"version":"2.1","size":"1024","filename":"q"})").ok());
    }

    void snapshotRequiresItsLists()
    {
        QVERIFY(JSON::decode<Snapshot>(R"({"upcoming":[],"history":[],"polls":[],"savedAt":"2026-03-10T14:00:00Z"})").ok());
        QVERIFY(!JSON::decode<Snapshot>(R"({"upcoming":[],"history":[],"polls":[]})").ok());
        QVERIFY(!JSON::decode<Snapshot>(R"({"upcoming":[],"polls":[],"savedAt":"2026-03-10T14:00:00Z"})").ok());
        const Snapshot fresh;
        QCOMPARE(fresh.savedAt, distantPast());
        QCOMPARE(JSON::encode(fresh),
                 QByteArray(R"({"history":[],"polls":[],"savedAt":"0001-01-01T00:00:00Z","upcoming":[]})"));
    }

    void timeRangeDurationIsNotClamped()
    {
        QCOMPARE((TimeRange{600, 540}).duration(), -60);
        QCOMPARE(qHash(TimeRange{1, 2}), qHash(TimeRange{1, 2}));
    }

    void meetingLocationTable()
    {
        QCOMPARE(Location::allCases().size(), 4);
        QCOMPARE(Location::label(MeetingLocation::in_person), u"In person"_s);
        QCOMPARE(Location::symbol(MeetingLocation::custom), u"text.bubble.fill"_s);
        QVERIFY(!fromJson<MeetingLocation>(QJsonValue(u"zoom"_s)).ok());
        QVERIFY(!Location::fromRawValue(u"Meet"_s));
    }
};

QTEST_GUILESS_MAIN(TestRecords)
#include "tst_records.moc"
