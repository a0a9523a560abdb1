// The Today screen as a user meets it on the fixture: the card, the counters, the timeline
// and the calendar card, each in the states that change what shows; and the timeline's
// model as the screen reads it.
#include "FixtureRig.h"
#include "FixtureSnapshot.h"
#include "SystemColors.h"
#include "TimelineModel.h"
#include "ui/onboarding/ViewRig.h"

#include <QAbstractItemModelTester>
#include <QJSValue>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Quorvane_AppPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_ComponentsPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_TodayPlugin)

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(quorvane::test::FixtureApp::State)

namespace {

const QByteArray todayWindow = R"(
import QtQuick
import Quorvane.Today
Window {
    width: 960; height: 900; visible: true
    TodayView { anchors.fill: parent }
})";

Instant newYork(int hour, int minute)
{
    return QDateTime(QDate(2026, 3, 10), QTime(hour, minute), QTimeZone("America/New_York")).toUTC();
}

} // namespace

class TestTodayView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        FixtureApp::registerQmlSingletons();
        ViewRig::prepareProcess();
    }

    // The fixture's first booking runs from 9:30 to 10:00 with Priya Raman, a Consultation
    // with a link. Each row changes one thing about it.
    void card_data()
    {
        QTest::addColumn<int>("minuteOfDay"); // the clock in New York
        QTest::addColumn<bool>("link");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("headline");
        QTest::addColumn<QString>("barColor");
        const QString consult = u"consult"_s, now = u"HAPPENING NOW"_s, priya = u"Consultation with Priya Raman"_s;
        QTest::newRow("in progress") << 9 * 60 + 40 << true << consult << now << priya << u"#0a84ff"_s;
        QTest::newRow("coming") << 9 * 60 + 5 << true << consult << u"NEXT · in 25m"_s << priya << u"#0a84ff"_s;
        QTest::newRow("without a link") << 9 * 60 + 40 << false << consult << now << priya << u"#0a84ff"_s;
        QTest::newRow("of a type that is gone") << 9 * 60 + 40 << true << u"retired"_s << now
                                                << u"Meeting with Priya Raman"_s << u"#8e8e93"_s;
    }
    void card()
    {
        QFETCH(int, minuteOfDay);
        QFETCH(bool, link);
        QFETCH(QString, type);
        QFETCH(QString, caption);
        QFETCH(QString, headline);
        QFETCH(QString, barColor);
        FixtureRig rig;
        rig.app.clock.set(newYork(minuteOfDay / 60, minuteOfDay % 60));
        rig.serverChanges([&](Snapshot &s) {
            if (!link)
                s.upcoming[0].meet.reset();
            s.upcoming[0].type = type;
        });
        ViewRig view(todayWindow, rig.setup());
        QVERIFY_READY(view);

        QCOMPARE(view.text(u"caption"_s), caption);
        // Green only while it runs.
        QCOMPARE(view.item(u"caption"_s)->property("color").value<QColor>() == SystemColors::green(),
                 caption == u"HAPPENING NOW"_s);
        QCOMPARE(view.text(u"headline"_s), headline);
        QCOMPARE(view.text(u"timeRange"_s), u"Tuesday 9:30\u202FAM – 10:00\u202FAM"_s);
        QObject *gradient = view.item(u"typeBar"_s)->property("gradient").value<QJSValue>().toQObject();
        QVERIFY(gradient);
        QQmlListReference stops(gradient, "stops");
        QCOMPARE(stops.at(stops.count() - 1)->property("color").value<QColor>().name(), barColor);
        QCOMPARE(view.shows(u"joinButton"_s), link);
        if (link) {
            view.click(u"joinButton"_s);
            QCOMPARE(rig.app.opened, QList<QUrl>{QUrl(u"https://meet.google.com/qvn-0001-ilse"_s)});
        }
    }

    // The card counts down between the model's ticks, on its own timer, while it is seen.
    void cardRedraws()
    {
        FixtureRig rig;
        rig.app.clock.set(newYork(9, 5));
        ViewRig view(todayWindow, rig.setup());
        QVERIFY_READY(view);
        QObject *timer = view.item(u"nextMeetingCard"_s)->findChild<QObject *>(u"redrawTimer"_s);
        QVERIFY(timer && timer->property("running").toBool());
        QCOMPARE(timer->property("interval").toInt(), 30'000);
        rig.app.clock.advance(std::chrono::minutes(20));
        QVERIFY(QMetaObject::invokeMethod(timer, "triggered"));
        QCOMPARE(view.text(u"caption"_s), u"NEXT · in 5m"_s);
        view.window()->hide();
        QTRY_VERIFY(!timer->property("running").toBool());
    }

    // The fixture at 9:40: four of today's bookings are ahead or running; seven this week to
    // Saturday (not the cancelled one, nor the one on Monday); one poll open and one booked.
    void countersAndTimeline()
    {
        FixtureRig rig;
        ViewRig view(todayWindow, rig.setup());
        QVERIFY_READY(view);
        QCOMPARE(view.item(u"todayTile"_s)->property("value").toString(), u"4"_s);
        QCOMPARE(view.item(u"weekTile"_s)->property("value").toString(), u"7"_s);
        QCOMPARE(view.item(u"pollsTile"_s)->property("value").toString(), u"1"_s);
        QVERIFY(!view.shows(u"emptyDay"_s));

        const QList<QQuickItem *> markers = itemsNamed(view.window()->contentItem(), u"marker"_s);
        QCOMPARE(markers.size(), 4);
        QCOMPARE(markers[0]->property("color").value<QColor>(), SystemColors::green());
        QCOMPARE(markers[1]->property("color").value<QColor>().name(), u"#34c759"_s); // Intro Call's own
    }

    // Nothing today and nothing coming: the panel and the card say so, and the tiles stay.
    void emptyDay()
    {
        FixtureRig rig(FixtureApp::Options{.emptyData = true});
        ViewRig view(todayWindow, rig.setup());
        QVERIFY_READY(view);
        QVERIFY(view.shows(u"emptyDay"_s));
        QVERIFY(!view.shows(u"timeline"_s));
        QVERIFY(view.shows(u"noMeeting"_s));
        QVERIFY(!view.shows(u"caption"_s));
        QCOMPARE(view.item(u"todayTile"_s)->property("value").toString(), u"0"_s);
    }

    void connectCard_data()
    {
        QTest::addColumn<FixtureApp::State>("state");
        QTest::addColumn<bool>("connected");
        QTest::addColumn<bool>("shown");
        QTest::newRow("calendar connected") << FixtureApp::State::withData << true << false;
        QTest::newRow("no calendar") << FixtureApp::State::withData << false << true;
        // Signed in, nothing cached, the first refresh still out: no account yet.
        QTest::newRow("account not loaded") << FixtureApp::State::loading << false << false;
    }
    void connectCard()
    {
        QFETCH(FixtureApp::State, state);
        QFETCH(bool, connected);
        QFETCH(bool, shown);
        FixtureRig rig(FixtureApp::Options{.state = state});
        if (!connected) {
            rig.app.transport().data.google->connected = false;
            rig.app.transport().data.account->google->connected = false;
        }
        if (state != FixtureApp::State::loading)
            QCoro::waitFor(rig.app.model().refresh());
        ViewRig view(todayWindow, rig.setup());
        QVERIFY_READY(view);
        QVERIFY(view.item(u"connectCard"_s));
        QCOMPARE(view.shows(u"connectCard"_s), shown);
        QCOMPARE(view.shows(u"todaySkeleton"_s), state == FixtureApp::State::loading);
        if (shown) {
            view.click(u"connectButton"_s);
            QTRY_VERIFY(rig.app.transport().requested.contains(u"POST sync/connect-link"_s));
        }
    }

    // Rows keep their identity across ticks and change wholesale when the day does.
    void timelineModel()
    {
        FixtureRig rig;
        TimelineModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setApp(&rig.app.model());
        QCOMPARE(model.rowCount(), 4);
        const QModelIndex first = model.index(0);
        QVERIFY(first.data(TimelineModel::LiveRole).toBool());
        QCOMPARE(first.data(TimelineModel::TimeRole).toString(), u"9:30\u202FAM"_s);
        QCOMPARE(first.data(TimelineModel::DetailRole).toString(), u"Consultation · 30 min"_s);
        QCOMPARE(first.data(TimelineModel::JoinNameRole).toString(), u"Join meeting with Priya Raman"_s);

        rig.app.clock.set(newYork(11, 5));
        Q_EMIT rig.app.model().ticked();
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(model.index(0).data(TimelineModel::NameRole).toString(), u"Tomás Ferreira"_s);
        QVERIFY(model.index(0).data(TimelineModel::LiveRole).toBool());

        rig.serverChanges([](Snapshot &s) { s.upcoming.clear(); });
        QCOMPARE(model.rowCount(), 0);
    }
};

QTEST_MAIN(TestTodayView)
#include "tst_today_view.moc"
