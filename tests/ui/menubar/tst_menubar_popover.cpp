// The tray popover on the fixture app: which parts show in each state, and what its buttons do.
#include "APIError.h"
#include "IconProvider.h"
#include "LinkTypesModel.h"
#include "TrayController.h"
#include "TrayIcon.h"
#include "ui/onboarding/ViewRig.h"
#include "ui/today/FixtureRig.h"

#include <QAbstractItemModelTester>
#include <QQmlApplicationEngine>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Quorvane_AppPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_ComponentsPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_OnboardingPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_TodayPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_MenuBarPlugin)

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(quorvane::test::FixtureApp::State)

namespace {

const QByteArray popoverWindow = R"(
import QtQuick
import Quorvane.MenuBar
MenuBarPopover { visible: true }
)";

QQuickItem *button(const ViewRig &view, const QString &accessibleName)
{
    const QList<QQuickItem *> all = itemsNamed(view.window()->contentItem(), u"copyLink"_s);
    for (QQuickItem *item : all) {
        if (item->property("accessibleName").toString() == accessibleName)
            return item;
    }
    return nullptr;
}

} // namespace

class TestMenuBarPopover : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        FixtureApp::registerQmlSingletons();
        ViewRig::prepareProcess();
    }

    // Which part shows in each state: the rules are PopoverContent's (tst_menubar_logic); here,
    // that the popover follows them.
    void content_data()
    {
        QTest::addColumn<FixtureApp::State>("state");
        QTest::addColumn<bool>("revoked"); // the server refused the token; the cache stays
        QTest::addColumn<bool>("signIn");
        QTest::addColumn<bool>("banner");
        QTest::addColumn<bool>("toast");
        using S = FixtureApp::State;
        QTest::newRow("signed in") << S::withData << false << false << false << false;
        QTest::newRow("signed out, nothing cached") << S::signedOut << false << true << false << false;
        QTest::newRow("token revoked, data cached") << S::withData << true << false << true << false;
        QTest::newRow("offline") << S::offline << false << false << true << false;
        QTest::newRow("toast") << S::toast << false << false << false << true;
    }
    void content()
    {
        QFETCH(FixtureApp::State, state);
        QFETCH(bool, revoked);
        QFETCH(bool, signIn);
        QFETCH(bool, banner);
        FixtureRig rig(FixtureApp::Options{.state = state});
        if (revoked)
            rig.app.model().handle(std::make_exception_ptr(APIError::unauthorized()));
        ViewRig view(popoverWindow, rig.setup());
        QVERIFY_READY(view);
        QCOMPARE(view.text(u"popoverDate"_s), u"Tuesday, Mar 10"_s);
        QCOMPARE(view.shows(u"signedInContent"_s), !signIn);
        QTEST(view.shows(u"signInSlot"_s), "signIn");
        QTEST(view.shows(u"toast"_s), "toast");
        if (banner) // it slides in
            QTRY_VERIFY(view.shows(u"popoverBanner"_s));
        else
            QVERIFY(!view.shows(u"popoverBanner"_s));
        if (signIn) // the panel itself, loaded and drawn
            QTRY_VERIFY(view.shows(u"signInButton"_s));
    }

    // A type's button copies its link and says so in the toast line.
    void copyALink()
    {
        FixtureRig rig;
        ViewRig view(popoverWindow, rig.setup());
        QVERIFY_READY(view);
        QCOMPARE(itemsNamed(view.window()->contentItem(), u"copyLink"_s).size(), 3); // Office Hours is off
        QQuickItem *consultation = button(view, u"Copy Consultation link"_s);
        QVERIFY(consultation);
        view.click(consultation);
        QCOMPARE(rig.app.clipboard.texts.value(0), u"https://quorvane.app/ilse/consult"_s);
        QTRY_VERIFY(view.shows(u"toast"_s));
        QCOMPARE(view.text(u"toast"_s), u"Copied link for Consultation"_s);
        QVERIFY(!view.shows(u"popoverBanner"_s));
    }

    void windowsAndQuit_data()
    {
        QTest::addColumn<QString>("control");
        QTest::addColumn<QString>("windowId"); // empty: quits
        QTest::newRow("Open Quorvane") << u"openMain"_s << u"main"_s;
        QTest::newRow("Settings") << u"settings"_s << u"settings"_s;
        QTest::newRow("Share times") << u"shareTimes"_s << u"share"_s;
        QTest::newRow("Quit") << u"quit"_s << QString();
    }
    void windowsAndQuit()
    {
        QFETCH(QString, control);
        QFETCH(QString, windowId);
        FixtureRig rig;
        ViewRig view(popoverWindow, rig.setup());
        QVERIFY_READY(view);
        QSignalSpy opened(&rig.app.shell(), &ShellController::openRequested);
        QSignalSpy quit(&rig.app.shell(), &ShellController::quitRequested);
        view.click(control);
        if (windowId.isEmpty()) {
            QCOMPARE(quit.size(), 1);
            return;
        }
        QCOMPARE(opened.size(), 1);
        QCOMPARE(opened.at(0).at(0).toString(), windowId);
        QVERIFY(!view.window()->isVisible()); // the popover makes way
    }

    void refreshAndJoin()
    {
        FixtureRig rig;
        ViewRig view(popoverWindow, rig.setup());
        QVERIFY_READY(view);
        rig.app.transport().requested.clear();
        view.click(u"refresh"_s);
        QTRY_VERIFY(rig.app.transport().requested.contains(u"GET sync/bookings"_s));

        view.window()->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(view.window()));
        QTest::keyClick(view.window(), Qt::Key_J, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(rig.app.opened, QList<QUrl>{QUrl(u"https://meet.google.com/qvn-0001-ilse"_s)});
    }

    // With no tray host the icon has nowhere to go; the app goes on, and whoever opens the
    // popover gets it by the pointer.
    void withoutATrayHost()
    {
        QVERIFY(!QSystemTrayIcon::isSystemTrayAvailable());
        FixtureRig rig;
        QQmlApplicationEngine engine;
        engine.addImportPath(u"qrc:/qt/qml"_s);
        engine.addImageProvider(u"icon"_s, new IconProvider);
        TrayController tray(engine, rig.app.model());
        QVERIFY(!tray.popover());
        QCOMPARE(tray.icon().toolTip(), u"Now: Priya"_s);
        tray.openPopover(QRect());
        QVERIFY(tray.popover());
        QTRY_VERIFY(tray.popover()->isVisible());
        const QRect screen = tray.popover()->screen()->availableGeometry();
        QVERIFY(screen.contains(tray.popover()->geometry()));
    }

    // The copy buttons' model: active types only, following the server.
    void linkTypesModel()
    {
        FixtureRig rig;
        LinkTypesModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setApp(&rig.app.model());
        QCOMPARE(model.rowCount(), 3);
        const QModelIndex deepDive = model.index(2);
        QCOMPARE(deepDive.data(LinkTypesModel::TitleRole).toString(), u"Deep Dive"_s);
        QCOMPARE(deepDive.data(LinkTypesModel::MinutesRole).toString(), u"60m"_s);
        QCOMPARE(deepDive.data(LinkTypesModel::ColorRole).value<QColor>(), QColor(u"#AF52DE"_s));
        rig.serverChanges([](Snapshot &s) { s.settings->eventTypes[0].isActive = false; });
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.index(0).data(LinkTypesModel::TitleRole).toString(), u"Consultation"_s);
    }
};

QTEST_MAIN(TestMenuBarPopover)
#include "tst_menubar_popover.moc"
