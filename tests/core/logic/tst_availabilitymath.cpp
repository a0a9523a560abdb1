// The availability editor's arithmetic: snapping, merging, dragging, per-day edits and labels.
#include "AvailabilityMath.h"

#include <QTest>

using namespace quorvane;
namespace AM = AvailabilityMath;
using Ranges = QList<TimeRange>;
using Days = QList<DayAvailability>;

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
        const int rows[][3] = {{7, 15, 0},   {8, 15, 15},      {22, 15, 15}, {23, 15, 30},
                               {-20, 15, 0}, {1500, 15, 1440}, {5, 10, 10}};
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

    // A block moves by a delta within the day, its length kept; an edge snaps, leaving 15 minutes.
    void drag()
    {
        QCOMPARE(AM::move({1380, 1440}, 30), (TimeRange{1380, 1440}));
        QCOMPARE(AM::move({1380, 1440}, -30), (TimeRange{1350, 1410}));
        QCOMPARE(AM::move({0, 60}, -30), (TimeRange{0, 60}));
        QCOMPARE(AM::move({545, 605}, 0), (TimeRange{540, 600}));
        QCOMPARE(AM::move({540, 550}, 20), (TimeRange{555, 565}));
        QCOMPARE(AM::resize({540, 600}, AM::Edge::end, 545, 15), (TimeRange{540, 555}));
        QCOMPARE(AM::resize({540, 600}, AM::Edge::start, 700, 15), (TimeRange{585, 600}));
        QCOMPARE(AM::resize({540, 600}, AM::Edge::end, 653, 15), (TimeRange{540, 660}));
        QCOMPARE(AM::resize({540, 600}, AM::Edge::start, 472, 15), (TimeRange{465, 600}));
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

    void label_data()
    {
        QTest::addColumn<int>("minute");
        QTest::addColumn<QString>("expected");
        const std::pair<int, const char *> rows[] = {{1440, "12 AM"},   {0, "12 AM"},    {720, "12 PM"},
                                                     {765, "12:45 PM"}, {5, "12:05 AM"}, {570, "9:30 AM"},
                                                     {1439, "11:59 PM"}};
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
