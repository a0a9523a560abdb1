#include "AvailabilityMath.h"

#include <QTest>

using namespace quorvane;
namespace AM = AvailabilityMath;
using Ranges = QList<TimeRange>;
using Days = QList<DayAvailability>;

// A drag on the grid: a move by a delta, or one edge resized to a minute.
enum class Drag { move, start, end };

class TestAvailabilityMath : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void snap_data()
    {
        QTest::addColumn<int>("minute");
        QTest::addColumn<int>("step");
        QTest::addColumn<int>("expected");
        // Halves go away from zero; the result stays within the day.
        const int rows[][3] = {{7, 15, 0},   {8, 15, 15},     {22, 15, 15},   {23, 15, 30}, {1439, 15, 1440},
                               {-20, 15, 0}, {1500, 15, 1440}, {5, 10, 10},   {-5, 10, 0},  {600, 15, 600}};
        for (const auto &r : rows)
            QTest::addRow("%d step %d", r[0], r[1]) << r[0] << r[1] << r[2];
    }
    void snap()
    {
        QFETCH(int, minute);
        QFETCH(int, step);
        QTEST(AM::snap(minute, step), "expected");
    }

    void normalize_data()
    {
        QTest::addColumn<Ranges>("ranges");
        QTest::addColumn<Ranges>("expected");
        QTest::newRow("empty") << Ranges{} << Ranges{};
        QTest::newRow("empty and reversed dropped") << Ranges{{60, 60}, {100, 90}} << Ranges{};
        QTest::newRow("touching merge") << Ranges{{600, 660}, {540, 600}} << Ranges{{540, 660}};
        QTest::newRow("larger end wins") << Ranges{{60, 120}, {90, 100}} << Ranges{{60, 120}};
        QTest::newRow("gap kept, sorted") << Ranges{{700, 800}, {60, 120}} << Ranges{{60, 120}, {700, 800}};
        QTest::newRow("chain") << Ranges{{0, 30}, {20, 50}, {50, 70}, {100, 110}} << Ranges{{0, 70}, {100, 110}};
        QTest::newRow("not snapped") << Ranges{{541, 607}} << Ranges{{541, 607}};
    }
    void normalize()
    {
        QFETCH(Ranges, ranges);
        QTEST(AM::normalize(ranges), "expected");
    }

    void drag_data()
    {
        QTest::addColumn<TimeRange>("range");
        QTest::addColumn<Drag>("drag");
        QTest::addColumn<int>("value");
        QTest::addColumn<TimeRange>("expected");
        QTest::newRow("move stops at end of day") << TimeRange{1380, 1440} << Drag::move << 30 << TimeRange{1380, 1440};
        QTest::newRow("move up") << TimeRange{1380, 1440} << Drag::move << -30 << TimeRange{1350, 1410};
        QTest::newRow("move stops at midnight") << TimeRange{0, 60} << Drag::move << -30 << TimeRange{0, 60};
        QTest::newRow("move snaps at zero delta") << TimeRange{545, 605} << Drag::move << 0 << TimeRange{540, 600};
        QTest::newRow("move keeps odd length") << TimeRange{540, 550} << Drag::move << 20 << TimeRange{555, 565};
        QTest::newRow("end held at min length") << TimeRange{540, 600} << Drag::end << 545 << TimeRange{540, 555};
        QTest::newRow("start held at min length") << TimeRange{540, 600} << Drag::start << 700 << TimeRange{585, 600};
        QTest::newRow("end snaps") << TimeRange{540, 600} << Drag::end << 653 << TimeRange{540, 660};
        QTest::newRow("start snaps") << TimeRange{540, 600} << Drag::start << 472 << TimeRange{465, 600};
    }
    void drag()
    {
        QFETCH(TimeRange, range);
        QFETCH(Drag, drag);
        QFETCH(int, value);
        QFETCH(TimeRange, expected);
        const TimeRange result = drag == Drag::move ? AM::move(range, value)
                                                    : AM::resize(range, drag == Drag::start ? AM::Edge::start : AM::Edge::end, value, 15);
        QCOMPARE(result, expected);
    }

    void set()
    {
        const Days week{{6, {{540, 600}}}, {2, {{60, 120}}}};
        // A day without hours has no entry at all, never an empty one.
        QCOMPARE(AM::set(week, 6, {}), (Days{{2, {{60, 120}}}}));
        QCOMPARE(AM::set(week, 6, {{30, 30}}), (Days{{2, {{60, 120}}}}));
        QCOMPARE(AM::set(week, 6, {{700, 760}, {600, 700}}), (Days{{2, {{60, 120}}}, {6, {{600, 760}}}}));
        QCOMPARE(AM::set(week, 4, {{0, 15}}), (Days{{2, {{60, 120}}}, {4, {{0, 15}}}, {6, {{540, 600}}}}));
    }

    void totalMinutes()
    {
        QCOMPARE(AM::totalMinutes({}), 0);
        QCOMPARE(AM::totalMinutes({{2, {{540, 600}, {700, 715}}}, {3, {{0, 1440}}}}), 75 + 1440);
    }

    void label_data()
    {
        QTest::addColumn<int>("minute");
        QTest::addColumn<QString>("expected");
        const std::pair<int, const char *> rows[] = {{1440, "12 AM"},   {0, "12 AM"},    {720, "12 PM"}, {765, "12:45 PM"},
                                                     {5, "12:05 AM"},   {570, "9:30 AM"}, {1439, "11:59 PM"}};
        for (const auto &[minute, text] : rows)
            QTest::addRow("%d", minute) << minute << QString::fromLatin1(text);
    }
    void label()
    {
        QFETCH(int, minute);
        QTEST(AM::label(minute), "expected");
    }
};

QTEST_APPLESS_MAIN(TestAvailabilityMath)
#include "tst_availabilitymath.moc"
