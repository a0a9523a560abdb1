// The main window's models over a whole application model at a fixed moment: the section
// badges, the share links, and the frame's texts in each state and after a refresh.
#include "FixtureApp.h"
#include "MainWindowModel.h"
#include "SectionListModel.h"
#include "ShareLinkModel.h"
#include "Tint.h"

#include <QAbstractItemModelTester>
#include <QCoroTask>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;
using test::FixtureApp;

Q_DECLARE_METATYPE(quorvane::test::FixtureApp::State)

namespace {
QVariant roleData(const QAbstractItemModel &model, int row, int role)
{
    return model.data(model.index(row, 0), role);
}
constexpr auto qtest = QAbstractItemModelTester::FailureReportingMode::QtTest;
} // namespace

class TestFrameModels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Meetings that end leave the badges at the next minute tick, without any refresh.
    void badgesFollowTheClock()
    {
        FixtureApp app;
        SectionListModel rows;
        QAbstractItemModelTester tester(&rows, qtest);
        rows.setApp(&app.model());
        QSignalSpy changed(&rows, &QAbstractItemModel::dataChanged);
        QCOMPARE(roleData(rows, 0, SectionListModel::BadgeRole).toInt(), int(app.model().today().size()));
        QVERIFY(roleData(rows, 0, SectionListModel::BadgeRole).toInt() > 0);
        app.clock.set(QDateTime(QDate(2026, 3, 11), QTime(3, 59), Qt::UTC)); // 23:59 in New York (EDT)
        Q_EMIT app.model().ticked();
        QVERIFY(!changed.isEmpty());
        QVERIFY(changed.last().at(2).value<QList<int>>().contains(SectionListModel::BadgeRole));
        QCOMPARE(roleData(rows, 0, SectionListModel::BadgeRole).toInt(), 0);
    }

    // One row per active type, on the server the user set; none once nothing is active.
    void shareLinks()
    {
        FixtureApp app;
        ShareLinkModel links;
        QAbstractItemModelTester tester(&links, qtest);
        links.setApp(&app.model());
        QSignalSpy counted(&links, &ShareLinkModel::countChanged);
        app.model().setServerURL(u"https://book.example.org"_s);
        const QList<EventType> active = app.model().activeTypes();
        QVERIFY(active.size() < app.model().eventTypes().size()); // the fixture has an inactive type
        QCOMPARE(links.count(), int(active.size()));
        for (int row = 0; row < links.count(); ++row) {
            const EventType &type = active[row];
            const QString link = u"https://book.example.org/ilse/"_s + type.slug;
            QCOMPARE(roleData(links, row, ShareLinkModel::TitleRole).toString(), type.title);
            QCOMPARE(roleData(links, row, ShareLinkModel::LinkRole).toString(), link);
            QCOMPARE(roleData(links, row, ShareLinkModel::ToolTipRole).toString(), u"Copy "_s + link);
            QCOMPARE(roleData(links, row, ShareLinkModel::AccessibleRole).toString(), u"Copy link for "_s + type.title);
            QCOMPARE(roleData(links, row, ShareLinkModel::ColorRole).value<QColor>(), QColor(type.colorHex));
        }
        QCOMPARE(counted.size(), 0);

        for (EventType &type : app.transport().data.settings->eventTypes)
            type.isActive = false;
        QCoro::waitFor(app.model().refresh());
        QCOMPARE(links.count(), 0);
        QCOMPARE(counted.size(), 1);
    }

    void frame_data()
    {
        QTest::addColumn<FixtureApp::State>("state");
        QTest::addColumn<QString>("subtitle");
        QTest::addColumn<QString>("initials");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("status");
        QTest::addColumn<bool>("hero");
        QTest::newRow("signed in") << FixtureApp::State::withData << QString() << u"IV"_s << u"Ilse Varga"_s
                                   << u"Live on Google Calendar"_s << false;
        QTest::newRow("offline") << FixtureApp::State::offline << u"Offline"_s << u"IV"_s << u"Ilse Varga"_s
                                 << u"Offline"_s << false;
        QTest::newRow("signed out") << FixtureApp::State::signedOut << QString() << u"?"_s << u"Not signed in"_s
                                    << u"Calendar not connected"_s << true;
    }
    void frame()
    {
        QFETCH(FixtureApp::State, state);
        QFETCH(QString, subtitle);
        QFETCH(QString, initials);
        QFETCH(QString, name);
        QFETCH(QString, status);
        QFETCH(bool, hero);
        FixtureApp app(state);
        MainWindowModel frame;
        frame.setApp(&app.model());
        QCOMPARE(frame.subtitle(), subtitle);
        QCOMPARE(frame.initials(), initials);
        QCOMPARE(frame.accountName(), name);
        QCOMPARE(frame.statusText(), status);
        QCOMPARE(frame.showsSignInHero(), hero);
    }

    // A refresh re-reads the frame: the time stamp, a calendar gone, an account without a name.
    void frameFollowsTheModel()
    {
        FixtureApp app;
        MainWindowModel frame;
        frame.setApp(&app.model());
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
    }
};

QTEST_MAIN(TestFrameModels)
#include "tst_frame_models.moc"
