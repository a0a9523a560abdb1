// The bookings screen's logic: what each filter and search shows, the days, the guest's time,
// and what a booking offers at a moment.
#include "bookings/Bookings.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;
using Bookings::Filter;

Q_DECLARE_METATYPE(Bookings::Filter)
Q_DECLARE_METATYPE(quorvane::Booking)

namespace {

// Tuesday 2026-03-10, 09:40 in New York.
const Instant now(QDate(2026, 3, 10), QTime(13, 40), Qt::UTC);
const QString ny = u"America/New_York"_s;

// A booking `minutes` long starting `fromNow` minutes from now.
Booking booking(const QString &id, int fromNow, BookingStatus status = BookingStatus::confirmed, int minutes = 30)
{
    Booking b;
    b.id = id;
    b.type = u"consult"_s;
    b.start = now.addSecs(fromNow * 60);
    b.end = b.start.addSecs(minutes * 60);
    b.name = u"Guest "_s + id;
    b.email = id + u"@example.com"_s;
    b.tz = ny;
    b.status = status;
    b.meet = u"https://meet.google.com/abc-defg-hij"_s;
    return b;
}

QString title(const QString &slug)
{
    return slug == u"consult"_s ? u"Consultation"_s : u"Meeting"_s;
}

QStringList ids(const QList<Booking> &list)
{
    QStringList out;
    for (const Booking &b : list)
        out << b.id;
    return out;
}

} // namespace

class TestBookingsLogic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The model's list is newest first; only `upcoming` sorts.
    void filters_data()
    {
        QTest::addColumn<Filter>("filter");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("upcoming: soonest first, the running one included")
            << Filter::upcoming << QStringList{u"running"_s, u"later"_s};
        QTest::newRow("past: ended and confirmed, an end at now too")
            << Filter::past << QStringList{u"endsNow"_s, u"ended"_s};
        QTest::newRow("cancelled") << Filter::cancelled << QStringList{u"cancelled"_s};
        QTest::newRow("all: the pending one that ended too")
            << Filter::all
            << QStringList{u"later"_s, u"cancelled"_s, u"running"_s, u"endsNow"_s, u"ended"_s, u"pendingEnded"_s};
    }
    void filters()
    {
        QFETCH(Filter, filter);
        const QList<Booking> all = {
            booking(u"later"_s, 24 * 60), booking(u"cancelled"_s, 60, BookingStatus::cancelled),
            booking(u"running"_s, -10),   booking(u"endsNow"_s, -30),
            booking(u"ended"_s, -120),    booking(u"pendingEnded"_s, -180, BookingStatus::pending),
        };
        QTEST(ids(Bookings::filtered(all, filter, std::nullopt, {}, now, u"en_US"_s, title)), "shown");
    }

    void search_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("query");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("a type that is gone reads Meeting") << u"en_US"_s << u"meeting"_s << QStringList{u"b"_s};
        QTest::newRow("an address's domain") << u"en_US"_s << u"LUMEN"_s << QStringList{u"a"_s};
        QTest::newRow("the notes") << u"en_US"_s << u"q1 numbers"_s << QStringList{u"b"_s};
        QTest::newRow("across name and address") << u"en_US"_s << u"Lee ann@"_s << QStringList{u"a"_s};
        QTest::newRow("as typed, blanks kept") << u"en_US"_s << u" ann "_s << QStringList{};
        QTest::newRow("Turkish dotted capital I") << u"tr_TR"_s << u"istanbul"_s << QStringList{u"b"_s};
        QTest::newRow("dotless i is another letter in Turkish") << u"tr_TR"_s << u"ıstanbul"_s << QStringList{};
    }
    void search()
    {
        QFETCH(QString, locale);
        QFETCH(QString, query);
        Booking a = booking(u"a"_s, 60);
        a.name = u"Ann Lee"_s;
        a.email = u"ann@lumenfield.io"_s;
        Booking b = booking(u"b"_s, 120);
        b.type = u"retired"_s;
        b.name = u"Deniz Kaya"_s;
        b.notes = u"Bring the Q1 numbers from İSTANBUL"_s;
        QTEST(ids(Bookings::filtered({a, b}, Filter::all, std::nullopt, query, now, locale, title)), "shown");
    }

    // A type whose bookings are all past leaves `upcoming` empty: the screen's empty panel.
    void typeFilter()
    {
        Booking past = booking(u"past"_s, -300);
        past.type = u"intro"_s;
        const QList<Booking> all = {booking(u"coming"_s, 60), past};
        const std::optional<QString> intro = u"intro"_s;
        QVERIFY(Bookings::filtered(all, Filter::upcoming, intro, {}, now, u"en_US"_s, title).isEmpty());
        QCOMPARE(ids(Bookings::filtered(all, Filter::past, intro, {}, now, u"en_US"_s, title)), QStringList{u"past"_s});
        QCOMPARE(Bookings::emptyState(Filter::upcoming, {}).title, u"No upcoming bookings"_s);
        QCOMPARE(Bookings::emptyState(Filter::all, {}).title, u"No all bookings"_s);
        QCOMPARE(Bookings::emptyState(Filter::all, u"zed"_s).title, u"No results for \u201Czed\u201D"_s);
    }

    // Days by New York's calendar: 23:30 there is already tomorrow in UTC.
    void days()
    {
        const QList<Booking> list = {booking(u"tonight"_s, 13 * 60 + 50), booking(u"tomorrow"_s, 24 * 60),
                                     booking(u"yesterday"_s, -24 * 60)};
        const auto days = [&](Filter filter) {
            QStringList out;
            for (const Bookings::Day &day : Bookings::grouped(list, filter, WeekCalendar(u"en_US"_s, ny)))
                out << day.day.toString(Qt::ISODate) + u':' + ids(day.bookings).join(u',');
            return out;
        };
        QCOMPARE(days(Filter::upcoming),
                 (QStringList{u"2026-03-09:yesterday"_s, u"2026-03-10:tonight"_s, u"2026-03-11:tomorrow"_s}));
        QCOMPARE(days(Filter::past),
                 (QStringList{u"2026-03-11:tomorrow"_s, u"2026-03-10:tonight"_s, u"2026-03-09:yesterday"_s}));
    }

    void theirTime_data()
    {
        QTest::addColumn<QString>("tz");
        QTest::addColumn<QString>("shown");
        QTest::newRow("their zone") << u"Europe/Berlin"_s << u"Mar 10, 2026, 2:40\u202FPM (Europe/Berlin)"_s;
        QTest::newRow("blanks for underscores") << ny << u"Mar 10, 2026, 9:40\u202FAM (America/New York)"_s;
        QTest::newRow("an unknown zone shows the host's")
            << u"Mars/Olympus"_s << u"Mar 10, 2026, 1:40\u202FPM (Etc/UTC)"_s;
    }
    void theirTime()
    {
        QFETCH(QString, tz);
        Booking b = booking(u"a"_s, 0);
        b.tz = tz;
        QTEST(Bookings::theirTime(b, u"en_US"_s, u"Etc/UTC"_s), "shown");
    }

    void emailLabel()
    {
        QCOMPARE(Bookings::emailLabel(u"  Ann   Lee "_s), u"Email Ann"_s);
        QCOMPARE(Bookings::emailLabel(u"   "_s), u"Email "_s);
    }

    void actions_data()
    {
        QTest::addColumn<Booking>("booking");
        QTest::addColumn<bool>("join");
        QTest::addColumn<bool>("reschedule"); // and cancel
        QTest::addColumn<bool>("noShow");
        Booking noLink = booking(u"a"_s, 60);
        noLink.meet = u"not a link at all"_s;
        QTest::newRow("running") << booking(u"a"_s, -10) << true << true << false;
        QTest::newRow("to come, without a usable link") << noLink << false << true << false;
        QTest::newRow("cancelled") << booking(u"a"_s, 60, BookingStatus::cancelled) << false << false << false;
        QTest::newRow("ended") << booking(u"a"_s, -60) << true << false << true;
        QTest::newRow("pending, ended") << booking(u"a"_s, -60, BookingStatus::pending) << true << false << false;
    }
    void actions()
    {
        QFETCH(Booking, booking);
        const Bookings::Actions a = Bookings::actions(booking, now);
        QTEST(a.join, "join");
        QTEST(a.reschedule, "reschedule");
        QTEST(a.noShow, "noShow");
        // The detail pane's join button needs the meeting still ahead.
        QCOMPARE(Bookings::joinsFromDetail(booking, now), a.join && a.reschedule);
    }
};

QTEST_APPLESS_MAIN(TestBookingsLogic)
#include "tst_bookings_logic.moc"
