// The insights screen's figures: the rates, the heat map's rows, the ring's sectors.
#include "insights/InsightsFigures.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

class TestInsightsFigures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whole percentages in the locale's way, and no clamp above 100.
    void rates_data()
    {
        QTest::addColumn<double>("share");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("shown");
        QTest::newRow("none") << 0.0 << u"en_US"_s << u"0%"_s;
        QTest::newRow("rounded") << 0.126 << u"en_US"_s << u"13%"_s;
        QTest::newRow("all cancelled") << 1.0 << u"en_US"_s << u"100%"_s;
        QTest::newRow("more no-shows than meetings") << 1.5 << u"en_US"_s << u"150%"_s;
        QTest::newRow("German spacing") << 0.5 << u"de_DE"_s << u"50\u00A0%"_s;
    }
    void rates()
    {
        QFETCH(double, share);
        QFETCH(QString, locale);
        QTEST(InsightsFigures::rate(share, locale), "shown");
    }

    // Monday on top and Sunday at the bottom, even where the week starts on Sunday.
    void rows()
    {
        QCOMPARE(InsightsFigures::row(2), 0);
        QCOMPARE(InsightsFigures::row(1), 6);
        QCOMPARE(InsightsFigures::weekdayName(1, u"en_US"_s), u"Sun"_s);
        QCOMPARE(InsightsFigures::weekdayName(2, u"de_DE"_s), u"Mo."_s);
        QCOMPARE(InsightsFigures::hourLabel(15), u"3 PM"_s);
    }

    // Sectors follow each other clockwise from the top, each short of its share by the inset.
    void ring()
    {
        const QList<InsightsFigures::Sector> sectors = InsightsFigures::ring({3, 1}, 3);
        QCOMPARE(sectors.size(), 2);
        QCOMPARE(sectors[0].start, 0.0);
        QCOMPARE(sectors[0].sweep, 267.0);
        QCOMPARE(sectors[1].start, 270.0);
        QCOMPARE(sectors[1].sweep, 87.0);
        QCOMPARE(InsightsFigures::ring({0}, 3).first().sweep, 0.0);
    }
};

QTEST_APPLESS_MAIN(TestInsightsFigures)
#include "tst_insights_figures.moc"
