// Availability typed as text ("weekdays 9-5, fri 9am-1pm"): days, day parts, times and how
// clauses combine; and the week written as a sentence that reads back the same.
#include "AvailabilityMath.h"
#include "NLAvailability.h"
#include "WeekSentence.h"

#include <QRandomGenerator>
#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

// "2:540-1020 6:540-780,900-960": short enough to read a failing row at a glance.
QString compact(const QList<DayAvailability> &days)
{
    QStringList out;
    for (const DayAvailability &day : days) {
        QStringList ranges;
        for (const TimeRange &r : day.ranges)
            ranges.append(u"%1-%2"_s.arg(r.start).arg(r.end));
        out.append(u"%1:%2"_s.arg(day.weekday).arg(ranges.join(u',')));
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
        const QString weekdays = u"2:540-1020 3:540-1020 4:540-1020 5:540-1020 6:540-1020"_s;
        const auto row = [](const char *text, const QString &expected) {
            QTest::newRow(text) << QString::fromUtf8(text) << expected;
        };
        row(",,;\n", {});
        row("9-5", {});
        row("WEEKDAYS 9-5", weekdays);
        row("weekends", u"1:540-1020 7:540-1020"_s);
        row("everyday 9-5", {});
        row("every day 9-5", u"1:540-1020 "_s + weekdays + u" 7:540-1020"_s);
        row("daily 10-11", u"1:600-660 2:600-660 3:600-660 4:600-660 5:600-660 6:600-660 7:600-660"_s);
        row("mon-thu 10-4", u"2:600-960 3:600-960 4:600-960 5:600-960"_s);
        row("monday to friday", weekdays);
        row("mon through wed", u"2:540-1020 3:540-1020 4:540-1020"_s);
        row("tue\u2013thu", u"3:540-1020 4:540-1020 5:540-1020"_s);
        row("sat-sun 9-5", {});
        row("mon wed", u"2:540-1020 4:540-1020"_s);
        row("month of may", u"2:540-1020"_s);
        row("lemon 9-5", {});
        row("weekdays 9-5, 9-12", weekdays);
        row("mon morning", u"2:540-720"_s);
        row("tue afternoon", u"3:780-1020"_s);
        row("wed evening", u"4:1080-1260"_s);
        row("sun afternoon 10-11", u"1:600-660"_s);
        row("fri 9:30-17:00", u"6:570-1020"_s);
        row("sat 1-5", u"7:780-1020"_s);
        row("mon 6-10", u"2:1080-1320"_s);
        row("mon 7-10", u"2:420-600"_s);
        row("wed 8-8", u"4:480-1200"_s);
        row("fri 12am-5pm", u"6:0-1020"_s);
        row("fri 9-12am", u"6:540-720"_s);
        row("mon 11pm-12", u"2:1380-1440"_s);
        row("mon 5-7am", {});
        row("mon 9 to 5", u"2:540-1020"_s);
        row("mon 9 am \u2013 1 pm", u"2:540-780"_s);
        row("mon 9-12 1-5", u"2:540-720"_s);
        // Clauses add up, never replace
        row("weekdays 9-5, fri 9am-1pm", weekdays);
        row("mon 9-5, mon 6-8pm", u"2:540-1020,1080-1200"_s);
        row("mon 9-12; tue 1-3\nwed 10-11", u"2:540-720 3:780-900 4:600-660"_s);
        // Unicode: the separators, boundaries and digits the expressions see
        row("mon\u00a09am\u202f\u2013\u202f1pm", u"2:540-780"_s);
        row("\u00e9mon 9-5", {});
        row("mon 10-\u0663", u"2:600-1020"_s);
    }
    void parse()
    {
        QFETCH(QString, text);
        QTEST(compact(NLAvailability::parse(text)), "expected");
    }
    // The week read back from its own sentence, for weeks of the sentences above and for
    // generated weeks of every shape the week grid can hold.
    void describeRoundTrip()
    {
        QCOMPARE(WeekSentence::describe(NLAvailability::parse(u"weekdays 9-5, fri 9am-1pm"_s)),
                 u"Weekdays 9 AM\u20135 PM"_s);
        QCOMPARE(
            WeekSentence::describe(
                {{2, {{540, 1020}}}, {3, {{540, 1020}}}, {4, {{540, 1020}}}, {5, {{540, 1020}}}, {6, {{540, 780}}}}),
            u"Mon\u2013Thu 9 AM\u20135 PM, Fri 9 AM\u20131 PM"_s);
        QCOMPARE(WeekSentence::describe({}), u"No working hours"_s);

        QList<QList<DayAvailability>> weeks;
        for (const char *text : {"weekdays 9-5, fri 9am-1pm", "every day 9-5", "weekends", "mon-thu 10-4", "mon wed",
                                 "sat 1-5", "mon 6-10", "fri 12am-5pm", "mon 11pm-12", "mon 9-5, mon 6-8pm",
                                 "mon 9-12; tue 1-3\nwed 10-11", "daily 10-11"})
            weeks << NLAvailability::parse(QString::fromUtf8(text));
        // Every set of days, with ranges at both ends of the day.
        for (int set = 0; set < 128; ++set) {
            QList<DayAvailability> w;
            for (int day = 1; day <= 7; ++day) {
                if (set & (1 << (day - 1)))
                    w << DayAvailability{day, {{0, 15 * (set % 4 + 1)}, {1425 - 15 * (set % 3), 1440}}};
            }
            weeks << w;
        }
        // Random weeks on the grid's steps, where days often share their hours.
        QRandomGenerator rng(20261125);
        for (int n = 0; n < 500; ++n) {
            QList<DayAvailability> w;
            QList<TimeRange> shared;
            for (int day = 1; day <= 7; ++day) {
                QList<TimeRange> ranges;
                for (int k = int(rng.bounded(4)); k > 0; --k) {
                    const int a = 15 * int(rng.bounded(96));
                    ranges << TimeRange{a, a + 15 * int(rng.bounded(1, 97 - a / 15))};
                }
                if (rng.bounded(3) == 0 && !shared.isEmpty())
                    ranges = shared;
                shared = ranges;
                w = AvailabilityMath::set(w, day, ranges);
            }
            weeks << w;
        }
        for (const QList<DayAvailability> &w : std::as_const(weeks)) {
            const QString sentence = WeekSentence::describe(w);
            QVERIFY2(NLAvailability::parse(sentence) == w, qPrintable(sentence));
        }
    }
};

QTEST_APPLESS_MAIN(TestNLAvailability)
#include "tst_nlavailability.moc"
