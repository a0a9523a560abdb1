// The main window on the fixture app, used as a person would: each part shows in the states
// that call for it, and clicks and keys reach the model.
#include "FixtureApp.h"
#include "Keychain.h"
#include "shell/FirstFrameFonts.h"
#include "ui/components/ItemLookup.h"

#include <QQuickStyle>

#include "QuorvaneQmlModules.h"

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

Q_DECLARE_METATYPE(quorvane::test::FixtureApp::State)

namespace {

// The main window alone on a fixture app (which outlives it), shown offscreen.
struct WindowRig : FixtureApp, View {
    explicit WindowRig(FixtureApp::State state)
        : FixtureApp(state)
        , View({}, QUrl(u"qrc:/qt/qml/Quorvane/Main/MainWindow.qml"_s))
    {
        QObject::connect(&model(), &AppModel::loadingChanged, &engine,
                         [this] { refreshes += model().loading() ? 1 : 0; });
    }
    int refreshes = 0; // started since the window opened
};

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

    // The banner shows the model's banner. Retry, and its key, work only where Retry shows;
    // Close dismisses it, and the key goes with it.
    void banner_data()
    {
        QTest::addColumn<FixtureApp::State>("state");
        QTest::addColumn<bool>("retry");
        QTest::newRow("server error") << FixtureApp::State::errorBanner << true;
        QTest::newRow("toast") << FixtureApp::State::toast << false;
    }
    void banner()
    {
        QFETCH(FixtureApp::State, state);
        QFETCH(bool, retry);
        WindowRig rig(state);
        QVERIFY_READY(rig);
        QVERIFY(rig.shows(u"banner"_s));
        QCOMPARE(rig.shows(u"bannerRetry"_s), retry);
        QCOMPARE(rig.text(u"bannerMessage"_s), rig.model().banner()->message);
        rig.key(Qt::Key_R, ctrlShift);
        QCOMPARE(rig.refreshes, retry ? 1 : 0);
        QTRY_VERIFY(!rig.model().loading());
        if (retry) {
            rig.click(u"bannerRetry"_s);
            QCOMPARE(rig.refreshes, 2);
            QTRY_VERIFY(!rig.model().loading());
            QVERIFY(rig.shows(u"banner"_s)); // the server still fails
        }
        const int before = rig.refreshes;
        rig.click(u"bannerClose"_s);
        QVERIFY(!rig.model().banner().has_value());
        QTRY_VERIFY(!rig.shows(u"banner"_s));
        rig.key(Qt::Key_R, ctrlShift);
        QCOMPARE(rig.refreshes, before);
    }

    void heroOrScreens_data()
    {
        QTest::addColumn<FixtureApp::State>("state");
        QTest::addColumn<bool>("hero");
        QTest::newRow("signed out, nothing cached") << FixtureApp::State::signedOut << true;
        QTest::newRow("token gone, account cached") << FixtureApp::State::withData << false;
    }
    void heroOrScreens()
    {
        QFETCH(FixtureApp::State, state);
        QFETCH(bool, hero);
        WindowRig rig(state);
        QVERIFY_READY(rig);
        Keychain(rig.secrets).signOut();
        rig.model().refreshNow();
        QTRY_VERIFY(rig.model().needsSignIn() && !rig.model().loading());
        QCOMPARE(rig.shows(u"signInHero"_s), hero);
        QCOMPARE(rig.shows(u"sectionContent"_s), !hero);
        QCOMPARE(rig.text(u"accountName"_s), hero ? u"Not signed in"_s : u"Ilse Varga"_s);
        if (hero)
            QTRY_VERIFY(rig.shows(u"signInButton"_s)); // the sign-in panel itself
    }

    // A row picks its section, by click or arrow keys; deselecting the current one keeps it.
    // A share link row copies its link; the heading goes when no type is active.
    // A start looks up the fonts of the first frame before it is drawn; every text style that
    // Today shows on opening has to be among them, or the start pays for it again.
    void firstFrameFonts()
    {
        WindowRig rig(FixtureApp::State::withData);
        QVERIFY_READY(rig);
        const QList<FirstFrameFonts::Style> listed = FirstFrameFonts::styles();
        QList<QQuickItem *> items{rig.window->contentItem()};
        int texts = 0;
        while (!items.isEmpty()) {
            QQuickItem *item = items.takeLast();
            if (!item->isVisible())
                continue;
            items.append(item->childItems());
            if (!item->inherits("QQuickText"))
                continue;
            ++texts;
            const QFont font = item->property("font").value<QFont>();
            const FirstFrameFonts::Style style{font.pixelSize() > 0 ? font.pixelSize() : 0, font.weight()};
            QVERIFY2(
                listed.contains(style),
                qPrintable(
                    u"%1: %2 px, weight %3"_s.arg(item->objectName()).arg(font.pixelSize()).arg(int(font.weight()))));
        }
        QVERIFY(texts > 10);
    }

    void sidebar()
    {
        WindowRig rig(FixtureApp::State::withData);
        QVERIFY_READY(rig);
        rig.click(u"sectionRow_bookings"_s);
        QCOMPARE(rig.model().section(), AppSection::bookings);
        QCOMPARE(rig.window->title(), u"Bookings"_s);
        rig.click(u"sectionRow_bookings"_s);
        rig.click(u"sectionRow_bookings"_s, Qt::ControlModifier);
        QCOMPARE(rig.model().section(), AppSection::bookings);
        QVERIFY(rig.item(u"sectionRow_bookings"_s)->property("highlighted").toBool());
        // A row takes no focus: the list keeps it, and with it the arrow keys.
        QCOMPARE(rig.item(u"sectionRow_bookings"_s)->property("focusPolicy").toInt(), int(Qt::NoFocus));
        rig.key(Qt::Key_Down);
        QCOMPARE(rig.model().section(), AppSection::types);
        for (int i = 0; i < 3; ++i)
            rig.key(Qt::Key_Up);
        QCOMPARE(rig.model().section(), AppSection::today); // the first row stays the first

        QQuickItem *first = nullptr;
        QMetaObject::invokeMethod(rig.item(u"shareLinkRows"_s), "itemAt", Q_RETURN_ARG(QQuickItem *, first),
                                  Q_ARG(int, 0));
        rig.click(first);
        QCOMPARE(rig.clipboard.texts, QStringList{rig.model().link(rig.model().activeTypes().first())});
        QVERIFY(rig.shows(u"shareLinksHeading"_s));
        for (EventType &t : rig.transport().data.settings->eventTypes)
            t.isActive = false;
        rig.model().refreshNow();
        QTRY_VERIFY(!rig.shows(u"shareLinksHeading"_s));
    }
};

QTEST_MAIN(TestMainWindow)
#include "tst_main_window.moc"
