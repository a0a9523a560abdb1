// The shell on the fixture app: its windows made on demand, the start of the model, and
// that every menu entry and key reaches what it names.
#include "FixtureApp.h"
#include "ui/components/ItemLookup.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQuickStyle>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {

// The shell as the app loads it, on the fixture, with every QML complaint kept.
struct ShellRig {
    explicit ShellRig(FixtureApp::Options options = {})
        : app(options)
    {
        engine.load(QUrl(u"qrc:/qt/qml/Quorvane/Shell/Root.qml"_s));
    }

    // The shown window with that id, and how many with that id were made.
    [[nodiscard]] static QQuickWindow *window(const QString &id)
    {
        for (QWindow *w : QGuiApplication::topLevelWindows()) {
            if (w->objectName() == id && w->isVisible())
                return qobject_cast<QQuickWindow *>(w);
        }
        return nullptr;
    }
    [[nodiscard]] static int made(const QString &id)
    {
        const QWindowList all = QGuiApplication::topLevelWindows();
        return int(std::count_if(all.cbegin(), all.cend(), [&](const QWindow *w) { return w->objectName() == id; }));
    }
    // A menu action or item of the main window, by its object name.
    [[nodiscard]] QObject *menuEntry(const QString &name) const
    {
        QQuickWindow *main = window(u"main"_s);
        auto *bar = main ? main->property("menuBar").value<QObject *>() : nullptr;
        return bar ? bar->findChild<QObject *>(name) : nullptr;
    }
    [[nodiscard]] int refreshes() { return int(app.transport().requested.count(u"GET sync/me"_s)); }
    [[nodiscard]] QString section() { return app.model().property("section").toString(); }
    void keyClick(int key, int modifiers)
    {
        QQuickWindow *main = window(u"main"_s);
        main->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(main));
        QTest::keyClick(main, Qt::Key(key), Qt::KeyboardModifiers(modifiers));
    }

    FixtureApp app;
    ItemLookup::Engine engine;
};

#define NO_WARNINGS(rig) QVERIFY2((rig).engine.warnings.isEmpty(), qPrintable((rig).engine.warnings.join(u'\n')))

// What a click on a menu entry does: an Action triggers; an item triggers its action.
bool trigger(QObject *entry)
{
    if (auto *action = entry->property("action").value<QObject *>())
        entry = action;
    return QMetaObject::invokeMethod(entry, "trigger");
}

} // namespace

class TestShell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { FixtureApp::registerQmlSingletons(); }

    // Each window is made when first asked for, fitted to its view where it has no size of
    // its own, and shown again after closing; an id that names no window opens nothing.
    void windows()
    {
        ShellRig rig;
        const int before = int(QGuiApplication::topLevelWindows().size());
        rig.app.shell().open(u"popover"_s);
        rig.app.shell().open(QString());
        QCOMPARE(int(QGuiApplication::topLevelWindows().size()), before);
        for (const QString &id : {u"main"_s, u"share"_s, u"onboarding"_s, u"about"_s, u"settings"_s}) {
            QCOMPARE(ShellRig::made(id), id == u"main"_s ? 1 : 0);
            rig.app.shell().open(id);
            rig.app.shell().open(id);
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
            rig.app.shell().open(id);
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
        rig.app.shell().open(u"main"_s);
        QTRY_COMPARE(rig.refreshes(), 2);
        QCOMPARE(bool(ShellRig::window(u"onboarding"_s)), !onboarded);
        NO_WARNINGS(rig);
    }

    // A menu entry, clicked or by its key with every menu closed, opens a window, picks a
    // section or raises a flag of the model.
    void menuEntries_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<int>("key"); // 0: the entry has none
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<QString>("opens");   // a window id, or empty
        QTest::addColumn<QString>("section"); // App.section afterwards; empty: unchanged
        QTest::addColumn<QString>("flag");    // an App property that must be true afterwards
        const int ctrl = Qt::ControlModifier, ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;
        const QString none;
        QTest::newRow("Share Times") << u"shareTimes"_s << int(Qt::Key_S) << ctrlShift << u"share"_s << none << none;
        QTest::newRow("New Poll") << u"newPoll"_s << int(Qt::Key_N) << ctrlShift << none << u"polls"_s
                                  << u"showNewPoll"_s;
        QTest::newRow("Settings") << u"settings"_s << int(Qt::Key_Comma) << ctrl << u"settings"_s << none << none;
        QTest::newRow("Command Palette") << u"commandPalette"_s << 0 << 0 << none << none << u"showPalette"_s;
        QTest::newRow("Welcome Guide") << u"welcomeGuide"_s << 0 << 0 << u"onboarding"_s << none << none;
        QTest::newRow("About") << u"about"_s << 0 << 0 << u"about"_s << none << none;
        QTest::newRow("Made by") << u"madeBy"_s << 0 << 0 << u"about"_s << none << none;
        QTest::newRow("Go Today") << u"go.today"_s << 0 << 0 << none << u"today"_s << none;
        QTest::newRow("Go Types") << u"go.types"_s << int(Qt::Key_3) << ctrl << none << u"types"_s << none;
        QTest::newRow("Go Insights") << u"go.insights"_s << 0 << 0 << none << u"insights"_s << none;
    }
    void menuEntries()
    {
        QFETCH(QString, entry);
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(QString, opens);
        QFETCH(QString, section);
        QFETCH(QString, flag);

        for (const bool byKey : {false, true}) {
            if (byKey && !key)
                break;
            ShellRig rig;
            rig.app.model().setProperty("section", u"bookings"_s);
            QObject *item = rig.menuEntry(entry);
            QVERIFY2(item && item->property("enabled").toBool(), qPrintable(entry));
            if (byKey)
                rig.keyClick(key, modifiers);
            else
                QVERIFY(trigger(item));

            if (!opens.isEmpty())
                QVERIFY2(ShellRig::window(opens), qPrintable(opens));
            QCOMPARE(rig.section(), section.isEmpty() ? u"bookings"_s : section);
            if (!flag.isEmpty())
                QVERIFY(rig.app.model().property(flag.toLatin1()).toBool());
            NO_WARNINGS(rig);
        }
    }

    void quitEndsTheApp()
    {
        ShellRig rig;
        QSignalSpy quit(&rig.app.shell(), &ShellController::quitRequested);
        QVERIFY(trigger(rig.menuEntry(u"quit"_s)));
        QCOMPARE(quit.size(), 1);
    }

    // Join Next Meeting follows the next booking as time passes.
    void joinNext_data()
    {
        QTest::addColumn<bool>("emptyData");
        QTest::addColumn<int>("hoursLater");
        QTest::addColumn<QString>("joins"); // the link opened; empty: disabled
        QTest::newRow("meeting in progress") << false << 0 << u"https://meet.google.com/qvn-0001-ilse"_s;
        QTest::newRow("next has no link") << false << 70 << QString();
        QTest::newRow("nothing booked") << true << 0 << QString();
    }
    void joinNext()
    {
        QFETCH(bool, emptyData);
        QFETCH(int, hoursLater);
        QFETCH(QString, joins);
        ShellRig rig(FixtureApp::Options{.emptyData = emptyData});
        QObject *item = rig.menuEntry(u"joinNext"_s);
        QVERIFY(item);
        rig.app.clock.advance(std::chrono::hours(hoursLater));
        Q_EMIT rig.app.model().ticked();
        QCOMPARE(item->property("enabled").toBool(), !joins.isEmpty());
        rig.keyClick(Qt::Key_J, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(rig.app.opened, joins.isEmpty() ? QList<QUrl>() : QList<QUrl>{QUrl(joins)});
    }

    // A window whose view another module hasn't provided yet says so, quietly.
    void aViewHookStandsInForAMissingView_data()
    {
        QTest::addColumn<bool>("present");
        QTest::newRow("view present") << true;
        QTest::newRow("view missing") << false;
    }
    void aViewHookStandsInForAMissingView()
    {
        QFETCH(bool, present);
        QTemporaryDir folder;
        const QString view = folder.filePath(u"View.qml"_s);
        if (present) {
            QFile file(view);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("import QtQuick\nItem { implicitWidth: 333; implicitHeight: 222 }\n");
        }
        ShellRig rig;
        QQmlComponent hook(&rig.engine);
        hook.setData("import Quorvane.Shell\nViewHook { title: \"Later\" }\n", QUrl(u"qrc:/Hook.qml"_s));
        std::unique_ptr<QObject> item(hook.createWithInitialProperties({{u"source"_s, QUrl::fromLocalFile(view)}}));
        QVERIFY2(item, qPrintable(hook.errorString()));
        QCOMPARE(item->property("provided").toBool(), present);
        QCOMPARE(item->property("implicitWidth").toInt(), present ? 333 : 480);
        QCOMPARE(item->property("implicitHeight").toInt(), present ? 222 : 360);
        NO_WARNINGS(rig);
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
