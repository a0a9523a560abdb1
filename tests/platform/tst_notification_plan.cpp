// What the notifications say and when reminders fire, for any locale and zone.
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

// A request as "identifier | seconds from now it fires | title | body".
QString show(const NotificationRequest &r)
{
    const QString fires = r.fireAt ? QString::number(now.secsTo(*r.fireAt)) : u"at once"_s;
    return QStringList{r.identifier, fires, r.title, r.body}.join(u" | "_s);
}

} // namespace

class NotificationPlanTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A reminder fires `minutes` ahead (at least one), after now and within 48 hours, for active
    // bookings only. A type that no longer exists is a meeting; placeholders in a name stay text.
    void reminder()
    {
        const auto plan = [](int minutes, const Booking &b) {
            const auto planned = NotificationPlan::reminders({b}, now, minutes, titles, locale, zone);
            return planned.size() == 1 ? show(planned[0]) : u"%1 reminders"_s.arg(planned.size());
        };
        const qint64 hour = 3600;
        QCOMPARE(plan(5, booking(u"b1"_s, hour, BookingStatus::pending)),
                 u"soon-b1 | 3300 | Intro Call with Ann Lee in 5 min | 3:00\u202FPM"_s);
        QCOMPARE(plan(5, booking(u"b1"_s, 48 * hour + 299)),
                 u"soon-b1 | 172799 | Intro Call with Ann Lee in 5 min | 2:04\u202FPM"_s);
        QCOMPARE(plan(5, booking(u"b1"_s, 48 * hour + 300)), u"0 reminders"_s);
        QCOMPARE(plan(5, booking(u"b1"_s, 300)), u"0 reminders"_s); // would fire right now
        QCOMPARE(plan(0, booking(u"b1"_s, 600)), u"soon-b1 | 540 | Intro Call with Ann Lee in 0 min | 2:10\u202FPM"_s);
        QCOMPARE(plan(5, booking(u"b1"_s, hour, BookingStatus::cancelled)), u"0 reminders"_s);
        Booking b = booking(u"b1"_s, hour);
        b.type = u"gone"_s;
        b.name = u"Bo %1 %3"_s;
        QCOMPARE(plan(5, b), u"soon-b1 | 3300 | Meeting with Bo %1 %3 in 5 min | 3:00\u202FPM"_s);
    }

    // In the user's locale and zone, whatever the machine's.
    void announcementInTheUsersLocale()
    {
        const ChangeEvent booked{ChangeEvent::Kind::booked, booking(u"b1"_s, 3600)};
        QCOMPARE(show(NotificationPlan::announcement(booked, u"Intro Call"_s, u"en_GB"_s, u"Asia/Tokyo"_s)),
                 u"chg-b1-b | at once | New booking: Ann Lee | Intro Call \u00B7 Wed, 5 Mar, 05:00"_s);
    }
};

QTEST_GUILESS_MAIN(NotificationPlanTest)
#include "tst_notification_plan.moc"
