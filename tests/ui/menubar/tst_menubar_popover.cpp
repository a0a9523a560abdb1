// The tray popover on the fixture app: which parts show in each state, and what its buttons do.
#include "APIError.h"
#include "IconProvider.h"
#include "LinkTypesModel.h"
#include "SystemColors.h"
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
        QTest::newRow("server error") << S::errorBanner << false << false << true << false;
        QTest::newRow("toast") << S::toast << false << false << false << true;
    }
    void content()
    {
        QFETCH(FixtureApp::State, state);
        QFETCH(bool, revoked);
        QFETCH(bool, signIn);
        QFETCH(bool, banner);
        QFETCH(bool, toast);
        FixtureRig rig(FixtureApp::Options{.state = state});
        if (revoked)
            rig.app.model().handle(std::make_exception_ptr(APIError::unauthorized()));
        ViewRig view(popoverWindow, rig.setup());
        QString why;
        QVERIFY2(view.ready(&why), qPrintable(why));
        QCOMPARE(view.window()->width(), 340);

        QCOMPARE(view.item(u"popoverDate"_s)->property("text").toString(), u"Tuesday, Mar 10"_s);
        QCOMPARE(ViewRig::shown(view.item(u"signInSlot"_s)), signIn);
        QCOMPARE(ViewRig::shown(view.item(u"signedInContent"_s)), !signIn);
        if (banner) // it slides in
            QTRY_VERIFY(ViewRig::shown(view.item(u"popoverBanner"_s)));
        else
            QVERIFY(!ViewRig::shown(view.item(u"popoverBanner"_s)));
        QCOMPARE(ViewRig::shown(view.item(u"toast"_s)), toast);
        QVERIFY(ViewRig::shown(view.item(u"openMain"_s)));
        QVERIFY(ViewRig::shown(view.item(u"quit"_s)));
        if (signIn) // the panel itself, loaded and drawn
            QTRY_VERIFY(ViewRig::shown(view.item(u"signInButton"_s)));
        if (toast)
            QCOMPARE(view.item(u"toast"_s)->property("color").value<QColor>(), SystemColors::green());
    }

    void copyALink()
    {
        FixtureRig rig;
        ViewRig view(popoverWindow, rig.setup());
        QString why;
        QVERIFY2(view.ready(&why), qPrintable(why));
        QCOMPARE(itemsNamed(view.window()->contentItem(), u"copyLink"_s).size(), 3); // Office Hours is off
        QQuickItem *consultation = button(view, u"Copy Consultation link"_s);
        QVERIFY(consultation);
        view.click(consultation);
        QCOMPARE(rig.app.clipboard.texts.value(0), u"https://quorvane.app/ilse/consult"_s);
        QQuickItem *toast = view.item(u"toast"_s);
        QTRY_VERIFY(ViewRig::shown(toast));
        QCOMPARE(toast->property("text").toString(), u"Copied link for Consultation"_s);
        QVERIFY(!ViewRig::shown(view.item(u"popoverBanner"_s)));
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
        QString why;
        QVERIFY2(view.ready(&why), qPrintable(why));
        QSignalSpy opened(&rig.app.shell(), &ShellController::openRequested);
        QSignalSpy quit(&rig.app.shell(), &ShellController::quitRequested);
        view.click(view.item(control));
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
        QString why;
        QVERIFY2(view.ready(&why), qPrintable(why));
        rig.app.transport().requested.clear();
        view.click(view.item(u"refresh"_s));
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

    void linkTypesModel()
    {
        FixtureRig rig;
        LinkTypesModel model;
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.setApp(&rig.app.model());
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(model.index(2).data(LinkTypesModel::TitleRole).toString(), u"Deep Dive"_s);
        QCOMPARE(model.index(2).data(LinkTypesModel::MinutesRole).toString(), u"60m"_s);
        QCOMPARE(model.index(2).data(LinkTypesModel::AccessibleNameRole).toString(), u"Copy Deep Dive link"_s);
        QCOMPARE(model.index(2).data(LinkTypesModel::ColorRole).value<QColor>(), QColor(u"#AF52DE"_s));
        rig.serverChanges([](Snapshot &s) { s.settings->eventTypes[0].isActive = false; });
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.index(0).data(LinkTypesModel::TitleRole).toString(), u"Consultation"_s);
        rig.serverChanges([](Snapshot &s) { s.settings->eventTypes.clear(); });
        QCOMPARE(model.rowCount(), 0);
    }
};

QTEST_MAIN(TestMenuBarPopover)
#include "tst_menubar_popover.moc"
