// The availability screen's arithmetic: minutes and heights, the three drags and when they
// commit, the edits of a day column, the looks and texts, the
// rules form's steps, and the time zone list.
#include "NLAvailability.h"
#include "Translations.h"
#include "availability/Availability.h"
#include "availability/DragGesture.h"
#include "availability/TimeZoneListModel.h"

#include <QTest>

using namespace quorvane;
using namespace quorvane::Availability;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(quorvane::TimeRange)
Q_DECLARE_METATYPE(quorvane::Availability::Target)
Q_DECLARE_METATYPE(std::optional<quorvane::TimeRange>)

namespace {

// A whole gesture: press, moves to each height, release; what it commits.
std::optional<TimeRange> gesture(Target target, const TimeRange &range, double from, const QList<double> &to)
{
    DragGesture g;
    g.press(target, 0, range, {10, from});
    for (const double y : to)
        g.moveTo({10, y});
    return g.release();
}

HostSettings week(const QList<DayAvailability> &days, const QList<FocusBlock> &focus = {})
{
    HostSettings s;
    s.availability = days;
    s.focusBlocks = focus;
    return s;
}

} // namespace

namespace QTest {
template <>
char *toString(const TimeRange &r)
{
    return QTest::toString(u"%1-%2"_s.arg(r.start).arg(r.end));
}
} // namespace QTest

class TestAvailabilityLogic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Translations::install(u"en"_s); } // the English plural forms

    void positions()
    {
        QCOMPARE(minute(9.5), 375);
        QCOMPARE(minute(9.4), 374);
        QCOMPARE(AvailabilityMath::snap(minute(9.4)), 375);
        QCOMPARE(minute(4), 366);
        QCOMPARE(AvailabilityMath::snap(minute(4)), 360);
        QCOMPARE(AvailabilityMath::snap(367), 360);
        QCOMPARE(AvailabilityMath::snap(368), 375);
        QCOMPARE(minute(-1), 359); // truncated toward zero, not down
        QCOMPARE(yFor(360), 0.0);
        QCOMPARE(yFor(300), -38.0);
        QCOMPARE(yFor(1320), 608.0);
        QCOMPARE(minutes(-9.4), -14);
    }

    // Each gesture from press to release: what, if anything, it commits.
    void gestures_data()
    {
        QTest::addColumn<Target>("target");
        QTest::addColumn<TimeRange>("range");
        QTest::addColumn<double>("from");
        QTest::addColumn<QList<double>>("moves");
        QTest::addColumn<std::optional<TimeRange>>("committed");
        const std::optional<TimeRange> none;
        const TimeRange nine{540, 600};
        QTest::newRow("draw downward") << Target::background << TimeRange{} << 0.0 << QList<double>{20, 38}
                                       << std::optional(TimeRange{360, 420});
        QTest::newRow("draw upward") << Target::background << TimeRange{} << 38.0 << QList<double>{0}
                                     << std::optional(TimeRange{360, 420});
        QTest::newRow("draw under one step: 15 minutes")
            << Target::background << TimeRange{} << 0.0 << QList<double>{3} << std::optional(TimeRange{360, 375});
        QTest::newRow("press without travel draws nothing")
            << Target::background << TimeRange{} << 0.0 << QList<double>{2.9} << none;
        QTest::newRow("draw out of the top and bottom")
            << Target::background << TimeRange{} << -300.0 << QList<double>{900} << std::optional(TimeRange{0, 1440});
        QTest::newRow("move down an hour")
            << Target::block << nine << 100.0 << QList<double>{120, 138} << std::optional(TimeRange{600, 660});
        QTest::newRow("move under its start distance")
            << Target::block << nine << 100.0 << QList<double>{101.9} << none;
        QTest::newRow("move stops at the day's end")
            << Target::block << TimeRange{1380, 1440} << 0.0 << QList<double>{38} << none;
        QTest::newRow("move from the end of the day back")
            << Target::block << TimeRange{1380, 1440} << 0.0 << QList<double>{-19}
            << std::optional(TimeRange{1350, 1410});
        QTest::newRow("dropped where it was, after a long way")
            << Target::block << nine << 100.0 << QList<double>{300, -50, 100.5} << none;
        QTest::newRow("resize the end past the start")
            << Target::endEdge << nine << 38.0 << QList<double>{-100} << std::optional(TimeRange{540, 555});
        QTest::newRow("resize the start past the end")
            << Target::startEdge << nine << 0.0 << QList<double>{200} << std::optional(TimeRange{585, 600});
        QTest::newRow("an edge starts at one point")
            << Target::endEdge << nine << 0.0 << QList<double>{1, 19} << std::optional(TimeRange{540, 630});
    }
    void gestures()
    {
        QFETCH(Target, target);
        QFETCH(TimeRange, range);
        QFETCH(double, from);
        QFETCH(QList<double>, moves);
        QTEST(gesture(target, range, from, moves), "committed");
    }

    // A column's edits through the settings: merging, dropping empty days, focus by id, and
    // stale indexes and ids that change nothing.
    void edits()
    {
        const QList<TimeRange> monday{{540, 600}, {660, 720}};
        HostSettings s = week({{2, monday}, {6, {{540, 780}}}});

        addHours(s, 2, monday, {600, 660}); // touches both: one block
        QCOMPARE(s.availability.first().ranges, (QList<TimeRange>{{540, 720}}));

        HostSettings moved = week({{2, monday}});
        replaceHours(moved, 2, monday, 1, {570, 630}); // dropped on the first: merged
        QCOMPARE(moved.availability.first().ranges, (QList<TimeRange>{{540, 630}}));

        HostSettings stale = week({{2, monday}});
        replaceHours(stale, 2, monday, 2, {0, 15});
        removeHours(stale, 2, monday, -1);
        QCOMPARE(stale, week({{2, monday}}));

        HostSettings last = week({{7, {{540, 600}}}, {2, monday}});
        removeHours(last, 7, {{540, 600}}, 0);
        QCOMPARE(last.availability.size(), 1);
        QCOMPARE(last.availability.first().weekday, 2);

        // Focus blocks overlap freely and are found by id.
        HostSettings focus = week({{4, {{540, 1020}}}}, {{u"a"_s, 4, {540, 600}, u"Deep work"_s}});
        addFocus(focus, 4, {570, 630}, u"b"_s);
        moveFocus(focus, u"a"_s, {600, 660});
        moveFocus(focus, u"gone"_s, {0, 15});
        QCOMPARE(focus.focusBlocks.size(), 2);
        QCOMPARE(focus.focusBlocks.at(0).range, (TimeRange{600, 660}));
        QCOMPARE(focus.focusBlocks.at(1).label, u"Focus"_s);
        QCOMPARE(focus.availability.first().ranges, (QList<TimeRange>{{540, 1020}}));
        removeFocus(focus, u"a"_s);
        QCOMPARE(focus.focusBlocks.size(), 1);

        // The named actions on the stored range.
        QCOMPARE(shortened({540, 570}), (TimeRange{540, 555}));
        QCOMPARE(extended({1380, 1440}), (TimeRange{1380, 1440}));
        QCOMPARE(nudged({540, 600}, -15), (TimeRange{525, 585}));

        // The box sets the days it names, in order, and leaves the others.
        HostSettings typed = week({{2, monday}, {6, {{540, 1020}}}});
        applyDays(typed, NLAvailability::parse(u"tue thu 8-11am"_s));
        QCOMPARE(typed.availability.size(), 4);
        QCOMPARE(typed.availability.at(1).ranges, (QList<TimeRange>{{480, 660}}));
        QCOMPARE(typed.availability.at(3).ranges, (QList<TimeRange>{{540, 1020}}));
    }

    void looksAndTexts()
    {
        QVERIFY(!look({540, 570}, false, false, true, false).showsLabel);
        QVERIFY(look({540, 585}, false, false, true, false).showsLabel);
        QCOMPARE(look({540, 600}, true, true, true, true), (Look{0.22, 2, true, 1, true}));
        QCOMPARE(look({540, 600}, false, true, true, false).fillOpacity, 0.85);
        QCOMPARE(look({540, 600}, false, true, false, false), (Look{0.7, 0, false, 0.55, true}));

        QCOMPARE(header(week({{2, {{540, 1020}}}, {3, {{540, 560}}}})), u"8 h/week bookable \u00B7 0 focus blocks"_s);
        QCOMPARE(header(week({}, {{u"a"_s, 2, {0, 60}, {}}})), u"0 h/week bookable \u00B7 1 focus block"_s);
        QCOMPARE(tooltip({540, 1440}), u"9 AM \u2013 12 AM"_s);
        QCOMPARE(previewLine({{1, {{480, 570}}}, {6, {{540, 720}, {780, 1020}}}}, u"en_US"_s),
                 u"Will set Sun 8 AM\u20139:30 AM \u00B7 Fri 9 AM\u201312 PM, 1 PM\u20135 PM"_s);
        QCOMPARE(hoursAccessibleLabel(2, {540, 1020}, u"en_US"_s), u"Mon available 9 AM to 5 PM"_s);
        QCOMPARE(focusAccessibleLabel({u"a"_s, 7, {600, 660}, {}}, u"en_US"_s),
                 u"Sat focus block Focus 10 AM to 11 AM"_s);
    }

    void rules()
    {
        QCOMPARE(fmtNotice(0), u"0 min"_s);
        QCOMPARE(fmtNotice(59), u"59 min"_s);
        QCOMPARE(fmtNotice(60), u"1 h"_s);
        QCOMPARE(fmtNotice(90), u"1 h 30 min"_s);
        QCOMPARE(fmtNotice(10080), u"168 h"_s);
        // Up from 105 by a quarter to 120, then by the hour; down from 120 by the hour.
        QCOMPARE(stepped(105, 1, noticeStep(105), 0, 10080), 120);
        QCOMPARE(stepped(120, 1, noticeStep(120), 0, 10080), 180);
        QCOMPARE(stepped(120, -1, noticeStep(120), 0, 10080), 60);
        QCOMPARE(stepped(1, -1, 1, 1, 20), 1);
        QCOMPARE(stepped(25, -1, 1, 1, 20), 20); // from the server beyond the range
        QCOMPARE(stepped(118, 1, 5, 0, 120), 120);
    }

    void zones()
    {
        TimeZoneListModel model({u"America/New_York"_s, u"Europe/Berlin"_s, u"Europe/Istanbul"_s}, nullptr);
        QCOMPARE(model.data(model.index(0), TimeZoneListModel::NameRole).toString(), u"America/New York"_s);
        model.setQuery(u"new_y"_s);
        QCOMPARE(model.rowCount(), 1);
        QCOMPARE(model.zoneAt(0), u"America/New_York"_s);
        model.setQuery(u"EUROPE"_s);
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.indexOf(u"Europe/Istanbul"_s), 1);
        QCOMPARE(model.indexOf(u"Mars/Olympus"_s), -1);
        const QStringList system = TimeZoneListModel::systemZones();
        QVERIFY(system.contains(u"Europe/Berlin"_s));
        QVERIFY(std::is_sorted(system.cbegin(), system.cend()));
    }
};

QTEST_MAIN(TestAvailabilityLogic)
#include "tst_availability_logic.moc"
