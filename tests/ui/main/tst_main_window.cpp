// The main window on the fixture app, used as a person would: that each part shows in the
// states that call for it and that clicks and keys reach the model. What the parts say is
// the models' business (tst_frame_models, tst_main_window_text).
#include "FixtureApp.h"
#include "Keychain.h"
#include "ui/components/ItemLookup.h"

#include <QQuickStyle>
#include <QSignalSpy>
#include <QtQml/qqmlextensionplugin.h>

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

// The main window alone, on a fixture app, shown offscreen.
struct WindowRig {
    explicit WindowRig(FixtureApp::State state)
        : app(state)
    {
        engine.load(QUrl(u"qrc:/qt/qml/Quorvane/Main/MainWindow.qml"_s));
        QObject::connect(&app.model(), &AppModel::loadingChanged, &engine,
                         [this] { refreshes += app.model().loading() ? 1 : 0; });
        window = engine.shownWindow();
    }
    [[nodiscard]] QQuickItem *item(const QString &name) const { return ItemLookup::find(window->contentItem(), name); }
    [[nodiscard]] bool shown(const QString &name) const { return ItemLookup::shown(item(name)); }
    void click(const QString &name, Qt::KeyboardModifiers modifiers = {}) const
    {
        QQuickItem *target = item(name);
        QVERIFY2(target, qPrintable(name));
        ItemLookup::click(window, target, modifiers);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const { QTest::keyClick(window, key, modifiers); }

    FixtureApp app;
    ItemLookup::Engine engine;
    QQuickWindow *window = nullptr;
    int refreshes = 0; // started since the window opened
};

#define READY(rig) QVERIFY2((rig).window, qPrintable((rig).engine.warnings.join(u'\n')))
constexpr auto ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;

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

    // The banner shows the model's banner; its retry key works only where Retry shows.
    void banner_data()
    {
        QTest::addColumn<FixtureApp::State>("state");
        QTest::addColumn<bool>("shown");
        QTest::addColumn<bool>("retry");
        QTest::addColumn<QString>("icon");
        QTest::newRow("none with data") << FixtureApp::State::withData << false << false << QString();
        QTest::newRow("server error") << FixtureApp::State::errorBanner << true << true
                                      << u"exclamationmark.triangle.fill"_s;
        QTest::newRow("offline") << FixtureApp::State::offline << true << true << u"wifi.slash"_s;
        QTest::newRow("toast") << FixtureApp::State::toast << true << false << u"checkmark.circle.fill"_s;
    }
    void banner()
    {
        QFETCH(FixtureApp::State, state);
        QFETCH(bool, shown);
        QFETCH(bool, retry);
        WindowRig rig(state);
        READY(rig);
        QCOMPARE(rig.shown(u"banner"_s), shown);
        if (!shown)
            return;
        QCOMPARE(rig.shown(u"bannerRetry"_s), retry);
        QTEST(rig.item(u"bannerIcon"_s)->property("name").toString(), "icon");
        QCOMPARE(rig.item(u"bannerMessage"_s)->property("text").toString(), rig.app.model().banner()->message);
        rig.key(Qt::Key_R, ctrlShift);
        QCOMPARE(rig.refreshes, retry ? 1 : 0);
        QTRY_VERIFY(!rig.app.model().loading());
    }

    // Retry refreshes at once; Close dismisses the banner, and its key goes with it.
    void bannerButtons()
    {
        WindowRig rig(FixtureApp::State::errorBanner);
        READY(rig);
        rig.click(u"bannerRetry"_s);
        QCOMPARE(rig.refreshes, 1);
        QTRY_VERIFY(!rig.app.model().loading());
        QVERIFY(rig.shown(u"banner"_s)); // the server still fails
        rig.click(u"bannerClose"_s);
        QVERIFY(!rig.app.model().banner().has_value());
        QTRY_VERIFY(!rig.shown(u"banner"_s));
        rig.key(Qt::Key_R, ctrlShift);
        QCOMPARE(rig.refreshes, 1);
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
        WindowRig rig(state);
        READY(rig);
        if (dropToken) {
            Keychain(rig.app.secrets).signOut();
            rig.app.model().refreshNow();
            QTRY_VERIFY(rig.app.model().needsSignIn());
        }
        QCOMPARE(rig.shown(u"signInHero"_s), hero);
        QCOMPARE(rig.shown(u"sectionContent"_s), !hero);
        QTEST(rig.item(u"accountName"_s)->property("text").toString(), "footer");
        if (hero)
            QTRY_VERIFY(rig.shown(u"signInButton"_s)); // the sign-in panel itself
    }

    // A share link row copies its link; the heading goes when no type is active.
    void shareLinks()
    {
        WindowRig rig(FixtureApp::State::withData);
        READY(rig);
        QVERIFY(rig.shown(u"shareLinksHeading"_s));
        QQuickItem *first = nullptr;
        QMetaObject::invokeMethod(rig.item(u"shareLinkRows"_s), "itemAt", Q_RETURN_ARG(QQuickItem *, first), Q_ARG(int, 0));
        QVERIFY(first);
        rig.app.clipboard.texts.clear();
        ItemLookup::click(rig.window, first);
        const EventType type = rig.app.model().activeTypes().first();
        QCOMPARE(rig.app.clipboard.texts, QStringList{rig.app.model().link(type)});
        QCOMPARE(ItemLookup::eval(first, u"Accessible.name"_s).toString(), u"Copy link for "_s + type.title);

        for (EventType &t : rig.app.transport().data.settings->eventTypes)
            t.isActive = false;
        rig.app.model().refreshNow();
        QTRY_VERIFY(!rig.shown(u"shareLinksHeading"_s));
    }

    // Choosing a row picks its section; choosing or deselecting the current one keeps it.
    // Badges show the model's counts, but not a count of 0.
    void sidebar()
    {
        WindowRig rig(FixtureApp::State::withData);
        READY(rig);
        AppModel &model = rig.app.model();
        const auto badge = [&rig](const QString &section) {
            return ItemLookup::find(rig.item(u"sectionRow_"_s + section), u"badge"_s);
        };
        QCOMPARE(badge(u"today"_s)->property("text").toString(), QString::number(model.today().size()));
        QVERIFY(badge(u"today"_s)->isVisible() && !badge(u"types"_s)->isVisible());
        QCOMPARE(rig.window->title(), u"Today"_s);
        rig.click(u"sectionRow_bookings"_s);
        QCOMPARE(model.section(), AppSection::bookings);
        QCOMPARE(rig.window->title(), u"Bookings"_s);
        rig.click(u"sectionRow_bookings"_s);
        rig.click(u"sectionRow_bookings"_s, Qt::ControlModifier);
        QCOMPARE(model.section(), AppSection::bookings);
        QVERIFY(rig.item(u"sectionRow_bookings"_s)->property("highlighted").toBool());
        QVERIFY(!rig.item(u"sectionRow_today"_s)->property("highlighted").toBool());
        QCOMPARE(ItemLookup::eval(rig.item(u"sectionRow_polls"_s), u"Accessible.description"_s).toString(),
                 u"Shortcut Ctrl+5"_s);

        rig.key(Qt::Key_Down);
        QCOMPARE(model.section(), AppSection::types);
        for (int i = 0; i < 3; ++i)
            rig.key(Qt::Key_Up);
        QCOMPARE(model.section(), AppSection::today); // the first row stays the first

        rig.click(u"sectionRow_insights"_s);
        QCOMPARE(rig.item(u"sectionPlaceholder"_s)->property("title").toString(), u"Insights"_s);
    }

    void toolbar()
    {
        WindowRig rig(FixtureApp::State::withData);
        READY(rig);
        AppModel &model = rig.app.model();
        rig.key(Qt::Key_K, Qt::ControlModifier);
        QVERIFY(model.showPalette());
        rig.key(Qt::Key_Escape);
        QVERIFY(!model.showPalette());
        rig.click(u"paletteButton"_s);
        QVERIFY(model.showPalette());
        model.setShowPalette(false);

        QSignalSpy opened(&rig.app.shell(), &ShellController::openRequested);
        rig.click(u"quickShareButton"_s);
        QCOMPARE(opened.size(), 1);
        QCOMPARE(opened.first().first().toString(), u"share"_s);

        rig.key(Qt::Key_R, Qt::ControlModifier);
        QCOMPARE(rig.refreshes, 1);
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
        QCOMPARE(ItemLookup::eval(rig.item(u"refreshButton"_s), u"icon.source.toString()"_s).toString(), QString());
    }
};

QTEST_MAIN(TestMainWindow)
#include "tst_main_window.moc"
