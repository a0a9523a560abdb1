// The Insights screen's numbers: what counts as what, the weekly window, rankings and their ties,
// and weeks and hours across daylight saving.
#include "Insights.h"
#include "TimeFixtures.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;
using test::at;

namespace {

Booking booking(const QString &id, const Instant &start, BookingStatus status = BookingStatus::confirmed,
                const QString &type = u"intro"_s)
{
    Booking b;
    b.id = id;
    b.type = type;
    b.start = start;
    b.end = start.addSecs(30 * 60);
    b.status = status;
    return b;
}

const WeekCalendar newYork(u"en_US"_s, u"America/New_York"_s);
// Wednesday 14 January 2026, noon in New York; that week starts on Sunday 11 January.
const Instant now = at("2026-01-14T17:00:00Z");

} // namespace

class TestInsights : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyAndZeroWeeks()
    {
        const Insights empty = Insights::compute({}, now, 12, newYork);
        QCOMPARE(empty.total, 0);
        QVERIFY(empty.heatmap.isEmpty() && empty.byType.isEmpty());
        QCOMPARE(empty.busiestDay, std::nullopt);
        QCOMPARE(empty.busiestHour, std::nullopt);
        QCOMPARE(empty.weeks.size(), 12);
        // Oldest first; the oldest week began in daylight time, the current one in standard time.
        QCOMPARE(empty.weeks.first().start, at("2025-10-26T04:00:00Z"));
        QCOMPARE(empty.weeks.last().start, at("2026-01-11T05:00:00Z"));
        QVERIFY(std::all_of(empty.weeks.cbegin(), empty.weeks.cend(), [](const auto &w) { return w.count == 0; }));

        const Insights noWindow = Insights::compute({booking(u"a"_s, now)}, now, 0, newYork);
        QCOMPARE((std::pair{noWindow.weeks.size(), noWindow.heatmap.size()}), (std::pair{qsizetype(0), qsizetype(1)}));
    }

    // One booking as "confirmed cancelled noShows upcoming charted", where charted means it counts
    // in the heatmap, the types and the current week.
    void counts()
    {
        const auto counted = [](BookingStatus status, int startMinutes, bool noShow = false) {
            Booking b = booking(u"b1"_s, now.addSecs(startMinutes * 60), status);
            if (noShow)
                b.noShow = true;
            const Insights r = Insights::compute({b}, now, 12, newYork);
            const qsizetype charted = r.heatmap.size();
            const bool agree = r.total == 1 && r.byType.size() == charted && r.weeks.last().count == charted;
            return agree ? u"%1 %2 %3 %4 %5"_s.arg(r.confirmed)
                               .arg(r.cancelled)
                               .arg(r.noShows)
                               .arg(r.upcoming)
                               .arg(charted)
                         : u"charts disagree"_s;
        };
        using S = BookingStatus;
        QCOMPARE(counted(S::confirmed, -120), u"1 0 0 0 1"_s);
        QCOMPARE(counted(S::confirmed, -30), u"0 0 0 1 1"_s); // ends now: still upcoming
        QCOMPARE(counted(S::pending, -120), u"0 0 0 0 1"_s);
        QCOMPARE(counted(S::cancelled, -120, true), u"0 1 1 0 0"_s);
        QCOMPARE(counted(S::rejected, 600), u"0 0 0 0 0"_s);
        QCOMPARE(counted(S::unknown, 600), u"0 0 0 0 1"_s);
    }

    void firstDuplicateWins()
    {
        const Instant past = now.addDays(-1);
        const Insights r = Insights::compute({booking(u"a"_s, past, BookingStatus::cancelled), booking(u"b"_s, past),
                                              booking(u"a"_s, past), booking(u"b"_s, past)},
                                             now, 12, newYork);
        QCOMPARE((std::tuple{r.total, r.cancelled, r.confirmed, r.weeks.last().count}), (std::tuple{2, 1, 1, 1}));
    }

    void window()
    {
        // Start → index of its week in the window, or -1. Outside the window a booking still
        // counts everywhere else.
        const QList<std::pair<const char *, int>> cases{{"2026-01-17T15:00:00Z", 11}, {"2026-01-11T05:00:00Z", 11},
                                                        {"2026-01-11T04:59:59Z", 10}, {"2025-10-27T15:00:00Z", 0},
                                                        {"2025-10-20T15:00:00Z", -1}, {"2026-01-19T15:00:00Z", -1}};
        for (const auto &[start, bucket] : cases) {
            const Insights r = Insights::compute({booking(u"a"_s, at(start))}, now, 12, newYork);
            for (qsizetype i = 0; i < r.weeks.size(); ++i)
                QCOMPARE(r.weeks[i].count, i == bucket ? 1 : 0);
            QCOMPARE((std::pair{r.heatmap.size(), r.byType.size()}), (std::pair{qsizetype(1), qsizetype(1)}));
        }
    }

    void rankingAndTies()
    {
        // Wednesday 15:00 and type b come first in the list, yet the lower weekday, the earlier
        // hour and the lower slug must win the ties.
        const QList<std::pair<const char *, const char *>> rows{
            {"2026-01-07T20:00:00Z", "b"}, {"2026-01-07T20:00:00Z", "b"}, {"2026-01-07T14:00:00Z", "b"},
            {"2026-01-05T14:00:00Z", "a"}, {"2026-01-05T14:00:00Z", "a"}, {"2026-01-05T20:00:00Z", "a"},
            {"2026-01-09T17:00:00Z", "z"}, {"2026-01-09T18:00:00Z", "z"}, {"2026-01-10T17:00:00Z", "z"},
            {"2026-01-10T17:00:00Z", "z"}, {"2026-01-10T18:00:00Z", "c"}};
        QList<Booking> list;
        for (const auto &[start, type] : rows)
            list.append(
                booking(QString::number(list.size()), at(start), BookingStatus::confirmed, QString::fromLatin1(type)));
        const Insights r = Insights::compute(list, now, 12, newYork);
        QCOMPARE(r.byType, (QList<Insights::TypeCount>{{u"z"_s, 4}, {u"a"_s, 3}, {u"b"_s, 3}, {u"c"_s, 1}}));
        QCOMPARE(r.busiestDay, 2);  // Monday, Wednesday and Saturday have three each
        QCOMPARE(r.busiestHour, 9); // 09, 12 and 15 have three each
        QCOMPARE(r.heatmap, (QList<Insights::Cell>{{2, 9, 2},
                                                   {2, 15, 1},
                                                   {4, 9, 1},
                                                   {4, 15, 2},
                                                   {6, 12, 1},
                                                   {6, 13, 1},
                                                   {7, 12, 2},
                                                   {7, 13, 1}}));
        QCOMPARE(r.weeks.at(10).count, 11);
    }

    void daylightSavingAndMondayFirst()
    {
        // Saturday 23:30 and Sunday 00:30 on each side of the spring-forward of 8 March.
        QList<Booking> list;
        for (const char *start :
             {"2026-03-08T04:30:00Z", "2026-03-08T05:30:00Z", "2026-03-15T03:30:00Z", "2026-03-15T04:15:00Z"})
            list.append(booking(QString::number(list.size()), at(start)));
        const Insights ny = Insights::compute(list, at("2026-03-18T16:00:00Z"), 3, newYork);
        QCOMPARE(ny.weeks, (QList<Insights::Week>{{at("2026-03-01T05:00:00Z"), 1},
                                                  {at("2026-03-08T05:00:00Z"), 2},
                                                  {at("2026-03-15T04:00:00Z"), 1}}));
        QCOMPARE(ny.heatmap, (QList<Insights::Cell>{{1, 0, 2}, {7, 23, 2}}));

        // Sunday 10:00 ends the older week, Monday 00:30 starts the newer; weekdays stay Sunday-based.
        const WeekCalendar berlin(u"de_DE"_s, u"Europe/Berlin"_s);
        const Insights de = Insights::compute(
            {booking(u"sun"_s, at("2026-01-11T09:00:00Z")), booking(u"mon"_s, at("2026-01-11T23:30:00Z"))}, now, 2,
            berlin);
        QCOMPARE(de.weeks, (QList<Insights::Week>{{at("2026-01-04T23:00:00Z"), 1}, {at("2026-01-11T23:00:00Z"), 1}}));
        QCOMPARE(de.heatmap, (QList<Insights::Cell>{{1, 10, 1}, {2, 0, 1}}));
    }

    void ratesAndEquality()
    {
        Insights i;
        QCOMPARE((std::pair{i.cancelRate(), i.noShowRate()}), (std::pair{0.0, 0.0}));
        i.total = 10;
        i.cancelled = 5;
        i.noShows = 2;
        i.confirmed = 4; // the base of the no-show rate, not total
        QCOMPARE((std::pair{i.cancelRate(), i.noShowRate()}), (std::pair{0.5, 0.5}));

        // Only total, weeks, heatmap, cancelled and no-shows count.
        Insights other = i;
        other.confirmed = other.upcoming = 99;
        other.byType = {{u"x"_s, 1}};
        other.busiestDay = other.busiestHour = 3;
        QVERIFY(other == i);
        other.weeks = {{now, 0}};
        QVERIFY(!(other == i));
        other = i;
        ++other.noShows;
        QVERIFY(!(other == i));
    }
};

QTEST_APPLESS_MAIN(TestInsights)
#include "tst_insights.moc"
