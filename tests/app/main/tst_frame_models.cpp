// The main window's frame: its texts, and its models over a fixture app as it changes.
#include "FixtureApp.h"
#include "components/Tint.h"
#include "main/MainWindowModel.h"
#include "main/MainWindowText.h"
#include "main/SectionListModel.h"

#include <QAbstractItemModelTester>
#include <QCoroTask>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;
using test::FixtureApp;

Q_DECLARE_METATYPE(std::optional<QString>)
Q_DECLARE_METATYPE(std::optional<quorvane::Instant>)

class TestFrameModels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void subtitle_data()
    {
        QTest::addColumn<bool>("offline");
        QTest::addColumn<bool>("saving");
        QTest::addColumn<std::optional<Instant>>("lastRefresh");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("zone");
        QTest::addColumn<QString>("expected");
        const std::optional<Instant> at = QDateTime(QDate(2026, 3, 10), QTime(13, 40), Qt::UTC);
        const QString us = u"en_US"_s, ny = u"America/New_York"_s;
        QTest::newRow("offline wins over saving") << true << true << at << us << ny << u"Offline"_s;
        QTest::newRow("saving wins over the time") << false << true << at << us << ny << u"Saving…"_s;
        QTest::newRow("updated, in the user's zone and 12-hour clock")
            << false << false << at << us << ny << u"Updated 9:40\u202FAM"_s;
        QTest::newRow("updated, 24-hour locale and another zone")
            << false << false << at << u"de_DE"_s << u"Europe/Berlin"_s << u"Updated 14:40"_s;
        QTest::newRow("nothing yet") << false << false << std::optional<Instant>() << us << ny << QString();
    }
    void subtitle()
    {
        QFETCH(bool, offline);
        QFETCH(bool, saving);
        QFETCH(std::optional<Instant>, lastRefresh);
        QFETCH(QString, locale);
        QFETCH(QString, zone);
        QTEST(MainWindowText::subtitle(offline, saving, lastRefresh, locale, zone), "expected");
    }

    // The footer's initials and name, from the account's name as typed.
    void account_data()
    {
        QTest::addColumn<std::optional<QString>>("name");
        QTest::addColumn<QString>("initials");
        QTest::addColumn<QString>("shown");
        const auto named = [](const QString &name, const QString &initials) {
            QTest::newRow(qPrintable(name)) << std::optional<QString>(name) << initials << name;
        };
        named(u"Anna Maria Lopez"_s, u"AM"_s);
        named(u"  ilse   van Varga "_s, u"iv"_s); // case as typed, extra blanks dropped
        named(u"   "_s, QString());
        named(u"\U0001F469\u200D\U0001F4BB E\u0301mile"_s, u"\U0001F469\u200D\U0001F4BB\u00C9"_s); // whole characters
        QTest::newRow("no name") << std::optional<QString>() << u"?"_s << u"Not signed in"_s;
    }
    void account()
    {
        QFETCH(std::optional<QString>, name);
        QTEST(MainWindowText::initials(name), "initials");
        QTEST(MainWindowText::accountName(name), "shown");
    }

    // Meetings that end leave the badges at the next minute tick, without any refresh.
    void badgesFollowTheClock()
    {
        FixtureApp app;
        SectionListModel rows;
        QAbstractItemModelTester tester(&rows, QAbstractItemModelTester::FailureReportingMode::QtTest);
        rows.setApp(&app.model());
        const auto badge = [&rows](int row) {
            return rows.data(rows.index(row, 0), SectionListModel::BadgeRole).toInt();
        };
        QSignalSpy changed(&rows, &QAbstractItemModel::dataChanged);
        QVERIFY(badge(0) > 0);
        QCOMPARE(badge(0), int(app.model().today().size()));
        const int upcoming = badge(1);
        QCOMPARE(upcoming, int(app.model().upcoming().size()));
        app.clock.set(QDateTime(QDate(2026, 3, 11), QTime(3, 59), Qt::UTC)); // 23:59 in New York (EDT)
        Q_EMIT app.model().ticked();
        QVERIFY(!changed.isEmpty() && changed.last().at(2).value<QList<int>>().contains(SectionListModel::BadgeRole));
        QCOMPARE(badge(0), 0);
        QVERIFY(badge(1) < upcoming); // today's have ended
        QCOMPARE(badge(1), int(app.model().upcoming().size()));
    }

    // Signed in; a refresh that lost the calendar and the account's name; offline.
    void frameFollowsTheModel()
    {
        FixtureApp app;
        MainWindowModel frame;
        frame.setApp(&app.model());
        QCOMPARE(frame.initials(), u"IV"_s);
        QCOMPARE(frame.statusText(), u"Live on Google Calendar"_s);
        QCOMPARE(frame.statusColor(), Tints::color(Tint::green));
        QVERIFY(!frame.showsSignInHero());

        QSignalSpy changed(&frame, &MainWindowModel::changed);
        app.transport().data.google->connected = false;
        app.transport().data.account->google->connected = false;
        app.transport().data.account->name.reset();
        QCoro::waitFor(app.model().refresh());
        QVERIFY(!changed.isEmpty());
        QCOMPARE(frame.subtitle(), u"Updated 9:40\u202FAM"_s);
        QCOMPARE(frame.statusText(), u"Calendar not connected"_s);
        QCOMPARE(frame.statusColor(), Tints::color(Tint::orange));
        QCOMPARE(frame.accountName(), u"Not signed in"_s);

        app.transport().data.google->connected = true;
        app.transport().mode = test::FixtureTransport::Mode::fail;
        QCoro::waitFor(app.model().refresh());
        QCOMPARE(frame.subtitle(), u"Offline"_s);
        QCOMPARE(frame.statusText(), u"Offline"_s);
        QCOMPARE(frame.statusColor(), Tints::color(Tint::secondary));
    }
};

QTEST_MAIN(TestFrameModels)
#include "tst_frame_models.moc"
