#include "NotificationPlan.h"

#include <QTest>

using namespace quorvane;

namespace {

// Tuesday 4 March 2025, 14:00 in New York (before the clocks change there).
const Instant now = QDateTime(QDate(2025, 3, 4), QTime(19, 0), Qt::UTC);
const QString locale = QStringLiteral("en_US");
const QString zone = QStringLiteral("America/New_York");
const QHash<QString, QString> titles{{QStringLiteral("intro"), QStringLiteral("Intro Call")}};

Booking booking(const QString &id, qint64 startsIn, BookingStatus status = BookingStatus::confirmed)
{
    Booking b;
    b.id = id;
    b.type = QStringLiteral("intro");
    b.start = now.addSecs(startsIn);
    b.end = b.start.addSecs(1800);
    b.name = QStringLiteral("Ann Lee");
    b.status = status;
    return b;
}

} // namespace

class NotificationPlanTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void reminder_data();
    void reminder();
    void remindersKeepOrderAndCarryTheBooking();
    void announcement_data();
    void announcement();
};

void NotificationPlanTest::reminder_data()
{
    QTest::addColumn<int>("minutes");
    QTest::addColumn<qint64>("startsIn");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("name");
    QTest::addColumn<qint64>("firesIn"); // -1: no reminder
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("body");

    const int confirmed = int(BookingStatus::confirmed);
    const QString intro = QStringLiteral("intro");
    const QString ann = QStringLiteral("Ann Lee");
    const QString annTitle = QStringLiteral("Intro Call with Ann Lee in 5 min");
    const QString threePM = QStringLiteral("3:00\u202FPM");
    const qint64 hour = 3600;

    QTest::newRow("an hour ahead, pending") << 5 << hour << int(BookingStatus::pending) << intro << ann << hour - 300 << annTitle << threePM;
    QTest::newRow("47 hours ahead") << 5 << 47 * hour << confirmed << intro << ann << 47 * hour - 300 << annTitle
                                    << QStringLiteral("1:00\u202FPM");
    QTest::newRow("49 hours ahead") << 5 << 49 * hour << confirmed << intro << ann << qint64(-1) << QString()
                                    << QString();
    QTest::newRow("just inside 48 hours") << 5 << 48 * hour + 299 << confirmed << intro << ann << 48 * hour - 1
                                          << annTitle << QStringLiteral("2:04\u202FPM");
    QTest::newRow("exactly 48 hours") << 5 << 48 * hour + 300 << confirmed << intro << ann << qint64(-1)
                                      << QString() << QString();
    QTest::newRow("starts within the lead") << 5 << qint64(180) << confirmed << intro << ann << qint64(-1)
                                            << QString() << QString();
    QTest::newRow("would fire right now") << 5 << qint64(300) << confirmed << intro << ann << qint64(-1)
                                          << QString() << QString();
    QTest::newRow("zero minutes fire one ahead")
        << 0 << qint64(600) << confirmed << intro << ann << qint64(540)
        << QStringLiteral("Intro Call with Ann Lee in 0 min") << QStringLiteral("2:10\u202FPM");
    QTest::newRow("negative minutes fire one ahead")
        << -5 << qint64(600) << confirmed << intro << ann << qint64(540)
        << QStringLiteral("Intro Call with Ann Lee in -5 min") << QStringLiteral("2:10\u202FPM");
    QTest::newRow("cancelled") << 5 << hour << int(BookingStatus::cancelled) << intro << ann << qint64(-1)
                               << QString() << QString();
    QTest::newRow("unknown status") << 5 << hour << int(BookingStatus::unknown) << intro << ann << qint64(-1)
                                    << QString() << QString();
    QTest::newRow("type no longer exists")
        << 5 << hour << confirmed << QStringLiteral("gone") << ann << hour - 300
        << QStringLiteral("Meeting with Ann Lee in 5 min") << threePM;
    QTest::newRow("placeholders in a name stay text")
        << 5 << hour << confirmed << intro << QStringLiteral("Bo %1 %3") << hour - 300
        << QStringLiteral("Intro Call with Bo %1 %3 in 5 min") << threePM;
}

void NotificationPlanTest::reminder()
{
    QFETCH(int, minutes);
    QFETCH(qint64, startsIn);
    QFETCH(int, status);
    QFETCH(QString, type);
    QFETCH(QString, name);
    QFETCH(qint64, firesIn);
    QFETCH(QString, title);
    QFETCH(QString, body);

    Booking b = booking(QStringLiteral("b1"), startsIn, BookingStatus(status));
    b.type = type;
    b.name = name;
    const auto planned = NotificationPlan::reminders({b}, now, minutes, titles, locale, zone);

    if (firesIn < 0) {
        QVERIFY2(planned.isEmpty(), qPrintable(planned.value(0).title));
        return;
    }
    QCOMPARE(planned.size(), 1);
    QCOMPARE(planned[0].fireAt, now.addSecs(firesIn));
    QCOMPARE(planned[0].title, title);
    QCOMPARE(planned[0].body, body);
}

void NotificationPlanTest::remindersKeepOrderAndCarryTheBooking()
{
    Booking later = booking(QStringLiteral("later"), 7200);
    later.meet = QStringLiteral("https://meet.google.com/abc-defg-hij");
    Booking sooner = booking(QStringLiteral("sooner"), 3600);
    Booking emptyLink = booking(QStringLiteral("empty"), 5400);
    emptyLink.meet = QString();

    const auto planned = NotificationPlan::reminders({later, sooner, emptyLink}, now, 10, titles, locale, zone);

    QCOMPARE(planned.size(), 3);
    QCOMPARE(planned[0].identifier, QStringLiteral("soon-later"));
    QCOMPARE(planned[1].identifier, QStringLiteral("soon-sooner"));
    QCOMPARE(planned[2].identifier, QStringLiteral("soon-empty"));
    for (const auto &r : planned)
        QCOMPARE(r.category, NotificationCategory::meeting);
    QCOMPARE(planned[0].bookingID, QStringLiteral("later"));
    QCOMPARE(planned[0].meet, *later.meet);
    QCOMPARE(planned[0].body, QStringLiteral("4:00\u202FPM \u00B7 Google Meet"));
    QCOMPARE(planned[1].meet, QString());
    QCOMPARE(planned[1].body, QStringLiteral("3:00\u202FPM"));
    // A link the server sent empty is still a link as far as the text goes.
    QCOMPARE(planned[2].body, QStringLiteral("3:30\u202FPM \u00B7 Google Meet"));

    QVERIFY(NotificationPlan::reminders({}, now, 10, titles, locale, zone).isEmpty());
}

void NotificationPlanTest::announcement_data()
{
    QTest::addColumn<bool>("booked");
    QTest::addColumn<QString>("meet");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QString>("identifier");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("body");

    QTest::newRow("booked") << true << QString() << locale << zone << QStringLiteral("chg-b1-b")
                            << QStringLiteral("New booking: Ann Lee")
                            << QStringLiteral("Intro Call \u00B7 Tue, Mar 4, 3:00\u202FPM");
    QTest::newRow("cancelled") << false << QStringLiteral("https://meet.google.com/x") << locale << zone
                               << QStringLiteral("chg-b1-c") << QStringLiteral("Cancelled: Ann Lee")
                               << QStringLiteral("Intro Call \u00B7 Tue, Mar 4, 3:00\u202FPM was cancelled");
    QTest::newRow("another locale and zone")
        << true << QString() << QStringLiteral("en_GB") << QStringLiteral("Asia/Tokyo") << QStringLiteral("chg-b1-b")
        << QStringLiteral("New booking: Ann Lee") << QStringLiteral("Intro Call \u00B7 Wed, 5 Mar, 05:00");
}

void NotificationPlanTest::announcement()
{
    QFETCH(bool, booked);
    QFETCH(QString, meet);
    QFETCH(QString, locale);
    QFETCH(QString, zone);
    QFETCH(QString, identifier);
    QFETCH(QString, title);
    QFETCH(QString, body);

    ChangeEvent event;
    event.kind = booked ? ChangeEvent::Kind::booked : ChangeEvent::Kind::cancelled;
    event.booking = booking(QStringLiteral("b1"), 3600);
    if (!meet.isEmpty())
        event.booking.meet = meet;

    const auto request = NotificationPlan::announcement(event, QStringLiteral("Intro Call"), locale, zone);

    QCOMPARE(request.identifier, identifier);
    QCOMPARE(request.title, title);
    QCOMPARE(request.body, body);
    QCOMPARE(request.category, NotificationCategory::booking);
    QCOMPARE(request.bookingID, QStringLiteral("b1"));
    QCOMPARE(request.meet, meet);
    QVERIFY(!request.fireAt);
}

QTEST_GUILESS_MAIN(NotificationPlanTest)
#include "tst_notification_plan.moc"
