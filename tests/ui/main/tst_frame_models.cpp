// The main window's models over a whole application model at a fixed moment: the section
// badges, the share links, and the frame's texts as the model changes. The texts' own rules
// are tst_main_window_text's.
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

    // The frame's texts follow the model: signed in; after a refresh that lost the calendar
    // and the account's name; offline. (Signed out, the hero shows: tst_main_window.)
    void frameFollowsTheModel()
    {
        FixtureApp app;
        MainWindowModel frame;
        frame.setApp(&app.model());
        QCOMPARE(frame.subtitle(), QString());
        QCOMPARE(frame.initials(), u"IV"_s);
        QCOMPARE(frame.accountName(), u"Ilse Varga"_s);
        QCOMPARE(frame.statusText(), u"Live on Google Calendar"_s);
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
        QCOMPARE(frame.initials(), u"?"_s);
        QCOMPARE(frame.accountName(), u"Not signed in"_s);

        app.transport().mode = test::FixtureTransport::Mode::fail;
        QCoro::waitFor(app.model().refresh());
        QCOMPARE(frame.subtitle(), u"Offline"_s);
        QCOMPARE(frame.statusText(), u"Offline"_s);
    }
};

QTEST_MAIN(TestFrameModels)
#include "tst_frame_models.moc"
