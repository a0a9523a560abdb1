#include "NotificationPlan.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

// Tuesday 4 March 2025, 14:00 in New York (before the clocks change there).
const Instant now = QDateTime(QDate(2025, 3, 4), QTime(19, 0), Qt::UTC);
const QString locale = u"en_US"_s;
const QString zone = u"America/New_York"_s;
const QHash<QString, QString> titles{{u"intro"_s, u"Intro Call"_s}};

Booking booking(const QString &id, qint64 startsIn, BookingStatus status = BookingStatus::confirmed)
{
    Booking b;
    b.id = id;
    b.type = u"intro"_s;
    b.start = now.addSecs(startsIn);
    b.end = b.start.addSecs(1800);
    b.name = u"Ann Lee"_s;
    b.status = status;
    return b;
}

} // namespace

class NotificationPlanTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reminder_data()
    {
        QTest::addColumn<int>("minutes");
        QTest::addColumn<qint64>("startsIn");
        QTest::addColumn<BookingStatus>("status");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("name");
        QTest::addColumn<qint64>("firesIn"); // -1: no reminder
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("body");
        const qint64 hour = 3600;
        const QString annIn5 = u"Intro Call with Ann Lee in 5 min"_s;
        const auto row = [](const char *name, int minutes, qint64 startsIn, BookingStatus status, qint64 firesIn,
                            const QString &title = {}, const QString &body = {}, const QString &type = u"intro"_s,
                            const QString &guest = u"Ann Lee"_s) {
            QTest::newRow(name) << minutes << startsIn << status << type << guest << firesIn << title << body;
        };
        using S = BookingStatus;
        row("an hour ahead, pending", 5, hour, S::pending, hour - 300, annIn5, u"3:00\u202FPM"_s);
        row("just inside 48 hours", 5, 48 * hour + 299, S::confirmed, 48 * hour - 1, annIn5, u"2:04\u202FPM"_s);
        row("exactly 48 hours", 5, 48 * hour + 300, S::confirmed, -1);
        row("starts within the lead", 5, 180, S::confirmed, -1);
        row("would fire right now", 5, 300, S::confirmed, -1);
        row("zero minutes fire one ahead", 0, 600, S::confirmed, 540, u"Intro Call with Ann Lee in 0 min"_s,
            u"2:10\u202FPM"_s);
        row("negative minutes fire one ahead", -5, 600, S::confirmed, 540, u"Intro Call with Ann Lee in -5 min"_s,
            u"2:10\u202FPM"_s);
        row("cancelled", 5, hour, S::cancelled, -1);
        row("type no longer exists", 5, hour, S::confirmed, hour - 300, u"Meeting with Ann Lee in 5 min"_s,
            u"3:00\u202FPM"_s, u"gone"_s);
        row("placeholders in a name stay text", 5, hour, S::confirmed, hour - 300, u"Intro Call with Bo %1 %3 in 5 min"_s,
            u"3:00\u202FPM"_s, u"intro"_s, u"Bo %1 %3"_s);
    }
    void reminder()
    {
        QFETCH(int, minutes);
        QFETCH(qint64, startsIn);
        QFETCH(BookingStatus, status);
        QFETCH(QString, type);
        QFETCH(QString, name);
        QFETCH(qint64, firesIn);
        Booking b = booking(u"b1"_s, startsIn, status);
        b.type = type;
        b.name = name;
        const auto planned = NotificationPlan::reminders({b}, now, minutes, titles, locale, zone);
        if (firesIn < 0) {
            QVERIFY2(planned.isEmpty(), qPrintable(planned.value(0).title));
            return;
        }
        QCOMPARE(planned.size(), 1);
        QCOMPARE(planned[0].fireAt, now.addSecs(firesIn));
        QTEST(planned[0].title, "title");
        QTEST(planned[0].body, "body");
    }

    void remindersKeepOrderAndCarryTheBooking()
    {
        Booking later = booking(u"later"_s, 7200);
        later.meet = u"https://meet.google.com/abc-defg-hij"_s;
        Booking emptyLink = booking(u"empty"_s, 5400);
        emptyLink.meet = QString();
        const auto planned =
            NotificationPlan::reminders({later, booking(u"sooner"_s, 3600), emptyLink}, now, 10, titles, locale, zone);
        QCOMPARE(planned.size(), 3);
        QStringList identifiers;
        for (const auto &r : planned) {
            identifiers.append(r.identifier);
            QCOMPARE(r.category, NotificationCategory::meeting);
        }
        QCOMPARE(identifiers, (QStringList{u"soon-later"_s, u"soon-sooner"_s, u"soon-empty"_s}));
        QCOMPARE((std::pair{planned[0].bookingID, planned[0].meet}), (std::pair{u"later"_s, *later.meet}));
        QCOMPARE(planned[0].body, u"4:00\u202FPM \u00B7 Google Meet"_s);
        QCOMPARE(planned[1].meet, QString());
        QCOMPARE(planned[1].body, u"3:00\u202FPM"_s);
        // A link the server sent empty is still a link as far as the text goes.
        QCOMPARE(planned[2].body, u"3:30\u202FPM \u00B7 Google Meet"_s);
    }

    void announcement_data()
    {
        QTest::addColumn<bool>("booked");
        QTest::addColumn<QString>("meet");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("zone");
        QTest::addColumn<QString>("identifier");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("body");
        QTest::newRow("booked") << true << QString() << locale << zone << u"chg-b1-b"_s << u"New booking: Ann Lee"_s
                                << u"Intro Call \u00B7 Tue, Mar 4, 3:00\u202FPM"_s;
        QTest::newRow("cancelled") << false << u"https://meet.google.com/x"_s << locale << zone << u"chg-b1-c"_s
                                   << u"Cancelled: Ann Lee"_s
                                   << u"Intro Call \u00B7 Tue, Mar 4, 3:00\u202FPM was cancelled"_s;
        QTest::newRow("another locale and zone") << true << QString() << u"en_GB"_s << u"Asia/Tokyo"_s << u"chg-b1-b"_s
                                                 << u"New booking: Ann Lee"_s << u"Intro Call \u00B7 Wed, 5 Mar, 05:00"_s;
    }
    void announcement()
    {
        QFETCH(bool, booked);
        QFETCH(QString, meet);
        QFETCH(QString, locale);
        QFETCH(QString, zone);
        ChangeEvent event{booked ? ChangeEvent::Kind::booked : ChangeEvent::Kind::cancelled, booking(u"b1"_s, 3600)};
        if (!meet.isEmpty())
            event.booking.meet = meet;
        const auto request = NotificationPlan::announcement(event, u"Intro Call"_s, locale, zone);
        QTEST(request.identifier, "identifier");
        QTEST(request.title, "title");
        QTEST(request.body, "body");
        QCOMPARE(request.category, NotificationCategory::booking);
        QCOMPARE((std::pair{request.bookingID, request.meet}), (std::pair{u"b1"_s, meet}));
        QVERIFY(!request.fireAt);
    }
};

QTEST_GUILESS_MAIN(NotificationPlanTest)
#include "tst_notification_plan.moc"
