#include "NLAvailability.h"

#include <QTest>

using namespace quorvane;

namespace {

// "2:540-1020 6:540-780,900-960": short enough to read a failing row at a glance.
QString compact(const QList<DayAvailability> &days)
{
    QStringList out;
    for (const DayAvailability &day : days) {
        QStringList ranges;
        for (const TimeRange &r : day.ranges)
            ranges.append(QStringLiteral("%1-%2").arg(r.start).arg(r.end));
        out.append(QStringLiteral("%1:%2").arg(day.weekday).arg(ranges.join(u',')));
    }
    return out.join(u' ');
}

} // namespace

class TestNLAvailability : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void parse_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const QString weekdays = QStringLiteral("2:540-1020 3:540-1020 4:540-1020 5:540-1020 6:540-1020");
        const QString everyDay = QStringLiteral("1:540-1020 ") + weekdays + QStringLiteral(" 7:540-1020");
        const auto row = [](const char *text, const QString &expected) {
            QTest::newRow(text) << QString::fromUtf8(text) << expected;
        };
        row("", {});
        row(",,;\n", {});
        row("9-5", {});
        row("weekdays 9-5", weekdays);
        row("WEEKDAYS 9-5", weekdays);
        row("weekends", QStringLiteral("1:540-1020 7:540-1020"));
        row("everyday 9-5", {});
        row("every day 9-5", everyDay);
        row("daily", everyDay);
        row("mon-thu 10-4", QStringLiteral("2:600-960 3:600-960 4:600-960 5:600-960"));
        row("mon through fri", weekdays);
        row("monday to friday", weekdays);
        row("tue\u2013thu", QStringLiteral("3:540-1020 4:540-1020 5:540-1020"));
        row("sat-sun 9-5", {});
        row("mon wed", QStringLiteral("2:540-1020 4:540-1020"));
        row("month of may", QStringLiteral("2:540-1020"));
        row("lemon 9-5", {});
        row("weekdays 9-5, 9-12", weekdays);
        row("mon morning", QStringLiteral("2:540-720"));
        row("tue afternoon", QStringLiteral("3:780-1020"));
        row("wed evening", QStringLiteral("4:1080-1260"));
        row("thu morning and evening", QStringLiteral("5:1080-1260"));
        row("sun afternoon 10-11", QStringLiteral("1:600-660"));
        row("fri 9am-1pm", QStringLiteral("6:540-780"));
        row("fri 9:30-17:00", QStringLiteral("6:570-1020"));
        row("sat 1-5", QStringLiteral("7:780-1020"));
        row("mon 6-10", QStringLiteral("2:1080-1320"));
        row("mon 7-10", QStringLiteral("2:420-600"));
        row("tue 10-9", QStringLiteral("3:600-1260"));
        row("wed 8-8", QStringLiteral("4:480-1200"));
        row("fri 12am-5pm", QStringLiteral("6:0-1020"));
        row("fri 12-1", QStringLiteral("6:720-780"));
        row("fri 9-12am", QStringLiteral("6:540-720"));
        row("mon 11pm-12", QStringLiteral("2:1380-1440"));
        row("mon 5-7am", {});
        row("mon 9 to 5", QStringLiteral("2:540-1020"));
        row("mon 9 am \u2013 1 pm", QStringLiteral("2:540-780"));
        row("mon 9-12 1-5", QStringLiteral("2:540-720"));
        // Clauses add up, never replace
        row("weekdays 9-5, fri 9am-1pm", weekdays);
        row("mon 9-5, mon 6-8pm", QStringLiteral("2:540-1020,1080-1200"));
        row("mon 9-12; tue 1-3\nwed 10-11", QStringLiteral("2:540-720 3:780-900 4:600-660"));
        // Unicode: the separators, boundaries and digits the expressions see
        row("mon\u00a09am\u202f\u2013\u202f1pm", QStringLiteral("2:540-780"));
        row("\u00e9mon 9-5", {});
        row("mon 10-\u0663", QStringLiteral("2:600-1020"));
    }
    void parse()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(compact(NLAvailability::parse(text)), expected);
    }
};

QTEST_APPLESS_MAIN(TestNLAvailability)
#include "tst_nlavailability.moc"
