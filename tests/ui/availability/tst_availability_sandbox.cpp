// The availability screen against the sandbox on loopback: the demo's gestures, a typed
// sentence and a rule change reach the server after the pause as one save, and a save the
// server fails leaves the draft on screen with the banner.
#include "ui/components/SandboxScreen.h"

#include <QQuickStyle>

#include "QuorvaneQmlModules.h"

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

namespace {

struct Rig : SandboxScreen {
    bool start() { return SandboxScreen::start("Quorvane.Availability", "AvailabilityView", {1000, 1400}); }
    void drag(int weekday, double fromY, double toY) const
    {
        QQuickItem *rows = view->all(u"dayRows"_s, view->item(u"day"_s + QString::number(weekday))).value(0);
        QVERIFY(rows);
        const auto at = [&](double y) { return rows->mapToScene(QPointF(20, y)).toPoint(); };
        QTest::mousePress(view->window, Qt::LeftButton, {}, at(fromY));
        for (int step = 1; step <= 4; ++step)
            QTest::mouseMove(view->window, at(fromY + (toY - fromY) * step / 4));
        QTest::mouseRelease(view->window, Qt::LeftButton, {}, at(toY));
    }
    [[nodiscard]] int saves() const { return models.transport->count("PUT", u"sync/settings"_s); }
    [[nodiscard]] HostSettings stored() { return models.server.sandbox().backend().settings(); }
};

double y(int minute)
{
    return double(minute - 360) / 60 * 38;
}

QList<TimeRange> hours(const HostSettings &s, int weekday)
{
    for (const DayAvailability &d : s.availability)
        if (d.weekday == weekday)
            return d.ranges;
    return {};
}

// Types as on a keyboard, one key at a time.
void type(QWindow *window, const char *text)
{
    for (const char *c = text; *c; ++c)
        QTest::keyClick(window, *c);
}

} // namespace

class TestAvailabilitySandbox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QQuickStyle::setStyle(u"Fusion"_s);
        registerAppForQml();
    }

    void editsReachTheServer()
    {
        Rig rig;
        QVERIFY2(rig.start(), qPrintable(rig.why));
        View &view = *rig.view;
        QTRY_VERIFY(view.shows(u"weekGrid"_s));
        const int noticeBefore = rig.stored().minNoticeMinutes;

        rig.drag(7, y(540), y(720));         // a Saturday morning
        rig.drag(6, y(750) - 3, y(780) - 3); // Friday morning's end to 1 PM
        view.item(u"sentenceField"_s)->forceActiveFocus();
        type(view.window, "tue thu 8-11am");
        view.key(Qt::Key_Return);
        view.click(view.all(u"up"_s, view.item(u"stepper0"_s)).value(0)); // minimum notice

        QCOMPARE(rig.saves(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(rig.saves(), 1, 5000);
        QTRY_VERIFY(!rig.model->saving());
        const HostSettings stored = rig.stored();
        QCOMPARE(hours(stored, 7), (QList<TimeRange>{{540, 720}}));
        QCOMPARE(hours(stored, 6), (QList<TimeRange>{{540, 780}, {810, 1020}}));
        QCOMPARE(hours(stored, 3), (QList<TimeRange>{{480, 660}}));
        QCOMPARE(hours(stored, 5), (QList<TimeRange>{{480, 660}}));
        QCOMPARE(hours(stored, 2), (QList<TimeRange>{{540, 750}, {810, 1020}}));
        QCOMPARE(stored.minNoticeMinutes, noticeBefore + 15);
        QCOMPARE(stored.availability, rig.model->draftSettings()->availability);
    }

    void failedSaveKeepsTheDraft()
    {
        Rig rig;
        QVERIFY2(rig.start(), qPrintable(rig.why));
        QTRY_VERIFY(rig.view->shows(u"weekGrid"_s));
        sandbox::Fault fault;
        fault.status = 500;
        fault.count = 10; // the client's retries too
        rig.models.server.sandbox().faults().plant(u"sync/settings"_s, fault);
        rig.drag(7, y(600), y(660));
        QTRY_VERIFY_WITH_TIMEOUT(rig.model->banner().has_value(), 10000);
        QCOMPARE(rig.model->banner()->kind, Banner::Kind::error);
        QCOMPARE(hours(*rig.model->draftSettings(), 7), (QList<TimeRange>{{600, 660}}));
        QVERIFY(hours(rig.stored(), 7).isEmpty());
        QVERIFY(!rig.model->saving());
    }
};

QTEST_MAIN(TestAvailabilitySandbox)
#include "tst_availability_sandbox.moc"
