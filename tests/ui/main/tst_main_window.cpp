// The main window on the fixture app, used as a person would: banners and their buttons,
// the sign-in hero, the sidebar's sections, badges and share links, and the toolbar.
#include "FixtureApp.h"
#include "IconProvider.h"
#include "Keychain.h"
#include "ui/components/ItemLookup.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

#include <memory>

Q_IMPORT_QML_PLUGIN(Quorvane_AppPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_ComponentsPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_OnboardingPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_TodayPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_MainPlugin)

using namespace Qt::StringLiterals;
using namespace quorvane;
using test::FixtureApp;
namespace ItemLookup = quorvane::test::ItemLookup;

Q_DECLARE_METATYPE(quorvane::test::FixtureApp::State)

namespace {

// The main window alone, on a fixture app, shown offscreen, with every QML complaint kept.
struct WindowRig {
    explicit WindowRig(FixtureApp::State state)
        : app(state)
    {
        engine.addImportPath(u"qrc:/qt/qml"_s);
        engine.addImageProvider(u"icon"_s, new IconProvider);
        QObject::connect(&engine, &QQmlEngine::warnings, &engine, [this](const QList<QQmlError> &list) {
            for (const QQmlError &w : list)
                warnings.append(w.toString());
        });
        engine.load(QUrl(u"qrc:/qt/qml/Quorvane/Main/MainWindow.qml"_s));
        if (!engine.rootObjects().isEmpty())
            window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
        QObject::connect(&app.model(), &AppModel::loadingChanged, &engine, [this] {
            starts += app.model().loading() ? 1 : 0;
        });
        if (window) {
            window->show();
            shownOk = QTest::qWaitForWindowExposed(window);
        }
    }

    [[nodiscard]] QQuickItem *item(const QString &name) const
    {
        return ItemLookup::find(window->contentItem(), name);
    }
    [[nodiscard]] bool shown(const QString &name) const { return ItemLookup::shown(item(name)); }
    void click(const QString &name, Qt::KeyboardModifiers modifiers = {}) const
    {
        QQuickItem *target = item(name);
        QVERIFY2(target, qPrintable(name));
        ItemLookup::click(window, target, modifiers);
    }
    [[nodiscard]] QVariant eval(const QString &name, const QString &expression) const
    {
        return ItemLookup::eval(item(name), expression);
    }
    // Refreshes started since the window opened.
    [[nodiscard]] int refreshes() const { return starts; }

    FixtureApp app;
    QQmlApplicationEngine engine;
    QQuickWindow *window = nullptr;
    bool shownOk = false;
    QStringList warnings;
    int starts = 0;
};

#define READY(rig)                                                                                              \
    QVERIFY2((rig).window && (rig).shownOk, qPrintable((rig).warnings.join(u'\n')))

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QQuickStyle::setStyle(u"Fusion"_s);
        FixtureApp::registerQmlSingletons();
    }

    void banner_data()
    {
        QTest::addColumn<FixtureApp::State>("state");
        QTest::addColumn<bool>("shown");
        QTest::addColumn<bool>("retry");
        QTest::addColumn<QString>("icon");
        QTest::newRow("none with data") << FixtureApp::State::withData << false << false << QString();
        QTest::newRow("server error offers retry")
            << FixtureApp::State::errorBanner << true << true << u"exclamationmark.triangle.fill"_s;
        QTest::newRow("offline offers retry") << FixtureApp::State::offline << true << true << u"wifi.slash"_s;
        QTest::newRow("a toast has only the close button")
            << FixtureApp::State::toast << true << false << u"checkmark.circle.fill"_s;
    }
    void banner()
    {
        QFETCH(FixtureApp::State, state);
        QFETCH(bool, shown);
        QFETCH(bool, retry);
        QFETCH(QString, icon);
        WindowRig rig(state);
        READY(rig);
        QCOMPARE(rig.shown(u"banner"_s), shown);
        if (!shown)
            return;
        QCOMPARE(rig.shown(u"bannerRetry"_s), retry);
        QVERIFY(rig.shown(u"bannerClose"_s));
        QCOMPARE(rig.item(u"bannerIcon"_s)->property("name").toString(), icon);
        QCOMPARE(rig.item(u"bannerMessage"_s)->property("text").toString(), rig.app.model().banner()->message);
        // Without a retry button its key does nothing either.
        QTest::keyClick(rig.window, Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(rig.refreshes(), retry ? 1 : 0);
        QTRY_VERIFY(!rig.app.model().loading());
        QVERIFY(!rig.app.model().banner()->message.isEmpty());
    }

    // Retry refreshes at once; a refresh that works takes the banner away.
    void retry()
    {
        WindowRig rig(FixtureApp::State::errorBanner);
        READY(rig);
        rig.click(u"bannerRetry"_s);
        QCOMPARE(rig.refreshes(), 1);
        QTRY_VERIFY(!rig.app.model().loading());
        QVERIFY(rig.shown(u"banner"_s)); // the server still fails

        QTest::keyClick(rig.window, Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(rig.refreshes(), 2);
        QTRY_VERIFY(!rig.app.model().loading());

        rig.app.transport().mode = test::FixtureTransport::Mode::answer;
        rig.click(u"bannerRetry"_s);
        QTRY_VERIFY(!rig.app.model().banner().has_value());
        QTRY_VERIFY(!rig.shown(u"banner"_s));
    }

    void closeDismisses()
    {
        WindowRig rig(FixtureApp::State::offline);
        READY(rig);
        rig.click(u"bannerClose"_s);
        QVERIFY(!rig.app.model().banner().has_value());
        QTRY_VERIFY(!rig.shown(u"banner"_s));
        // A banner that is gone takes its key with it.
        QTest::keyClick(rig.window, Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(rig.refreshes(), 0);
    }

    void heroOrScreens_data()
    {
        QTest::addColumn<FixtureApp::State>("state");
        QTest::addColumn<bool>("dropToken");
        QTest::addColumn<bool>("hero");
        QTest::addColumn<QString>("footer");
        QTest::newRow("signed out, nothing cached") << FixtureApp::State::signedOut << false << true
                                                    << u"Not signed in"_s;
        QTest::newRow("signed in") << FixtureApp::State::withData << false << false << u"Ilse Varga"_s;
        QTest::newRow("token gone, account cached") << FixtureApp::State::withData << true << false
                                                    << u"Ilse Varga"_s;
    }
    void heroOrScreens()
    {
        QFETCH(FixtureApp::State, state);
        QFETCH(bool, dropToken);
        QFETCH(bool, hero);
        QFETCH(QString, footer);
        WindowRig rig(state);
        READY(rig);
        if (dropToken) {
            Keychain(rig.app.secrets).signOut();
            rig.app.model().refreshNow();
            QTRY_VERIFY(rig.app.model().needsSignIn());
        }
        QCOMPARE(rig.shown(u"signInHero"_s), hero);
        QCOMPARE(rig.shown(u"sectionContent"_s), !hero);
        QCOMPARE(rig.item(u"accountName"_s)->property("text").toString(), footer);
        if (hero) {
            QVERIFY(rig.shown(u"heroTitle"_s));
            QTRY_VERIFY(rig.shown(u"signInButton"_s)); // the sign-in panel itself
        }
    }

    void shareLinks()
    {
        WindowRig rig(FixtureApp::State::withData);
        READY(rig);
        const int active = int(rig.app.model().activeTypes().size());
        QVERIFY(active > 0);
        QVERIFY(rig.shown(u"shareLinksHeading"_s));
        QCOMPARE(rig.item(u"shareLinkRows"_s)->property("count").toInt(), active);

        rig.app.clipboard.texts.clear();
        QQuickItem *rows = rig.item(u"shareLinkRows"_s);
        QQuickItem *first = nullptr;
        QMetaObject::invokeMethod(rows, "itemAt", Q_RETURN_ARG(QQuickItem *, first), Q_ARG(int, 0));
        QVERIFY(first);
        first->setObjectName(u"firstShareLink"_s);
        rig.click(u"firstShareLink"_s);
        QCOMPARE(rig.app.clipboard.texts, QStringList{rig.app.model().link(rig.app.model().activeTypes().first())});
        QCOMPARE(rig.eval(u"firstShareLink"_s, u"Accessible.name"_s).toString(),
                 u"Copy link for "_s + rig.app.model().activeTypes().first().title);

        for (EventType &type : rig.app.transport().data.settings->eventTypes)
            type.isActive = false;
        rig.app.model().refreshNow();
        QTRY_VERIFY(!rig.shown(u"shareLinksHeading"_s));
        QCOMPARE(rig.item(u"shareLinkRows"_s)->property("count").toInt(), 0);
    }

    // Choosing a row picks its section; choosing or deselecting the current one keeps it.
    void sidebarSelection()
    {
        WindowRig rig(FixtureApp::State::withData);
        READY(rig);
        AppModel &model = rig.app.model();
        QCOMPARE(rig.window->title(), u"Today"_s);
        rig.click(u"sectionRow_bookings"_s);
        QCOMPARE(model.section(), AppSection::bookings);
        QCOMPARE(rig.window->title(), u"Bookings"_s);
        rig.click(u"sectionRow_bookings"_s);
        rig.click(u"sectionRow_bookings"_s, Qt::ControlModifier);
        QCOMPARE(model.section(), AppSection::bookings);
        QVERIFY(rig.item(u"sectionRow_bookings"_s)->property("highlighted").toBool());
        QVERIFY(!rig.item(u"sectionRow_today"_s)->property("highlighted").toBool());
        QCOMPARE(rig.eval(u"sectionRow_polls"_s, u"Accessible.description"_s).toString(), u"Shortcut Ctrl+5"_s);

        QTest::keyClick(rig.window, Qt::Key_Down);
        QCOMPARE(model.section(), AppSection::types);
        QTest::keyClick(rig.window, Qt::Key_Up);
        QTest::keyClick(rig.window, Qt::Key_Up);
        QTest::keyClick(rig.window, Qt::Key_Up);
        QCOMPARE(model.section(), AppSection::today); // the first row stays the first

        rig.click(u"sectionRow_insights"_s);
        QCOMPARE(rig.item(u"sectionPlaceholder"_s)->property("title").toString(), u"Insights"_s);
        QCOMPARE(rig.item(u"sectionPlaceholder"_s)->property("symbol").toString(), u"chart.xyaxis.line"_s);
    }

    void badges()
    {
        WindowRig rig(FixtureApp::State::withData);
        READY(rig);
        const auto badge = [&rig](const QString &section) {
            return ItemLookup::find(rig.item(u"sectionRow_"_s + section), u"badge"_s);
        };
        QVERIFY(badge(u"today"_s)->isVisible());
        QCOMPARE(badge(u"today"_s)->property("text").toString(), QString::number(rig.app.model().today().size()));
        QCOMPARE(badge(u"bookings"_s)->property("text").toString(),
                 QString::number(rig.app.model().upcoming().size()));
        QVERIFY(!badge(u"types"_s)->isVisible());

        rig.app.transport().data.upcoming.clear();
        rig.app.model().refreshNow();
        QTRY_VERIFY(!badge(u"today"_s)->isVisible()); // a count of 0 isn't drawn
        QVERIFY(!badge(u"bookings"_s)->isVisible());
    }

    void toolbar()
    {
        WindowRig rig(FixtureApp::State::withData);
        READY(rig);
        AppModel &model = rig.app.model();
        QTest::keyClick(rig.window, Qt::Key_K, Qt::ControlModifier);
        QVERIFY(model.showPalette());
        QTest::keyClick(rig.window, Qt::Key_Escape);
        QVERIFY(!model.showPalette());
        rig.click(u"paletteButton"_s);
        QVERIFY(model.showPalette());
        model.setShowPalette(false);

        QSignalSpy opened(&rig.app.shell(), &ShellController::openRequested);
        rig.click(u"quickShareButton"_s);
        QCOMPARE(opened.size(), 1);
        QCOMPARE(opened.first().first().toString(), u"share"_s);
        QCOMPARE(rig.eval(u"quickShareButton"_s, u"ToolTip.text"_s).toString(),
                 u"Share a few open times (Ctrl+Alt+Super+S anywhere)"_s);
        QCOMPARE(rig.eval(u"paletteButton"_s, u"ToolTip.text"_s).toString(), u"Command palette (Ctrl+K)"_s);
        QCOMPARE(rig.eval(u"refreshButton"_s, u"ToolTip.text"_s).toString(), u"Refresh (Ctrl+R)"_s);

        QTest::keyClick(rig.window, Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(rig.refreshes(), 1);
        QTRY_COMPARE(rig.item(u"subtitle"_s)->property("text").toString(), u"Updated 9:40\u202FAM"_s);
    }

    // While a refresh hangs, a spinner stands in for the refresh symbol.
    void refreshSpinner()
    {
        WindowRig rig(FixtureApp::State::loading);
        READY(rig);
        QVERIFY(!rig.shown(u"refreshBusy"_s));
        rig.click(u"refreshButton"_s);
        QTRY_VERIFY(rig.app.model().loading());
        QVERIFY(rig.shown(u"refreshBusy"_s));
        QCOMPARE(rig.eval(u"refreshButton"_s, u"icon.source.toString()"_s).toString(), QString());
    }

};

QTEST_MAIN(TestMainWindow)
#include "tst_main_window.moc"
