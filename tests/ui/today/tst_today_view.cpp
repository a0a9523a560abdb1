// The Today screen on the fixture app, in the states that change what shows.
#include "FixtureApp.h"
#include "FixtureSnapshot.h"
#include "ui/components/ItemLookup.h"

#include <QCoroTask>
#include <QQuickStyle>

#include "QuorvaneQmlModules.h"

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(quorvane::test::FixtureApp::State)

namespace {

const QByteArray todayWindow = "import QtQuick\nimport Quorvane.Today\n"
                               "Window { width: 960; height: 900; visible: true; TodayView { anchors.fill: parent } }";

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
        QQuickStyle::setStyle(u"Fusion"_s);
        FixtureApp::registerQmlSingletons();
    }

    // At 9:40 the fixture's first booking runs, 9:30 to 10:00 with Priya Raman, a
    // Consultation with a link. Each row changes one thing about it.
    void card_data()
    {
        QTest::addColumn<bool>("link");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("headline");
        QTest::newRow("with a link") << true << u"consult"_s << u"Consultation with Priya Raman"_s;
        QTest::newRow("without a link") << false << u"consult"_s << u"Consultation with Priya Raman"_s;
        QTest::newRow("of a type that is gone") << true << u"retired"_s << u"Meeting with Priya Raman"_s;
    }
    void card()
    {
        QFETCH(bool, link);
        QFETCH(QString, type);
        FixtureApp app;
        Snapshot &server = app.transport().data;
        if (!link)
            server.upcoming[0].meet.reset();
        server.upcoming[0].type = type;
        QCoro::waitFor(app.model().refresh());
        View view(todayWindow);
        QVERIFY_READY(view);
        QTEST(view.text(u"headline"_s), "headline");
        QCOMPARE(view.text(u"timeRange"_s), u"Tuesday 9:30\u202FAM – 10:00\u202FAM"_s);
        QCOMPARE(view.shows(u"joinButton"_s), link);
        if (link) {
            view.click(u"joinButton"_s);
            QCOMPARE(app.opened, QList<QUrl>{QUrl(u"https://meet.google.com/qvn-0001-ilse"_s)});
        }
    }

    // The card counts down between the model's ticks, on its own timer, while it is seen.
    void cardRedraws()
    {
        FixtureApp app;
        app.clock.set(newYork(9, 5));
        View view(todayWindow);
        QVERIFY_READY(view);
        QObject *timer = view.item(u"nextMeetingCard"_s)->findChild<QObject *>(u"redrawTimer"_s);
        QVERIFY(timer && timer->property("running").toBool());
        app.clock.advance(std::chrono::minutes(20));
        QVERIFY(QMetaObject::invokeMethod(timer, "triggered"));
        QCOMPARE(view.text(u"caption"_s), u"NEXT · in 5m"_s);
        view.window->hide();
        QTRY_VERIFY(!timer->property("running").toBool());
    }

    // Below the card, at 9:40: four of today's bookings ahead or running, seven this week (not
    // the cancelled one nor Monday's), one poll open; the calendar card; skeletons.
    void screen_data()
    {
        QTest::addColumn<FixtureApp::State>("state");
        QTest::addColumn<bool>("empty");
        QTest::addColumn<bool>("calendar");
        QTest::addColumn<QString>("tiles"); // empty: skeletons instead
        QTest::addColumn<bool>("connectCard");
        using S = FixtureApp::State;
        QTest::newRow("calendar connected") << S::withData << false << true << u"4 7 1"_s << false;
        QTest::newRow("no calendar") << S::withData << false << false << u"4 7 1"_s << true;
        QTest::newRow("nothing booked") << S::withData << true << true << u"0 0 0"_s << false;
        // Signed in, nothing cached, the first refresh still out: no account yet.
        QTest::newRow("account not loaded") << S::loading << false << false << QString() << false;
    }
    void screen()
    {
        QFETCH(FixtureApp::State, state);
        QFETCH(bool, empty);
        QFETCH(bool, calendar);
        QFETCH(QString, tiles);
        QFETCH(bool, connectCard);
        FixtureApp app(FixtureApp::Options{.state = state, .emptyData = empty});
        app.transport().data.google->connected = calendar;
        app.transport().data.account->google->connected = calendar;
        if (state != FixtureApp::State::loading)
            QCoro::waitFor(app.model().refresh());
        View view(todayWindow);
        QVERIFY_READY(view);
        QCOMPARE(view.shows(u"todaySkeleton"_s), tiles.isEmpty());
        QCOMPARE(view.shows(u"connectCard"_s), connectCard);
        if (tiles.isEmpty()) {
            // Bars at the fixed widths, one row each; the shimmer runs only while it is seen.
            QQuickItem *skeleton = view.item(u"todaySkeleton"_s);
            QList<QQuickItem *> bars = skeleton->childItems().first()->childItems();
            bars.removeIf([](const QQuickItem *row) { return row->childItems().size() != 2; });
            QCOMPARE(bars.size(), 4);
            QCOMPARE(bars[3]->childItems()[0]->width(), 161.0);
            QCOMPARE(bars[3]->childItems()[1]->width(), 109.0);
            QVERIFY(skeleton->property("animating").toBool());
            view.window->hide();
            QTRY_VERIFY(!skeleton->property("animating").toBool());
            return;
        }
        QStringList values;
        for (const QString &tile : {u"todayTile"_s, u"weekTile"_s, u"pollsTile"_s})
            values << view.item(tile)->property("value").toString();
        QCOMPARE(values.join(u' '), tiles);
        QCOMPARE(view.shows(u"emptyDay"_s), empty);
        QCOMPARE(view.shows(u"noMeeting"_s), empty);
        QCOMPARE(view.all(u"marker"_s).size(), empty ? 0 : 4); // a timeline row each
        if (connectCard) {
            view.click(u"connectButton"_s);
            QTRY_VERIFY(app.transport().requested.contains(u"POST sync/connect-link"_s));
        }
    }
};

QTEST_MAIN(TestTodayView)
#include "tst_today_view.moc"
