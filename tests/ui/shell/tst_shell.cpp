#include "FixtureApp.h"
#include "FixtureSnapshot.h"
#include "IconProvider.h"

#include "QuorvaneQmlModules.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {

// The shell as the app loads it, on the fixture, with every QML complaint kept.
struct ShellRig {
    explicit ShellRig(FixtureApp::Options options = {})
        : app(options)
    {
        engine.addImportPath(u"qrc:/qt/qml"_s);
        engine.addImageProvider(u"icon"_s, new IconProvider);
        QObject::connect(&engine, &QQmlEngine::warnings, &engine, [this](const QList<QQmlError> &list) {
            for (const QQmlError &w : list)
                warnings.append(w.toString());
        });
        engine.load(QUrl(u"qrc:/qt/qml/Quorvane/Shell/Root.qml"_s));
    }

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
        int count = 0;
        for (QWindow *w : QGuiApplication::topLevelWindows())
            count += w->objectName() == id ? 1 : 0;
        return count;
    }
    // A menu action or item of the main window, by its object name.
    [[nodiscard]] QObject *menuEntry(const QString &name) const
    {
        QQuickWindow *main = window(u"main"_s);
        auto *bar = main ? main->property("menuBar").value<QObject *>() : nullptr;
        return bar ? bar->findChild<QObject *>(name) : nullptr;
    }
    [[nodiscard]] int requests(const QString &what) { return int(app.transport().requested.count(what)); }

    FixtureApp app;
    QQmlApplicationEngine engine;
    QStringList warnings;
};

const QString refreshStart = u"GET sync/me"_s;

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

    void windows_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QSize>("size"); // invalid: fitted to its view
        QTest::addColumn<QSize>("minimum");

        QTest::newRow("main") << u"main"_s << QString() << QSize(1180, 760) << QSize(940, 620);
        QTest::newRow("share") << u"share"_s << u"Share Times"_s << QSize(560, 560) << QSize(420, 360);
        QTest::newRow("onboarding") << u"onboarding"_s << u"Welcome to Quorvane"_s << QSize() << QSize();
        QTest::newRow("about") << u"about"_s << u"About Quorvane"_s << QSize() << QSize();
        QTest::newRow("settings") << u"settings"_s << u"Settings"_s << QSize(620, 460) << QSize(480, 360);
    }
    void windows()
    {
        QFETCH(QString, id);
        QFETCH(QString, title);
        QFETCH(QSize, size);
        QFETCH(QSize, minimum);

        ShellRig rig;
        rig.app.shell().open(id);
        QQuickWindow *window = ShellRig::window(id);
        QVERIFY2(window, qPrintable(id));
        if (!title.isEmpty())
            QCOMPARE(window->title(), title);
        if (size.isValid()) {
            QCOMPARE(window->size(), size);
            QCOMPARE(window->minimumSize(), minimum);
        } else {
            // Fixed to its view's size: nothing to drag, and not an empty box.
            QCOMPARE(window->minimumSize(), window->size());
            QCOMPARE(window->maximumSize(), window->size());
            QVERIFY(window->width() >= 300 && window->height() >= 200);
        }
        QVERIFY2(rig.warnings.isEmpty(), qPrintable(rig.warnings.join(u'\n')));
    }

    void aWindowIsMadeOnceAndShownAgainAfterClosing()
    {
        ShellRig rig;
        QCOMPARE(ShellRig::made(u"share"_s), 0); // nothing made before it is asked for
        rig.app.shell().open(u"share"_s);
        rig.app.shell().open(u"share"_s);
        QCOMPARE(ShellRig::made(u"share"_s), 1);
        ShellRig::window(u"share"_s)->close();
        QVERIFY(!ShellRig::window(u"share"_s));
        rig.app.shell().open(u"share"_s);
        QVERIFY(ShellRig::window(u"share"_s));
        QCOMPARE(ShellRig::made(u"share"_s), 1);
    }

    void anUnknownIdOpensNothing()
    {
        ShellRig rig;
        const int before = int(QGuiApplication::topLevelWindows().size());
        rig.app.shell().open(u"popover"_s);
        rig.app.shell().open(QString());
        QCOMPARE(int(QGuiApplication::topLevelWindows().size()), before);
        QVERIFY(rig.warnings.isEmpty());
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
        FixtureApp::Options options;
        options.onboarded = onboarded;
        ShellRig rig(options);

        QTRY_COMPARE(rig.requests(refreshStart), 1);
        QCOMPARE(bool(ShellRig::window(u"onboarding"_s)), !onboarded);

        if (QQuickWindow *guide = ShellRig::window(u"onboarding"_s))
            guide->close(); // closed without finishing
        ShellRig::window(u"main"_s)->close();
        QTest::qWait(50);
        QCOMPARE(rig.requests(refreshStart), 1); // closing starts nothing
        rig.app.shell().open(u"main"_s);
        QTRY_COMPARE(rig.requests(refreshStart), 2);
        QCOMPARE(bool(ShellRig::window(u"onboarding"_s)), !onboarded);
        QVERIFY2(rig.warnings.isEmpty(), qPrintable(rig.warnings.join(u'\n')));
    }

    void menuEntries_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("opens");   // a window id, or empty
        QTest::addColumn<QString>("section"); // App.section afterwards; empty: unchanged
        QTest::addColumn<QString>("flag");    // an App property that must be true afterwards

        QTest::newRow("Share Times") << u"shareTimes"_s << u"share"_s << QString() << QString();
        QTest::newRow("New Poll") << u"newPoll"_s << QString() << u"polls"_s << u"showNewPoll"_s;
        QTest::newRow("Settings") << u"settings"_s << u"settings"_s << QString() << QString();
        QTest::newRow("Command Palette") << u"commandPalette"_s << QString() << QString() << u"showPalette"_s;
        QTest::newRow("Welcome Guide") << u"welcomeGuide"_s << u"onboarding"_s << QString() << QString();
        QTest::newRow("About") << u"about"_s << u"about"_s << QString() << QString();
        QTest::newRow("Made by") << u"madeBy"_s << u"about"_s << QString() << QString();
        for (const char *id : {"today", "bookings", "types", "availability", "polls", "insights"})
            QTest::addRow("Go %s", id) << u"go."_s + QLatin1StringView(id) << QString() << QString::fromLatin1(id)
                                       << QString();
    }
    void menuEntries()
    {
        QFETCH(QString, entry);
        QFETCH(QString, opens);
        QFETCH(QString, section);
        QFETCH(QString, flag);

        ShellRig rig;
        const QString before = section == "bookings"_L1 ? u"insights"_s : u"bookings"_s;
        rig.app.model().setProperty("section", before);
        QObject *item = rig.menuEntry(entry);
        QVERIFY2(item, qPrintable(entry));
        QVERIFY(item->property("enabled").toBool());
        QVERIFY(trigger(item));

        if (!opens.isEmpty())
            QVERIFY2(ShellRig::window(opens), qPrintable(opens));
        QCOMPARE(rig.app.model().property("section").toString(), section.isEmpty() ? before : section);
        if (!flag.isEmpty())
            QVERIFY(rig.app.model().property(flag.toLatin1()).toBool());
        QVERIFY2(rig.warnings.isEmpty(), qPrintable(rig.warnings.join(u'\n')));
    }

    void quitEndsTheApp()
    {
        ShellRig rig;
        QSignalSpy quit(&rig.app.shell(), &ShellController::quitRequested);
        QVERIFY(trigger(rig.menuEntry(u"quit"_s)));
        QCOMPARE(quit.size(), 1);
    }

    void checkForUpdatesWaitsForTheUpdater()
    {
        ShellRig rig;
        QVERIFY(!rig.menuEntry(u"checkForUpdates"_s)->property("enabled").toBool());
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

        FixtureApp::Options options;
        options.emptyData = emptyData;
        ShellRig rig(options);
        QObject *item = rig.menuEntry(u"joinNext"_s);
        QVERIFY(item);
        rig.app.clock.advance(std::chrono::hours(hoursLater));
        Q_EMIT rig.app.model().ticked();
        QCOMPARE(item->property("enabled").toBool(), !joins.isEmpty());

        QQuickWindow *main = ShellRig::window(u"main"_s);
        main->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(main));
        QTest::keyClick(main, Qt::Key_J, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(rig.app.opened, joins.isEmpty() ? QList<QUrl>() : QList<QUrl>{QUrl(joins)});
    }

    // The keys work with every menu closed, and Ctrl+K has one owner with the toolbar.
    void keys_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<QString>("opens");
        QTest::addColumn<QString>("section");
        QTest::addColumn<QString>("flag");

        const int ctrl = Qt::ControlModifier;
        const int ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;
        QTest::newRow("Ctrl+3") << int(Qt::Key_3) << ctrl << QString() << u"types"_s << QString();
        QTest::newRow("Ctrl+6") << int(Qt::Key_6) << ctrl << QString() << u"insights"_s << QString();
        QTest::newRow("Ctrl+K") << int(Qt::Key_K) << ctrl << QString() << u"today"_s << u"showPalette"_s;
        QTest::newRow("Ctrl+Shift+N") << int(Qt::Key_N) << ctrlShift << QString() << u"polls"_s << u"showNewPoll"_s;
        QTest::newRow("Ctrl+Shift+S") << int(Qt::Key_S) << ctrlShift << u"share"_s << u"today"_s << QString();
        QTest::newRow("Ctrl+,") << int(Qt::Key_Comma) << ctrl << u"settings"_s << u"today"_s << QString();
    }
    void keys()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(QString, opens);
        QFETCH(QString, section);
        QFETCH(QString, flag);

        ShellRig rig;
        QQuickWindow *main = ShellRig::window(u"main"_s);
        main->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(main));
        QTest::keyClick(main, Qt::Key(key), Qt::KeyboardModifiers(modifiers));

        QCOMPARE(rig.app.model().property("section").toString(), section);
        if (!opens.isEmpty())
            QVERIFY2(ShellRig::window(opens), qPrintable(opens));
        if (!flag.isEmpty())
            QVERIFY(rig.app.model().property(flag.toLatin1()).toBool());
        QVERIFY2(rig.warnings.isEmpty(), qPrintable(rig.warnings.join(u'\n')));
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
        QVERIFY2(rig.warnings.isEmpty(), qPrintable(rig.warnings.join(u'\n')));
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
