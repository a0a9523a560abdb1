// The shell on the fixture app: its windows made on demand, the start of the model, and
// that every menu entry and key reaches what it names.
#include "FixtureApp.h"
#include "ui/components/ItemLookup.h"

#include <QGuiApplication>
#include <QQuickStyle>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {

// The shell as the app loads it, on the fixture app (which outlives it).
struct ShellRig : FixtureApp, View {
    explicit ShellRig(FixtureApp::Options options = {}, bool hidden = false)
        : FixtureApp(options)
        , View(hiddenFirst(shell(), hidden), QUrl(u"qrc:/qt/qml/Quorvane/Shell/Root.qml"_s))
    {}
    // The shell is told before its QML loads, as main.cpp does.
    static QByteArray hiddenFirst(ShellController &shell, bool hidden)
    {
        shell.setStartHidden(hidden);
        return {};
    }
    [[nodiscard]] static QQuickWindow *window(const QString &id)
    {
        for (QWindow *w : QGuiApplication::topLevelWindows()) {
            if (w->objectName() == id && w->isVisible())
                return qobject_cast<QQuickWindow *>(w);
        }
        return nullptr;
    }
    [[nodiscard]] static qsizetype made(const QString &id)
    {
        const QWindowList all = QGuiApplication::topLevelWindows();
        return std::count_if(all.cbegin(), all.cend(), [&](const QWindow *w) { return w->objectName() == id; });
    }
    [[nodiscard]] int refreshes() { return int(transport().requested.count(u"GET sync/me"_s)); }
};

#define NO_WARNINGS(rig) QVERIFY2((rig).warnings.isEmpty(), qPrintable((rig).warnings.join(u'\n')))

} // namespace

class TestShell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { FixtureApp::registerQmlSingletons(); }

    // Each window is made when first asked for, and shown again after closing.
    void windows()
    {
        ShellRig rig;
        for (const QString &id : {u"main"_s, u"share"_s, u"onboarding"_s, u"about"_s, u"settings"_s}) {
            QCOMPARE(ShellRig::made(id), id == u"main"_s ? 1 : 0);
            const AppWindow::Id which = *AppWindow::fromName(id);
            rig.shell().open(which);
            rig.shell().open(which);
            QQuickWindow *window = ShellRig::window(id);
            QVERIFY2(window, qPrintable(id));
            if (id == u"onboarding"_s || id == u"about"_s) {
                // Fixed to its view's size: nothing to drag, and not an empty box.
                QCOMPARE(window->minimumSize(), window->size());
                QCOMPARE(window->maximumSize(), window->size());
                QVERIFY(window->width() >= 300 && window->height() >= 200);
            }
            window->close();
            QVERIFY(!ShellRig::window(id));
            rig.shell().open(which);
            QVERIFY(ShellRig::window(id));
            QCOMPARE(ShellRig::made(id), 1);
        }
        NO_WARNINGS(rig);
    }

    // Each time the main window appears the model starts, and the welcome guide comes up
    // for as long as it hasn't been finished.
    void bootstrap_data()
    {
        QTest::addColumn<bool>("onboarded");
        QTest::newRow("first run") << false;
        QTest::newRow("guide finished") << true;
    }
    void bootstrap()
    {
        QFETCH(bool, onboarded);
        ShellRig rig(FixtureApp::Options{.onboarded = onboarded});
        QTRY_COMPARE(rig.refreshes(), 1);
        QCOMPARE(bool(ShellRig::window(u"onboarding"_s)), !onboarded);
        if (QQuickWindow *guide = ShellRig::window(u"onboarding"_s))
            guide->close(); // closed without finishing
        ShellRig::window(u"main"_s)->close();
        QTest::qWait(50);
        QCOMPARE(rig.refreshes(), 1); // closing starts nothing
        rig.shell().open(AppWindow::Main);
        QTRY_COMPARE(rig.refreshes(), 2);
        QCOMPARE(bool(ShellRig::window(u"onboarding"_s)), !onboarded);
        NO_WARNINGS(rig);
    }

    // Started in the tray: the model runs, no window is made until one is asked for, and the
    // main window's first appearance brings the welcome guide as usual.
    void startHidden()
    {
        ShellRig rig(FixtureApp::Options{.onboarded = false}, true);
        QTRY_COMPARE(rig.refreshes(), 1);
        QCOMPARE(ShellRig::made(u"main"_s), 0);
        QVERIFY(!ShellRig::window(u"onboarding"_s));
        rig.shell().open(AppWindow::Main);
        QVERIFY(ShellRig::window(u"main"_s));
        QTRY_VERIFY(ShellRig::window(u"onboarding"_s));
        NO_WARNINGS(rig);
    }

    // A menu entry, clicked or by its key with every menu closed, does what it names.
    void menuEntries_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QKeySequence>("keys"); // none: the entry has no key
        QTest::addColumn<QString>("effect");
        const QKeySequence none;
        QTest::newRow("Share Times") << u"shareTimes"_s << QKeySequence(u"Ctrl+Shift+S"_s) << u"window share"_s;
        QTest::newRow("New Poll") << u"newPoll"_s << QKeySequence(u"Ctrl+Shift+N"_s) << u"section polls, showNewPoll"_s;
        QTest::newRow("Settings") << u"settings"_s << QKeySequence(u"Ctrl+,"_s) << u"window settings"_s;
        QTest::newRow("Quit") << u"quit"_s << QKeySequence(u"Ctrl+Q"_s) << u"quit"_s;
        QTest::newRow("Command Palette") << u"commandPalette"_s << QKeySequence(u"Ctrl+K"_s) << u"showPalette"_s;
        QTest::newRow("Join Next Meeting")
            << u"joinNext"_s << QKeySequence(u"Ctrl+Shift+J"_s) << u"join https://meet.google.com/qvn-0001-ilse"_s;
        QTest::newRow("Welcome Guide") << u"welcomeGuide"_s << none << u"window onboarding"_s;
        QTest::newRow("About") << u"about"_s << none << u"window about"_s;
        QTest::newRow("Made by") << u"madeBy"_s << none << u"window about"_s;
        QTest::newRow("Go Today") << u"go.today"_s << none << u"section today"_s;
        QTest::newRow("Go Types") << u"go.types"_s << QKeySequence(u"Ctrl+3"_s) << u"section types"_s;
        QTest::newRow("Go Insights") << u"go.insights"_s << none << u"section insights"_s;
    }
    void menuEntries()
    {
        QFETCH(QString, entry);
        QFETCH(QKeySequence, keys);
        QFETCH(QString, effect);
        for (const bool byKey : {false, true}) {
            if (byKey && keys.isEmpty())
                break;
            ShellRig rig;
            QSignalSpy quit(&rig.shell(), &ShellController::quitRequested);
            rig.model().setProperty("section", u"bookings"_s);
            // The main window's menu action or item of that name.
            QObject *item =
                ShellRig::window(u"main"_s)->property("menuBar").value<QObject *>()->findChild<QObject *>(entry);
            QVERIFY2(item && item->property("enabled").toBool(), qPrintable(entry));
            if (byKey) {
                QQuickWindow *main = ShellRig::window(u"main"_s);
                main->requestActivate();
                QVERIFY(QTest::qWaitForWindowActive(main));
                QTest::keySequence(main, keys);
            } else {
                // A click on an item triggers its action.
                QObject *action = item->property("action").value<QObject *>();
                QVERIFY(QMetaObject::invokeMethod(action ? action : item, "trigger"));
            }
            QStringList effects;
            for (const QString &id : {u"share"_s, u"settings"_s, u"onboarding"_s, u"about"_s}) {
                if (ShellRig::window(id))
                    effects << u"window "_s + id;
            }
            if (const QString section = rig.model().property("section").toString(); section != u"bookings"_s)
                effects << u"section "_s + section;
            for (const char *flag : {"showNewPoll", "showPalette"}) {
                if (rig.model().property(flag).toBool())
                    effects << QString::fromLatin1(flag);
            }
            for (const QUrl &url : std::as_const(rig.opened))
                effects << u"join "_s + url.toString();
            if (!quit.isEmpty())
                effects << u"quit"_s;
            QCOMPARE(effects.join(u", "_s), effect);
            NO_WARNINGS(rig);
        }
    }
};

int main(int argc, char *argv[])
{
    qputenv("TZ", "America/New_York");
    QGuiApplication app(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QQuickStyle::setStyle(u"Fusion"_s);
    TestShell test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_shell.moc"
