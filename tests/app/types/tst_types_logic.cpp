// The event types screen's logic: new types and copies, deleting, the slug field, the
// durations, questions, the editor's write and the buffer bar.
#include "types/BufferPreview.h"
#include "types/EventTypes.h"

#include "Palette.h"

#include <QTest>

#include <cmath>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

EventType type(const QString &id, const QString &slug)
{
    EventType t;
    t.id = id;
    t.slug = slug;
    return t;
}

// `n` types with slugs "meeting", "meeting-2", ...: each as `add` would have made it.
QList<EventType> added(int n)
{
    QList<EventType> out;
    for (int i = 0; i < n; ++i)
        out.append(EventTypes::added(out));
    return out;
}

} // namespace

class TestTypesLogic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void add_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<QString>("slug");
        QTest::addColumn<QString>("color");
        QTest::newRow("the first") << 0 << u"meeting"_s << u"#0A84FF"_s;
        QTest::newRow("the second") << 1 << u"meeting-2"_s << u"#34C759"_s;
        QTest::newRow("past the palette, round again") << 9 << u"meeting-10"_s << u"#0A84FF"_s;
        QTest::newRow("the eleventh") << 10 << u"meeting-11"_s << u"#34C759"_s;
    }
    void add()
    {
        QFETCH(int, before);
        const QList<EventType> existing = added(before);
        const EventType t = EventTypes::added(existing);
        QTEST(t.slug, "slug");
        QTEST(t.colorHex, "color");
        QVERIFY(!t.id.isEmpty());
        QVERIFY(std::none_of(existing.cbegin(), existing.cend(), [&t](const EventType &e) { return e.id == t.id; }));
        QCOMPARE(t.title, u"New Meeting"_s);
        QCOMPARE(std::tuple(t.minutes, t.bufferBefore, t.bufferAfter), std::tuple(30, 5, 5));
        QCOMPARE(t.location, MeetingLocation::meet);
        QVERIFY(t.isActive && t.description.isEmpty() && t.locationDetail.isEmpty() && t.questions.isEmpty());
    }

    // Each copy is made from the original: the same title twice, two slugs.
    void duplicateTwice()
    {
        EventType intro = type(u"a"_s, u"intro"_s);
        intro.title = u"Intro"_s;
        intro.colorHex = u"#FF375F"_s;
        intro.questions = {u"Why?"_s};
        QList<EventType> types{intro};
        types.append(EventTypes::duplicated(intro, types));
        types.append(EventTypes::duplicated(intro, types));
        QCOMPARE(types[1].title, u"Intro copy"_s);
        QCOMPARE(types[2].title, u"Intro copy"_s);
        QCOMPARE(types[1].slug, u"intro-2"_s);
        QCOMPARE(types[2].slug, u"intro-3"_s);
        QVERIFY(types[1].id != intro.id && types[2].id != types[1].id);
        QCOMPARE(types[2].colorHex, intro.colorHex);
        QCOMPARE(types[2].questions, intro.questions);
    }

    void remove_data()
    {
        QTest::addColumn<QStringList>("ids");
        QTest::addColumn<QString>("removed");
        QTest::addColumn<QStringList>("left");
        QTest::addColumn<QString>("selected");
        QTest::newRow("the last one stays") << QStringList{u"a"_s} << u"a"_s << QStringList{u"a"_s} << QString();
        QTest::newRow("the first: the next is selected")
            << QStringList{u"a"_s, u"b"_s, u"c"_s} << u"a"_s << QStringList{u"b"_s, u"c"_s} << u"b"_s;
        QTest::newRow("another: the first is selected")
            << QStringList{u"a"_s, u"b"_s, u"c"_s} << u"c"_s << QStringList{u"a"_s, u"b"_s} << u"a"_s;
        QTest::newRow("one that isn't there")
            << QStringList{u"a"_s, u"b"_s} << u"x"_s << QStringList{u"a"_s, u"b"_s} << u"a"_s;
    }
    void remove()
    {
        QFETCH(QStringList, ids);
        QFETCH(QString, removed);
        QList<EventType> types;
        for (const QString &id : ids)
            types.append(type(id, id));
        EventTypes::remove(types, removed);
        QStringList left;
        for (const EventType &t : types)
            left.append(t.id);
        QTEST(left, "left");
        if (types.size() < ids.size())
            QTEST(EventTypes::selectionAfterDelete(types, removed).value_or(QString()), "selected");
        QCOMPARE(EventTypes::canDelete(types), types.size() > 1);
    }

    void move()
    {
        QList<EventType> types{type(u"a"_s, {}), type(u"b"_s, {}), type(u"c"_s, {})};
        QVERIFY(EventTypes::move(types, 2, 0));
        QCOMPARE((QStringList{types[0].id, types[1].id, types[2].id}), (QStringList{u"c"_s, u"a"_s, u"b"_s}));
        QVERIFY(!EventTypes::move(types, 0, 3));
        QVERIFY(!EventTypes::move(types, -1, 0));
        QCOMPARE(types[0].id, u"c"_s);
    }

    // The editor's write: the whole entry by id, and nothing for one that is gone.
    void replace()
    {
        HostSettings s;
        s.eventTypes = {type(u"a"_s, u"one"_s), type(u"b"_s, u"two"_s)};
        EventType edited = type(u"b"_s, u"deux"_s);
        edited.questions = {u"Phone?"_s};
        QVERIFY(EventTypes::replace(s, edited));
        QCOMPARE(s.eventTypes[1], edited);
        const HostSettings before = s;
        QVERIFY(!EventTypes::replace(s, type(u"gone"_s, u"x"_s)));
        QCOMPARE(s, before);
    }

    void slugTyping_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("kept");
        QTest::newRow("a slug stays") << u"office-hours"_s << u"office-hours"_s;
        QTest::newRow("a final hyphen stays while typing") << u"office-"_s << u"office-"_s;
        QTest::newRow("the next letter") << u"office-h"_s << u"office-h"_s;
        QTest::newRow("a final blank goes") << u"office "_s << u"office"_s;
        QTest::newRow("capitals and punctuation") << u"Office Hours!"_s << u"office-hours"_s;
        QTest::newRow("a doubled hyphen collapses") << u"office--"_s << u"office--"_s;
        QTest::newRow("emptied") << QString() << u"meeting"_s;
    }
    void slugTyping()
    {
        QFETCH(QString, typed);
        QTEST(EventTypes::slugAfterTyping(typed), "kept");
    }

    void durations_data()
    {
        QTest::addColumn<int>("current");
        QTest::addColumn<QList<int>>("offered");
        const QList<int> usual{10, 15, 20, 25, 30, 45, 50, 60, 75, 90, 120};
        QTest::newRow("a usual one") << 30 << usual;
        QTest::newRow("37 between 30 and 45") << 37 << QList<int>{10, 15, 20, 25, 30, 37, 45, 50, 60, 75, 90, 120};
        QTest::newRow("longer than all") << 240 << QList<int>(usual) + QList<int>{240};
        QTest::newRow("none") << 0 << QList<int>{0} + usual;
    }
    void durations()
    {
        QFETCH(int, current);
        QTEST(EventTypes::durations(current), "offered");
    }

    void questions_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("asked");
        QTest::addColumn<bool>("addable");
        QTest::addColumn<QString>("trimmed");
        QTest::newRow("blanks and tabs off the ends") << u" \tYour phone?\t "_s << 0 << true << u"Your phone?"_s;
        QTest::newRow("blanks only") << u"  \t "_s << 0 << false << QString();
        QTest::newRow("a line break is no blank") << u"\nWhy?"_s << 0 << true << u"\nWhy?"_s;
        QTest::newRow("the fifth") << u"Team"_s << 4 << true << u"Team"_s;
        QTest::newRow("a sixth") << u"Team"_s << 5 << false << u"Team"_s;
    }
    void questions()
    {
        QFETCH(QString, typed);
        QFETCH(int, asked);
        QTEST(EventTypes::canAddQuestion(typed, QStringList(asked, u"Q"_s)), "addable");
        QTEST(EventTypes::trimmedQuestion(typed), "trimmed");
    }

    void texts()
    {
        EventType t = type(u"a"_s, u"consult"_s);
        QCOMPARE(EventTypes::subtitle(t), u"30 min \u00B7 /consult"_s);
        // Each place shows either a field or a note.
        for (const MeetingLocation l : Location::allCases())
            QVERIFY(EventTypes::detailPrompt(l).isEmpty() != EventTypes::locationNote(l).isEmpty());
        QCOMPARE(EventTypes::detailPrompt(MeetingLocation::in_person), u"Address"_s);
        QCOMPARE(BufferPreview::accessibleLabel(5, 30, 10),
                 u"Blocks 5 minutes before, 30 minute meeting, 10 minutes after"_s);
    }

    // Segments as (x, width, label), left to right.
    void bufferBar_data()
    {
        QTest::addColumn<QList<int>>("time"); // before, minutes, after
        QTest::addColumn<double>("width");
        QTest::addColumn<QList<double>>("geometry");
        QTest::addColumn<QStringList>("labels");
        QTest::newRow("all three") << QList<int>{15, 30, 15} << 600.0 << QList<double>{0, 148, 150, 298, 450, 148}
                                   << QStringList{u"Buffer"_s, u"30m"_s, u"Buffer"_s};
        QTest::newRow("no buffer before: two share the width")
            << QList<int>{0, 30, 10} << 400.0 << QList<double>{0, 298, 300, 98} << QStringList{u"30m"_s, u"Buffer"_s};
        QTest::newRow("narrow buffers are 4 wide, unlabelled")
            << QList<int>{1, 100, 1} << 204.0 << QList<double>{0, 4, 6, 198, 206, 4}
            << QStringList{QString(), u"100m"_s, QString()};
        QTest::newRow("a share of exactly 50 has no label")
            << QList<int>{0, 50, 50} << 100.0 << QList<double>{0, 48, 50, 48} << QStringList{QString(), QString()};
        QTest::newRow("nothing at all: the meeting alone, 4 wide")
            << QList<int>{0, 0, 0} << 300.0 << QList<double>{0, 4} << QStringList{QString()};
        QTest::newRow("no width yet") << QList<int>{5, 30, 5} << 0.0 << QList<double>{0, 4, 6, 4, 12, 4}
                                      << QStringList{QString(), QString(), QString()};
    }
    void bufferBar()
    {
        QFETCH(QList<int>, time);
        QFETCH(double, width);
        QFETCH(QList<double>, geometry);
        QFETCH(QStringList, labels);
        const QList<BufferPreview::Segment> segments = BufferPreview::segments(time[0], time[1], time[2], width);
        QCOMPARE(segments.size(), labels.size());
        for (qsizetype i = 0; i < segments.size(); ++i) {
            QVERIFY(std::isfinite(segments[i].x) && std::isfinite(segments[i].width));
            QCOMPARE(segments[i].x, geometry[2 * i]);
            QCOMPARE(segments[i].width, geometry[2 * i + 1]);
            QCOMPARE(segments[i].label, labels[i]);
        }
    }
};

QTEST_GUILESS_MAIN(TestTypesLogic)
#include "tst_types_logic.moc"
