#include "Insights.h"
#include "TimeFixtures.h"

#include <QTest>

#include <functional>

using namespace quorvane;
using test::at;

namespace {

Booking booking(const QString &id, const Instant &start, BookingStatus status = BookingStatus::confirmed,
                const QString &type = QStringLiteral("intro"))
{
    Booking b;
    b.id = id;
    b.type = type;
    b.start = start;
    b.end = start.addSecs(30 * 60);
    b.name = QStringLiteral("Ann Lee");
    b.email = QStringLiteral("ann@example.com");
    b.tz = QStringLiteral("America/New_York");
    b.status = status;
    return b;
}

const WeekCalendar &newYork()
{
    static const WeekCalendar calendar(QStringLiteral("en_US"), QStringLiteral("America/New_York"));
    return calendar;
}

// Wednesday 14 January 2026, noon in New York; that week starts on Sunday 11 January.
const Instant now = at("2026-01-14T17:00:00Z");

using Mutation = std::function<void(Insights &)>;

} // namespace

class TestInsights : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyList();
    void zeroWeeks();
    void counts_data();
    void counts();
    void firstDuplicateWins();
    void window_data();
    void window();
    void rankingAndTies();
    void daylightSavingWeek();
    void mondayFirstCalendar();
    void rates_data();
    void rates();
    void equality_data();
    void equality();
};

void TestInsights::emptyList()
{
    const Insights result = Insights::compute({}, now, 12, newYork());
    QCOMPARE(result.total, 0);
    QVERIFY(result.heatmap.isEmpty());
    QVERIFY(result.byType.isEmpty());
    QCOMPARE(result.busiestDay, std::nullopt);
    QCOMPARE(result.busiestHour, std::nullopt);
    QCOMPARE(result.weeks.size(), 12);
    // Oldest first; the oldest week began in daylight time, the current one in standard time.
    QCOMPARE(result.weeks.first().start, at("2025-10-26T04:00:00Z"));
    QCOMPARE(result.weeks.last().start, at("2026-01-11T05:00:00Z"));
    for (const Insights::Week &week : result.weeks)
        QCOMPARE(week.count, 0);
}

void TestInsights::zeroWeeks()
{
    const Insights result = Insights::compute({booking(QStringLiteral("a"), now)}, now, 0, newYork());
    QVERIFY(result.weeks.isEmpty());
    QCOMPARE(result.total, 1);
    QCOMPARE(result.heatmap.size(), 1);
    QCOMPARE(result.busiestDay, 4);
}

void TestInsights::counts_data()
{
    QTest::addColumn<BookingStatus>("status");
    QTest::addColumn<int>("startMinutes"); // from now; every booking lasts 30 minutes
    QTest::addColumn<bool>("noShow");
    QTest::addColumn<QList<int>>("expected"); // confirmed, cancelled, noShows, upcoming, cells

    using S = BookingStatus;
    QTest::newRow("confirmed, over") << S::confirmed << -120 << false << QList<int>{1, 0, 0, 0, 1};
    QTest::newRow("confirmed, running") << S::confirmed << -10 << false << QList<int>{0, 0, 0, 1, 1};
    QTest::newRow("confirmed, ends now") << S::confirmed << -30 << false << QList<int>{0, 0, 0, 1, 1};
    QTest::newRow("pending, over") << S::pending << -120 << false << QList<int>{0, 0, 0, 0, 1};
    QTest::newRow("pending, ahead") << S::pending << 600 << false << QList<int>{0, 0, 0, 1, 1};
    QTest::newRow("cancelled no-show") << S::cancelled << -120 << true << QList<int>{0, 1, 1, 0, 0};
    QTest::newRow("confirmed no-show") << S::confirmed << -120 << true << QList<int>{1, 0, 1, 0, 1};
    QTest::newRow("rejected") << S::rejected << 600 << false << QList<int>{0, 0, 0, 0, 0};
    QTest::newRow("unknown, ahead") << S::unknown << 600 << false << QList<int>{0, 0, 0, 0, 1};
}

void TestInsights::counts()
{
    QFETCH(BookingStatus, status);
    QFETCH(int, startMinutes);
    QFETCH(bool, noShow);
    QFETCH(QList<int>, expected);

    Booking b = booking(QStringLiteral("b1"), now.addSecs(startMinutes * 60), status);
    if (noShow)
        b.noShow = true;
    const Insights result = Insights::compute({b}, now, 12, newYork());
    QCOMPARE(result.total, 1);
    const QList<int> actual{result.confirmed, result.cancelled, result.noShows, result.upcoming,
                            int(result.heatmap.size())};
    QCOMPARE(actual, expected);
    QCOMPARE(result.byType.size(), expected.last());
    QCOMPARE(result.weeks.last().count, expected.last());
}

void TestInsights::firstDuplicateWins()
{
    const Instant past = now.addDays(-1);
    const QList<Booking> list{booking(QStringLiteral("a"), past, BookingStatus::cancelled),
                              booking(QStringLiteral("b"), past), booking(QStringLiteral("a"), past),
                              booking(QStringLiteral("b"), past)};
    const Insights result = Insights::compute(list, now, 12, newYork());
    QCOMPARE(result.total, 2);
    QCOMPARE(result.cancelled, 1);
    QCOMPARE(result.confirmed, 1);
    QCOMPARE(result.weeks.last().count, 1);
}

void TestInsights::window_data()
{
    QTest::addColumn<Instant>("start");
    QTest::addColumn<int>("bucket"); // -1: in no bucket

    QTest::newRow("this week, over") << at("2026-01-12T15:00:00Z") << 11;
    QTest::newRow("this week, ahead") << at("2026-01-17T15:00:00Z") << 11;
    QTest::newRow("first moment of this week") << at("2026-01-11T05:00:00Z") << 11;
    QTest::newRow("last moment of last week") << at("2026-01-11T04:59:59Z") << 10;
    QTest::newRow("oldest week") << at("2025-10-27T15:00:00Z") << 0;
    QTest::newRow("12 weeks ago") << at("2025-10-20T15:00:00Z") << -1;
    QTest::newRow("13 weeks ago") << at("2025-10-13T15:00:00Z") << -1;
    QTest::newRow("next week") << at("2026-01-19T15:00:00Z") << -1;
}

void TestInsights::window()
{
    QFETCH(Instant, start);
    QFETCH(int, bucket);
    const Insights result = Insights::compute({booking(QStringLiteral("a"), start)}, now, 12, newYork());
    for (qsizetype i = 0; i < result.weeks.size(); ++i)
        QCOMPARE(result.weeks[i].count, i == bucket ? 1 : 0);
    // Outside the window a booking still counts everywhere else.
    QCOMPARE(result.heatmap.size(), 1);
    QCOMPARE(result.byType.size(), 1);
    QVERIFY(result.busiestDay.has_value());
}

void TestInsights::rankingAndTies()
{
    // Wednesday 15:00 comes first in the list, yet Monday and 09:00 must win the ties.
    const QList<std::tuple<const char *, const char *>> rows{
        {"2026-01-07T20:00:00Z", "b"}, {"2026-01-07T20:00:00Z", "b"}, {"2026-01-07T14:00:00Z", "b"},
        {"2026-01-05T14:00:00Z", "a"}, {"2026-01-05T14:00:00Z", "a"}, {"2026-01-05T20:00:00Z", "a"},
        {"2026-01-09T17:00:00Z", "z"}, {"2026-01-09T18:00:00Z", "z"}, {"2026-01-10T17:00:00Z", "z"},
        {"2026-01-10T17:00:00Z", "z"}, {"2026-01-10T18:00:00Z", "c"}};
    QList<Booking> list;
    for (const auto &[start, type] : rows)
        list.append(booking(QString::number(list.size()), at(start), BookingStatus::confirmed, QString::fromLatin1(type)));

    const Insights result = Insights::compute(list, now, 12, newYork());
    const QList<Insights::TypeCount> types{{QStringLiteral("z"), 4}, {QStringLiteral("a"), 3},
                                           {QStringLiteral("b"), 3}, {QStringLiteral("c"), 1}};
    QCOMPARE(result.byType, types);
    // Monday, Wednesday and Saturday have three each; hours 09, 12 and 15 three each.
    QCOMPARE(result.busiestDay, 2);
    QCOMPARE(result.busiestHour, 9);
    const QList<Insights::Cell> cells{{2, 9, 2}, {2, 15, 1}, {4, 9, 1}, {4, 15, 2},
                                      {6, 12, 1}, {6, 13, 1}, {7, 12, 2}, {7, 13, 1}};
    QCOMPARE(result.heatmap, cells);
    QCOMPARE(result.weeks.at(10).count, 11);
}

void TestInsights::daylightSavingWeek()
{
    const QList<Booking> list{
        booking(QStringLiteral("sat-est"), at("2026-03-08T04:30:00Z")), // Sat 7 Mar 23:30 EST
        booking(QStringLiteral("sun-est"), at("2026-03-08T05:30:00Z")), // Sun 8 Mar 00:30 EST
        booking(QStringLiteral("sat-edt"), at("2026-03-15T03:30:00Z")), // Sat 14 Mar 23:30 EDT
        booking(QStringLiteral("sun-edt"), at("2026-03-15T04:15:00Z")), // Sun 15 Mar 00:15 EDT
    };
    const Insights result = Insights::compute(list, at("2026-03-18T16:00:00Z"), 3, newYork());
    const QList<Insights::Week> weeks{{at("2026-03-01T05:00:00Z"), 1},
                                      {at("2026-03-08T05:00:00Z"), 2},
                                      {at("2026-03-15T04:00:00Z"), 1}};
    QCOMPARE(result.weeks, weeks);
    const QList<Insights::Cell> cells{{1, 0, 2}, {7, 23, 2}};
    QCOMPARE(result.heatmap, cells);
}

void TestInsights::mondayFirstCalendar()
{
    const WeekCalendar berlin(QStringLiteral("de_DE"), QStringLiteral("Europe/Berlin"));
    const QList<Booking> list{
        booking(QStringLiteral("sunday"), at("2026-01-11T09:00:00Z")), // Sun 10:00, end of the older week
        booking(QStringLiteral("monday"), at("2026-01-11T23:30:00Z")), // Mon 00:30
    };
    const Insights result = Insights::compute(list, at("2026-01-14T12:00:00Z"), 2, berlin);
    const QList<Insights::Week> weeks{{at("2026-01-04T23:00:00Z"), 1}, {at("2026-01-11T23:00:00Z"), 1}};
    QCOMPARE(result.weeks, weeks);
    // Weekday numbers stay Sunday-based whatever the first day of the week.
    const QList<Insights::Cell> cells{{1, 10, 1}, {2, 0, 1}};
    QCOMPARE(result.heatmap, cells);
    QCOMPARE(result.busiestDay, 1);
}

void TestInsights::rates_data()
{
    QTest::addColumn<int>("total");
    QTest::addColumn<int>("cancelled");
    QTest::addColumn<int>("confirmed");
    QTest::addColumn<int>("noShows");
    QTest::addColumn<double>("cancelRate");
    QTest::addColumn<double>("noShowRate");

    QTest::newRow("nothing") << 0 << 0 << 0 << 0 << 0.0 << 0.0;
    QTest::newRow("no-shows but none confirmed") << 4 << 0 << 0 << 2 << 0.0 << 0.0;
    QTest::newRow("base is confirmed, not total") << 10 << 5 << 4 << 1 << 0.5 << 0.25;
}

void TestInsights::rates()
{
    QFETCH(int, total);
    QFETCH(int, cancelled);
    QFETCH(int, confirmed);
    QFETCH(int, noShows);
    QFETCH(double, cancelRate);
    QFETCH(double, noShowRate);
    Insights insights;
    insights.total = total;
    insights.cancelled = cancelled;
    insights.confirmed = confirmed;
    insights.noShows = noShows;
    QCOMPARE(insights.cancelRate(), cancelRate);
    QCOMPARE(insights.noShowRate(), noShowRate);
}

void TestInsights::equality_data()
{
    QTest::addColumn<Mutation>("change");
    QTest::addColumn<bool>("equal");

    QTest::newRow("confirmed") << Mutation([](Insights &i) { ++i.confirmed; }) << true;
    QTest::newRow("upcoming") << Mutation([](Insights &i) { ++i.upcoming; }) << true;
    QTest::newRow("byType") << Mutation([](Insights &i) { i.byType.clear(); }) << true;
    QTest::newRow("busiest") << Mutation([](Insights &i) { i.busiestDay = 7; i.busiestHour = 23; }) << true;
    QTest::newRow("total") << Mutation([](Insights &i) { ++i.total; }) << false;
    QTest::newRow("cancelled") << Mutation([](Insights &i) { ++i.cancelled; }) << false;
    QTest::newRow("noShows") << Mutation([](Insights &i) { ++i.noShows; }) << false;
    QTest::newRow("week count") << Mutation([](Insights &i) { ++i.weeks.last().count; }) << false;
    QTest::newRow("cell count") << Mutation([](Insights &i) { ++i.heatmap.first().count; }) << false;
}

void TestInsights::equality()
{
    QFETCH(Mutation, change);
    QFETCH(bool, equal);
    const Insights base = Insights::compute({booking(QStringLiteral("a"), now.addDays(-1))}, now, 12, newYork());
    Insights changed = base;
    change(changed);
    QCOMPARE(changed == base, equal);
}

QTEST_APPLESS_MAIN(TestInsights)
#include "tst_insights.moc"
