#include "AvailabilityMath.h"

#include <QTest>

using namespace quorvane;
using AvailabilityMath::Edge;

Q_DECLARE_METATYPE(TimeRange)
Q_DECLARE_METATYPE(QList<TimeRange>)
Q_DECLARE_METATYPE(QList<DayAvailability>)
Q_DECLARE_METATYPE(AvailabilityMath::Edge)

namespace QTest {
template<>
char *toString(const TimeRange &r)
{
    return qstrdup(QByteArray::number(r.start) + '-' + QByteArray::number(r.end));
}
} // namespace QTest

class TestAvailabilityMath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void snap_data()
    {
        QTest::addColumn<int>("minute");
        QTest::addColumn<int>("step");
        QTest::addColumn<int>("expected");
        QTest::newRow("rounds down below half") << 7 << 15 << 0;
        QTest::newRow("rounds up above half") << 8 << 15 << 15;
        QTest::newRow("22 to 15") << 22 << 15 << 15;
        QTest::newRow("23 to 30") << 23 << 15 << 30;
        QTest::newRow("end of day") << 1439 << 15 << 1440;
        QTest::newRow("negative clamps to 0") << -20 << 15 << 0;
        QTest::newRow("past the day clamps") << 1500 << 15 << 1440;
        QTest::newRow("half goes away from zero") << 5 << 10 << 10;
        QTest::newRow("negative half away from zero, then clamped") << -5 << 10 << 0;
        QTest::newRow("exact multiple") << 600 << 15 << 600;
    }
    void snap()
    {
        QFETCH(int, minute);
        QFETCH(int, step);
        QFETCH(int, expected);
        QCOMPARE(AvailabilityMath::snap(minute, step), expected);
    }

    void normalize_data()
    {
        QTest::addColumn<QList<TimeRange>>("ranges");
        QTest::addColumn<QList<TimeRange>>("expected");
        QTest::newRow("empty") << QList<TimeRange>{} << QList<TimeRange>{};
        QTest::newRow("empty and reversed dropped") << QList<TimeRange>{{60, 60}, {100, 90}} << QList<TimeRange>{};
        QTest::newRow("touching merge") << QList<TimeRange>{{600, 660}, {540, 600}} << QList<TimeRange>{{540, 660}};
        QTest::newRow("larger end wins") << QList<TimeRange>{{60, 120}, {90, 100}} << QList<TimeRange>{{60, 120}};
        QTest::newRow("gap kept, sorted") << QList<TimeRange>{{700, 800}, {60, 120}}
                                          << QList<TimeRange>{{60, 120}, {700, 800}};
        QTest::newRow("chain merges through") << QList<TimeRange>{{0, 30}, {20, 50}, {50, 70}, {100, 110}}
                                              << QList<TimeRange>{{0, 70}, {100, 110}};
        QTest::newRow("minutes not snapped") << QList<TimeRange>{{541, 607}} << QList<TimeRange>{{541, 607}};
    }
    void normalize()
    {
        QFETCH(QList<TimeRange>, ranges);
        QFETCH(QList<TimeRange>, expected);
        QCOMPARE(AvailabilityMath::normalize(ranges), expected);
    }

    void move_data()
    {
        QTest::addColumn<TimeRange>("range");
        QTest::addColumn<int>("delta");
        QTest::addColumn<TimeRange>("expected");
        QTest::newRow("stops at end of day") << TimeRange{1380, 1440} << 30 << TimeRange{1380, 1440};
        QTest::newRow("moves up") << TimeRange{1380, 1440} << -30 << TimeRange{1350, 1410};
        QTest::newRow("stops at midnight") << TimeRange{0, 60} << -30 << TimeRange{0, 60};
        QTest::newRow("snaps with zero delta") << TimeRange{545, 605} << 0 << TimeRange{540, 600};
        QTest::newRow("odd length leaves end off grid") << TimeRange{540, 550} << 20 << TimeRange{555, 565};
    }
    void move()
    {
        QFETCH(TimeRange, range);
        QFETCH(int, delta);
        QFETCH(TimeRange, expected);
        QCOMPARE(AvailabilityMath::move(range, delta), expected);
    }

    void resize_data()
    {
        QTest::addColumn<TimeRange>("range");
        QTest::addColumn<Edge>("edge");
        QTest::addColumn<int>("minute");
        QTest::addColumn<TimeRange>("expected");
        QTest::newRow("end held at min length") << TimeRange{540, 600} << Edge::end << 545 << TimeRange{540, 555};
        QTest::newRow("start held at min length") << TimeRange{540, 600} << Edge::start << 700 << TimeRange{585, 600};
        QTest::newRow("end snaps") << TimeRange{540, 600} << Edge::end << 653 << TimeRange{540, 660};
        QTest::newRow("start snaps") << TimeRange{540, 600} << Edge::start << 472 << TimeRange{465, 600};
    }
    void resize()
    {
        QFETCH(TimeRange, range);
        QFETCH(Edge, edge);
        QFETCH(int, minute);
        QFETCH(TimeRange, expected);
        QCOMPARE(AvailabilityMath::resize(range, edge, minute, 15), expected);
    }

    void set_data()
    {
        QTest::addColumn<QList<DayAvailability>>("days");
        QTest::addColumn<int>("weekday");
        QTest::addColumn<QList<TimeRange>>("ranges");
        QTest::addColumn<QList<DayAvailability>>("expected");
        const QList<DayAvailability> week{{6, {{540, 600}}}, {2, {{60, 120}}}};
        QTest::newRow("no ranges removes the day") << week << 6 << QList<TimeRange>{}
                                                   << QList<DayAvailability>{{2, {{60, 120}}}};
        QTest::newRow("only empty ranges remove the day") << week << 6 << QList<TimeRange>{{30, 30}}
                                                          << QList<DayAvailability>{{2, {{60, 120}}}};
        QTest::newRow("replaces, normalizes and sorts")
            << week << 6 << QList<TimeRange>{{700, 760}, {600, 700}}
            << QList<DayAvailability>{{2, {{60, 120}}}, {6, {{600, 760}}}};
        QTest::newRow("adds a new day in order")
            << week << 4 << QList<TimeRange>{{0, 15}}
            << QList<DayAvailability>{{2, {{60, 120}}}, {4, {{0, 15}}}, {6, {{540, 600}}}};
    }
    void set()
    {
        QFETCH(QList<DayAvailability>, days);
        QFETCH(int, weekday);
        QFETCH(QList<TimeRange>, ranges);
        QFETCH(QList<DayAvailability>, expected);
        QCOMPARE(AvailabilityMath::set(days, weekday, ranges), expected);
    }

    void totalMinutes()
    {
        QCOMPARE(AvailabilityMath::totalMinutes({}), 0);
        QCOMPARE(AvailabilityMath::totalMinutes({{2, {{540, 600}, {700, 715}}}, {3, {{0, 1440}}}}), 75 + 1440);
    }

    void label_data()
    {
        QTest::addColumn<int>("minute");
        QTest::addColumn<QString>("expected");
        QTest::newRow("end of day is midnight") << 1440 << QStringLiteral("12 AM");
        QTest::newRow("midnight") << 0 << QStringLiteral("12 AM");
        QTest::newRow("noon") << 720 << QStringLiteral("12 PM");
        QTest::newRow("quarter to one") << 765 << QStringLiteral("12:45 PM");
        QTest::newRow("just after midnight") << 5 << QStringLiteral("12:05 AM");
        QTest::newRow("morning") << 570 << QStringLiteral("9:30 AM");
        QTest::newRow("last minute") << 1439 << QStringLiteral("11:59 PM");
    }
    void label()
    {
        QFETCH(int, minute);
        QFETCH(QString, expected);
        QCOMPARE(AvailabilityMath::label(minute), expected);
    }
};

QTEST_APPLESS_MAIN(TestAvailabilityMath)
#include "tst_availabilitymath.moc"
