// The availability screen on the fixture app, used with a real mouse and the keyboard: a drag
// on empty space adds hours, a drag on a block moves it, an edge drag resizes it, focus mode
// draws focus over hours, and a focused block answers to its keys. Each gesture is one edit of
// the draft, and nothing goes to the server until the pause is over.
#include "FixtureApp.h"
#include "ui/components/ItemLookup.h"

#include <QQuickStyle>
#include <QSignalSpy>

#include "QuorvaneQmlModules.h"

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {

struct Rig : FixtureApp, View {
    Rig()
        : View("import QtQuick\nimport Quorvane.Availability\nWindow { width: 1000; height: 1400; visible: true; "
               "AvailabilityView { anchors.fill: parent } }")
        , edits(&model(), &AppModel::draftSettingsChanged)
    {}
    // A day's rows, where its blocks and drags live.
    [[nodiscard]] QQuickItem *rows(int weekday) const
    {
        const QList<QQuickItem *> found = all(u"dayRows"_s, item(u"day"_s + QString::number(weekday)));
        return found.value(0);
    }
    // Presses at one height of a day, moves in steps to another, and lets go.
    void drag(int weekday, double fromY, double toY, double x = 20) const
    {
        QQuickItem *day = rows(weekday);
        QVERIFY(day);
        const auto at = [&](double y) { return day->mapToScene(QPointF(x, y)).toPoint(); };
        QTest::mousePress(window, Qt::LeftButton, {}, at(fromY));
        for (int step = 1; step <= 6; ++step)
            QTest::mouseMove(window, at(fromY + (toY - fromY) * step / 6));
        QTest::mouseRelease(window, Qt::LeftButton, {}, at(toY));
    }
    [[nodiscard]] QList<TimeRange> hours(int weekday)
    {
        for (const DayAvailability &d : model().draftSettings()->availability)
            if (d.weekday == weekday)
                return d.ranges;
        return {};
    }
    [[nodiscard]] int saves() { return int(transport().requested.count(u"PUT sync/settings"_s)); }
    QSignalSpy edits;
};

double y(int minute)
{
    return double(minute - 360) / 60 * 38;
}

// Types as on a keyboard, one key at a time.
void type(QWindow *window, const char *text)
{
    for (const char *c = text; *c; ++c)
        QTest::keyClick(window, *c);
}

} // namespace

class TestAvailabilityView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QQuickStyle::setStyle(u"Fusion"_s);
        FixtureApp::registerQmlSingletons();
    }

    void mouse()
    {
        Rig rig;
        QVERIFY_READY(rig);
        QTRY_VERIFY(rig.shows(u"weekGrid"_s));
        const int requestsBefore = int(rig.transport().requested.size());

        // Saturday morning drawn on empty space.
        rig.drag(7, y(540), y(720));
        QCOMPARE(rig.hours(7), (QList<TimeRange>{{540, 720}}));
        QCOMPARE(rig.edits.size(), 1);

        // Friday's block (9 AM–1 PM) moved down an hour by its middle.
        rig.drag(6, y(660), y(720));
        QCOMPARE(rig.hours(6), (QList<TimeRange>{{600, 840}}));
        QCOMPARE(rig.edits.size(), 2);

        // Its bottom edge taken from 2 PM to 5 PM.
        rig.drag(6, y(840) - 3, y(1020) - 3);
        QCOMPARE(rig.hours(6), (QList<TimeRange>{{600, 1020}}));

        // Nothing went out during the gestures; one save after the pause holds them all.
        QCOMPARE(rig.transport().requested.size(), requestsBefore);
        QTRY_COMPARE_WITH_TIMEOUT(rig.saves(), 1, 3000);
        QVERIFY2(rig.warnings.isEmpty(), qPrintable(rig.warnings.join(u'\n')));
    }

    // In focus mode a drag over Monday's hours draws a focus block and leaves the hours.
    void focusOverHours()
    {
        Rig rig;
        QVERIFY_READY(rig);
        QTRY_VERIFY(rig.shows(u"weekGrid"_s));
        rig.window->findChild<QObject *>(u"availabilityModel"_s)->setProperty("mode", 1);
        rig.drag(2, y(600), y(690));
        const QList<FocusBlock> focus = rig.model().draftSettings()->focusBlocks;
        QCOMPARE(focus.size(), 2);
        QCOMPARE(focus.last().weekday, 2);
        QCOMPARE(focus.last().range, (TimeRange{600, 690}));
        QCOMPARE(rig.hours(2), (QList<TimeRange>{{540, 1020}}));
        QCOMPARE(rig.edits.size(), 1);
    }

    void keyboard()
    {
        Rig rig;
        QVERIFY_READY(rig);
        QTRY_VERIFY(rig.shows(u"weekGrid"_s));
        // Tab reaches Monday's block first after the controls above the grid.
        QQuickItem *block = nullptr;
        for (int i = 0; i < 12 && !block; ++i) {
            rig.key(Qt::Key_Tab);
            QQuickItem *focused = rig.window->activeFocusItem();
            if (focused && focused->property("accessible").toString().startsWith(u"Mon available"_s))
                block = focused;
        }
        QVERIFY(block);
        rig.key(Qt::Key_Down);
        QCOMPARE(rig.hours(2), (QList<TimeRange>{{555, 1035}}));
        rig.key(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(rig.hours(2), (QList<TimeRange>{{555, 1065}}));
        rig.key(Qt::Key_Up, Qt::ShiftModifier);
        rig.key(Qt::Key_Up);
        QCOMPARE(rig.hours(2), (QList<TimeRange>{{540, 1020}}));
        QTRY_VERIFY(rig.window->activeFocusItem());
        rig.key(Qt::Key_Delete);
        QCOMPARE(rig.hours(2), QList<TimeRange>{});
        QCOMPARE(rig.edits.size(), 5);
    }

    // Typing a sentence previews it; Return applies it and empties the box; a sentence with no
    // days keeps the text and changes nothing.
    void sentence()
    {
        Rig rig;
        QVERIFY_READY(rig);
        QTRY_VERIFY(rig.shows(u"weekGrid"_s));
        QQuickItem *field = rig.item(u"sentenceField"_s);
        field->forceActiveFocus();
        type(rig.window, "9-5");
        QVERIFY(!rig.shows(u"sentencePreview"_s) || rig.text(u"sentencePreview"_s).isEmpty());
        rig.key(Qt::Key_Return);
        QCOMPARE(field->property("text").toString(), u"9-5"_s);
        QCOMPARE(rig.edits.size(), 0);

        field->setProperty("text", QString());
        type(rig.window, "tue thu 8-11am");
        QCOMPARE(rig.text(u"sentencePreview"_s), u"Will set Tue 8 AM\u201311 AM \u00B7 Thu 8 AM\u201311 AM"_s);
        rig.key(Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(rig.hours(3), (QList<TimeRange>{{480, 660}}));
        QCOMPARE(rig.hours(2), (QList<TimeRange>{{540, 1020}}));
        QCOMPARE(field->property("text").toString(), QString());
        QCOMPARE(rig.model().banner()->message, u"Availability updated"_s);
    }
};

QTEST_MAIN(TestAvailabilityView)
#include "tst_availability_view.moc"
