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
#include "components/Appearance.h"
#include "components/IconProvider.h"
#include "linux/AutostartLoginItem.h"
#include "linux/DBusApplication.h"
#include "linux/DesktopHotKey.h"
#include "linux/FreedesktopNotifier.h"
#include "linux/LibsecretStore.h"
#include "linux/Login1WakeMonitor.h"
#include "linux/ProcessStats.h"
#include "linux/ThreadPriority.h"
#include "model/AppModel.h"
#include "model/Preferences.h"
#include "onboarding/SetupServices.h"
#include "shell/Activation.h"
#include "shell/AppWindow.h"
#include "shell/CommandTable.h"
#include "shell/FirstFrameFonts.h"
#include "shell/LaunchOptions.h"
#include "shell/QmlPreload.h"
#include "shell/SelfTest.h"
#include "shell/ShellController.h"
#include "shell/SingleInstance.h"
#include "shell/StateFile.h"
#include "shell/ViewTable.h"
#include "tray/BusStatus.h"
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
#include <QLibraryInfo>
#include <QLocale>
#include <QNetworkAccessManager>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QScopeGuard>
#include <QSettings>
#include <QStandardPaths>
#include <QSysInfo>
#include <QTimeZone>

#include <chrono>
#include <cstdio>
#include <future>
#include <memory>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace quorvane;

namespace {
// Registers `object` under `name` in Quorvane.App, to be read when QML first uses it; the
// application keeps it.
template <typename T>
void registerSingleton(const char *name, T *const &object)
{
    qmlRegisterSingletonType<T>("Quorvane.App", 1, 0, name, [&object](QQmlEngine *, QJSEngine *) -> QObject * {
        Q_ASSERT(object);
        QJSEngine::setObjectOwnership(object, QJSEngine::CppOwnership);
        return object;
    });
}
// The Qt Quick modules that the first window imports, Fusion's among them, in the order the
// engine asks for them.
QStringList firstWindowModules()
{
    return {u"QtQml.WorkerScript"_s,      u"QtQuick.Controls"_s,
            u"QtQuick.Controls.Fusion"_s, u"QtQuick.Controls.Basic"_s,
            u"QtQuick.Controls.impl"_s,   u"QtQuick.Layouts"_s,
            u"QtQuick.Templates"_s,       u"QtQuick.Controls.Fusion.impl"_s,
            u"QtQuick.Window"_s};
}
// Whether the work behind `future` is done, without waiting for it.
template <typename Future>
bool isReady(const Future &future)
{
    return future.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}
} // namespace

int main(int argc, char *argv[])
{
    QElapsedTimer started;
    started.start();
    // The self-test's processor time leaves out the loading of the libraries, as its time does.
    const qint64 cpuAtStartUs = ProcessStats::ownCpuUs();
    bool starting = false; // rather than a --help or --version
    {
        // A later launch hands its window to the running one before it starts a desktop
        // application of its own, which alone costs more than the hand-over: a key bound to
        // `quorvane --share` should bring the window up at once.
        const QCoreApplication launch(argc, argv);
        const LaunchOptions early = LaunchOptions::parse(QCoreApplication::arguments());
        if (!early.exitCode && !early.selfTest && Activation::forward(early.window))
            return 0;
        starting = !early.exitCode;
    }
    // A start does several slow things that don't need each other, so they run side by side:
    // the saved data is decoded and sorted and the locale's date patterns are worked out, each
    // on a thread of its own, from here on; the Qt Quick plugins are loaded, the font database
    // read and the system bus reached once the engine exists. Meanwhile the QML engine
    // compiles the first window on its loader thread and the main thread makes the services.
    // The side threads give way to those two, which the first frame waits for first.
    const QString dataDirectory = DataPaths::defaultDirectory();
    const QString locale = QLocale::system().name();
    std::shared_future<std::optional<SavedData>> saved;
    std::future<void> patterns;
    if (starting) {
        saved = std::async(std::launch::async, [path = AppModel::cachePath(dataDirectory)] {
                    ThreadPriority::lowerCurrent();
                    return SavedData::of(SnapshotCache(path).load());
                }).share();
        patterns = std::async(std::launch::async, [locale] {
            ThreadPriority::lowerCurrent();
            (void)Formats::pattern(u"jmm"_s, locale);
        });
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
    // The objects QML reaches by name, made further down: the engine asks for each the first
    // time a window uses it, by which time it exists.
    AppModel *appModel = nullptr;
    ShellController *shellController = nullptr;
    SetupServices *setupServices = nullptr;
    CommandTable *commandTable = nullptr;
    Updater *updates = nullptr;
    registerSingleton<AppModel>("App", appModel);
    registerSingleton<ShellController>("Shell", shellController);
    registerSingleton<SetupServices>("Setup", setupServices);
    registerSingleton<CommandTable>("Commands", commandTable);
    registerSingleton<Updater>("Updates", updates);
    auto engine = std::make_unique<QQmlEngine>();
    // A plugin and the libraries below it take a while to load and link, which is done here
    // before the loader gets to it. Not sooner: mapping them in slows the engine's own making,
    // which touches much new memory.
    std::future<void> plugins;
    if (starting)
        plugins = std::async(std::launch::async, [] { QmlPreload::loadPlugins(firstWindowModules()); });
    // Qt's modules first: every import of one would otherwise look for it among the app's own
    // resources first, and each such look walks all of them.
    engine->setImportPathList({QLibraryInfo::path(QLibraryInfo::QmlImportsPath), u"qrc:/qt/qml"_s});
    engine->addImageProvider(u"icon"_s, new IconProvider); // the engine owns it
    // The loader starts on the first window at once: whatever follows can be done meanwhile.
    const QUrl root(u"qrc:/qt/qml/Quorvane/Shell/Root.qml"_s);
    const QList<QUrl> firstWindow{root,
                                  options.hidden ? QUrl() : QmlPreload::fileOf(ViewTable::section(AppSection::today))};
    QmlPreload::start(*engine, firstWindow);
    const std::future<void> fonts = std::async(std::launch::async, [] {
        ThreadPriority::lowerCurrent();
        (void)QFontDatabase::families();
    });
    const std::future<void> systemBus = std::async(std::launch::async, [] {
        ThreadPriority::lowerCurrent();
        (void)QDBusConnection::systemBus();
    });

    // This is the running instance, unless another became it meanwhile: the one that holds the
    // bus name, or the local socket where there is no session bus. The self-test is always its
    // own.
    const bool onBus = QDBusConnection::sessionBus().isConnected();
    DBusApplication desktop(QDBusConnection::sessionBus(), Activation::names());
    SingleInstance instance(SingleInstance::defaultPath());
    if (!options.selfTest
        && (onBus ? !desktop.claim() && Activation::forward(options.window) : instance.handOver(options.window)))
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

    // Light or dark as the desktop prefers, from the first frame on and whenever it changes.
    Appearance appearance;
    appearance.follow(QDBusConnection::sessionBus(), 500);

    QSettings settings(QSettings::IniFormat, QSettings::UserScope, u"Quorvane"_s, u"Quorvane"_s);
    Preferences preferences(settings);
    if (options.server)
        preferences.setServerURL(*options.server);
    SystemClock clock;
    QNetworkAccessManager network;
    LibsecretStore secrets;
    const QString zone = QString::fromUtf8(QTimeZone::systemTimeZoneId());
    QmlPreload::serve({[&systemBus] { return isReady(systemBus); }}); // answering the loader meanwhile
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
    env.savedData = saved;
    env.locale = locale;
    env.zone = zone;
    if (options.timings)
        env.timings = *options.timings;
    // While the loader compiles the first window, the main thread looks up the first frame's
    // fonts and then makes the model, once the saved data is decoded; it waits for the
    // window's own documents only after that. Today's screen goes on compiling while the
    // window is made, until the window asks for it.
    QList<QmlPreload::Chore> chores;
    if (!options.hidden) {
        for (const FirstFrameFonts::Style &style : FirstFrameFonts::styles()) {
            chores.append([&fonts, style] {
                if (!isReady(fonts))
                    return false; // the font database is still being read
                FirstFrameFonts::load(style);
                return true;
            });
        }
    }
    chores.append([&saved] { return !saved.valid() || isReady(saved); });
    QmlPreload::serve(chores);
    AppModel model(env);
    const std::unique_ptr<StateFile> stateFile =
        options.stateFile ? std::make_unique<StateFile>(model, *options.stateFile) : nullptr;
    SetupServices setup(model, env, loginItem);
    ShellController shell;
    shell.setStartHidden(options.hidden);
    CommandTable commands(model, shell, opener);
    FeedUpdater::Config updateConfig;
    updateConfig.publicKey =
        QByteArray::fromBase64(options.updateKey.value_or(QString::fromLatin1(build::updateKey)).toLatin1());
    updateConfig.install = install;
    updateConfig.currentVersion = QString::fromLatin1(build::version);
    updateConfig.currentBuild = QByteArray(build::number).toInt();
    updateConfig.systemVersion = QSysInfo::productVersion();
    updateConfig.stagingDirectory = updateStaging;
    FeedUpdater updater(
        updateConfig, env.transport, [&model] { return model.baseURL(); }, settings, clock, opener);
    commands.attachUpdater(&updater);
    appModel = &model;
    shellController = &shell;
    setupServices = &setup;
    commandTable = &commands;
    updates = &updater;
    // Waiting for the window to be compiled, the main thread measures the first frame's text
    // in each of its styles, which its making would otherwise do.
    QList<QmlPreload::Chore> measuring;
    if (!options.hidden) {
        for (const FirstFrameFonts::Style &style : FirstFrameFonts::styles())
            measuring.append([style] {
                FirstFrameFonts::measure(style);
                return true;
            });
    }
    QmlPreload::finish(*engine, {root}, measuring);
    // The windows close before the objects they show go.
    const auto closeWindows = qScopeGuard([&engine] { engine.reset(); });

    QObject::connect(&notifier, &Notifier::joinRequested, &notifier, [&opener](const QUrl &url) { opener.open(url); });
    Activation activation(commands, shell);
    activation.serve(desktop);
    BusStatus::follow(model, desktop);
    QObject::connect(&notifier, &Notifier::activateRequested, &activation,
                     [&activation](const QString &token) { activation.activate(u"main"_s, token); });
    QObject::connect(&instance, &SingleInstance::requested, &activation,
                     [&activation](const QString &name) { activation.activate(name); });
    QObject::connect(&shell, &ShellController::quitRequested, &app, &QApplication::quit);

    if (options.selfTest) {
        SelfTest test(*engine, started, cpuAtStartUs);
        if (const std::optional<AppSection> section = Section::fromId(options.selfTestSection.value_or(QString())))
            test.timeOpening([&model, section] { model.setSection(*section); });
        return test.run(root, ViewTable::all());
    }

    const std::unique_ptr<QObject> shellRoot = QmlPreload::create(*engine, root);
    if (!shellRoot)
        return 1;
    TrayController tray(*engine, model);
    if (install == FeedUpdater::Install::portable)
        StagedUpdate::confirmStarted(executable);
    // Ctrl+Alt+Super+S from any application opens Share Times, raised with the desktop's
    // permission where it sends one.
    const std::unique_ptr<HotKey> hotKey = makeDesktopHotKey(QDBusConnection::sessionBus());
    if (hotKey) {
        QObject::connect(hotKey.get(), &HotKey::pressed, &activation, [&activation](const QString &activationToken) {
            activation.activate(u"share"_s, activationToken);
        });
    }
    if (const std::optional<AppWindow::Id> window = AppWindow::fromName(options.window); window != AppWindow::Main)
        shell.open(window.value_or(AppWindow::Main));
    return QApplication::exec();
}
