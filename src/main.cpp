// Builds the application's objects, wires them together and loads the QML. Nothing else.
#include "BuildInfo.h"
#include "DataPaths.h"
#include "Formats.h"
#include "NetworkTransport.h"
#include "SnapshotCache.h"
#include "SystemClipboard.h"
#include "SystemClock.h"
#include "Translations.h"
#include "UrlOpener.h"
#include "components/IconProvider.h"
#include "linux/AutostartLoginItem.h"
#include "linux/DesktopHotKey.h"
#include "linux/FreedesktopNotifier.h"
#include "linux/LibsecretStore.h"
#include "linux/Login1WakeMonitor.h"
#include "model/AppModel.h"
#include "model/Preferences.h"
#include "onboarding/SetupServices.h"
#include "shell/AppWindow.h"
#include "shell/CommandTable.h"
#include "shell/LaunchOptions.h"
#include "shell/SelfTest.h"
#include "shell/ShellController.h"
#include "shell/SingleInstance.h"
#include "shell/ViewTable.h"
#include "tray/TrayController.h"
#include "updates/FeedUpdater.h"
#include "updates/StagedUpdate.h"

#include "QuorvaneQmlModules.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFontDatabase>
#include <QIcon>
#include <QLocale>
#include <QNetworkAccessManager>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QSettings>
#include <QStandardPaths>
#include <QSysInfo>
#include <QTimeZone>

#include <cstdio>
#include <future>
#include <memory>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace quorvane;

int main(int argc, char *argv[])
{
    QElapsedTimer started;
    started.start();
    {
        // A later launch hands its window to the running one before it starts a desktop
        // application of its own, which alone costs more than the hand-over: a key bound to
        // `quorvane --share` should bring the window up at once.
        const QCoreApplication launch(argc, argv);
        const LaunchOptions early = LaunchOptions::parse(QCoreApplication::arguments());
        if (!early.exitCode && !early.selfTest && SingleInstance(SingleInstance::defaultPath()).forward(early.window))
            return 0;
    }
    QApplication app(argc, argv); // Qt Charts needs the widgets application
    QApplication::setApplicationName(u"Quorvane"_s);
    QApplication::setOrganizationName(u"Quorvane"_s);
    QApplication::setDesktopFileName(u"com.peldrachen.quorvane"_s);
    QApplication::setWindowIcon(QIcon::fromTheme(u"com.peldrachen.quorvane"_s)); // installed by packaging/
    QApplication::setQuitOnLastWindowClosed(false);                              // the tray keeps the app alive
    QQuickStyle::setStyle(u"Fusion"_s);
    Translations::install(Translations::requested()); // before the first text is made

    const LaunchOptions options = LaunchOptions::parse(QApplication::arguments());
    if (options.exitCode) {
        std::fprintf(*options.exitCode == 0 ? stdout : stderr, "%s\n", qPrintable(options.message));
        return *options.exitCode;
    }
    // Otherwise this is the running instance, unless another became it meanwhile; the
    // self-test is always its own.
    SingleInstance instance(SingleInstance::defaultPath());
    if (!options.selfTest && instance.handOver(options.window))
        return 0;
    // A portable copy with a verified update waiting puts it in its place and starts that.
    const QString executable = QCoreApplication::applicationFilePath();
    const FeedUpdater::Install install = FeedUpdater::installOf(executable, build::portable);
    const QString updateStaging =
        QDir(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)).filePath(u"Quorvane/updates"_s);
    if (install == FeedUpdater::Install::portable && !options.selfTest
        && StagedUpdate::apply(executable, updateStaging)) {
        ::execv(QFile::encodeName(executable).constData(), argv);
    }

    // The saved data is decoded on another thread while the rest starts up: it is the longest
    // single step of a start, and the model needs it only once the interface is about to load.
    const QString dataDirectory = DataPaths::defaultDirectory();
    std::shared_future<std::optional<Snapshot>> saved =
        std::async(std::launch::async, [path = AppModel::cachePath(dataDirectory)] {
            return SnapshotCache(path).load();
        }).share();

    const QString locale = QLocale::system().name();
    // The locale's date patterns, which the first screen needs, are worked out meanwhile too.
    const std::future<void> patterns =
        std::async(std::launch::async, [locale] { (void)Formats::pattern(u"jmm"_s, locale); });

    QSettings settings(QSettings::IniFormat, QSettings::UserScope, u"Quorvane"_s, u"Quorvane"_s);
    Preferences preferences(settings);
    if (options.server)
        preferences.setServerURL(*options.server);
    SystemClock clock;
    QNetworkAccessManager network;
    LibsecretStore secrets;
    const QString zone = QString::fromUtf8(QTimeZone::systemTimeZoneId());
    FreedesktopNotifier notifier(QDBusConnection::sessionBus(), clock, locale, zone);
    Login1WakeMonitor wake(QDBusConnection::systemBus());
    UrlOpener opener;
    SystemClipboard clipboard;
    AutostartLoginItem loginItem;

    AppEnvironment env;
    env.clock = &clock;
    env.transport = std::make_shared<NetworkTransport>(network);
    env.secrets = &secrets;
    env.notifier = &notifier;
    env.preferences = &preferences;
    env.opener = &opener;
    env.clipboard = &clipboard;
    env.wake = &wake;
    env.dataDirectory = dataDirectory;
    env.savedSnapshot = saved;
    env.locale = locale;
    env.zone = zone;
    // Meanwhile, the font database: the first text drawn would otherwise wait for it.
    QFontDatabase::families();
    AppModel model(env);
    SetupServices setup(model, env, loginItem);
    ShellController shell;
    shell.setStartHidden(options.hidden);
    CommandTable commands(model, shell, opener);
    FeedUpdater::Config updates;
    updates.publicKey =
        QByteArray::fromBase64(options.updateKey.value_or(QString::fromLatin1(build::updateKey)).toLatin1());
    updates.install = install;
    updates.currentVersion = QString::fromLatin1(build::version);
    updates.currentBuild = QByteArray(build::number).toInt();
    updates.systemVersion = QSysInfo::productVersion();
    updates.stagingDirectory = updateStaging;
    FeedUpdater updater(
        updates, env.transport, [&model] { return model.baseURL(); }, settings, clock, opener);
    commands.attachUpdater(&updater);

    QObject::connect(&notifier, &Notifier::joinRequested, &notifier, [&opener](const QUrl &url) { opener.open(url); });
    QObject::connect(&notifier, &Notifier::activateRequested, &shell, [&shell] { shell.open(AppWindow::Main); });
    QObject::connect(&instance, &SingleInstance::requested, &shell, [&shell](const QString &name) {
        if (const std::optional<AppWindow::Id> window = AppWindow::fromName(name))
            shell.open(*window);
    });
    QObject::connect(&shell, &ShellController::quitRequested, &app, &QApplication::quit);

    qmlRegisterSingletonInstance("Quorvane.App", 1, 0, "App", &model);
    qmlRegisterSingletonInstance("Quorvane.App", 1, 0, "Shell", &shell);
    qmlRegisterSingletonInstance("Quorvane.App", 1, 0, "Setup", &setup);
    qmlRegisterSingletonInstance("Quorvane.App", 1, 0, "Commands", &commands);
    qmlRegisterSingletonInstance("Quorvane.App", 1, 0, "Updates", static_cast<Updater *>(&updater));
    QQmlApplicationEngine engine;
    engine.addImportPath(u"qrc:/qt/qml"_s);
    engine.addImageProvider(u"icon"_s, new IconProvider); // the engine owns it
    const QUrl root(u"qrc:/qt/qml/Quorvane/Shell/Root.qml"_s);
    if (options.selfTest) {
        SelfTest test(engine, started);
        if (const std::optional<AppSection> section = Section::fromId(options.selfTestSection.value_or(QString())))
            test.timeOpening([&model, section] { model.setSection(*section); });
        return test.run(root, SelfTest::qmlFiles(), ViewTable::all());
    }

    engine.load(root);
    if (engine.rootObjects().isEmpty())
        return 1;
    TrayController tray(engine, model);
    if (install == FeedUpdater::Install::portable)
        StagedUpdate::confirmStarted(executable);
    // Ctrl+Alt+Super+S from any application opens Share Times, raised with the desktop's
    // permission where it sends one.
    const std::unique_ptr<HotKey> hotKey = makeDesktopHotKey(QDBusConnection::sessionBus());
    if (hotKey) {
        QObject::connect(hotKey.get(), &HotKey::pressed, &shell, [&shell](const QString &activationToken) {
            if (!activationToken.isEmpty())
                qputenv("XDG_ACTIVATION_TOKEN", activationToken.toUtf8());
            shell.open(AppWindow::Share);
        });
    }
    if (const std::optional<AppWindow::Id> window = AppWindow::fromName(options.window); window != AppWindow::Main)
        shell.open(window.value_or(AppWindow::Main));
    return QApplication::exec();
}
