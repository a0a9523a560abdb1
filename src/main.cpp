// Builds the application's objects, wires them together and loads the QML. Nothing else.
#include "AppModel.h"
#include "NetworkTransport.h"
#include "Preferences.h"
#include "ShellController.h"
#include "SystemClipboard.h"
#include "SystemClock.h"
#include "UrlOpener.h"
#include "linux/FreedesktopNotifier.h"
#include "linux/LibsecretStore.h"
#include "linux/Login1WakeMonitor.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDir>
#include <QLocale>
#include <QNetworkAccessManager>
#include <QQmlApplicationEngine>
#include <QQuickStyle>
#include <QSettings>
#include <QStandardPaths>
#include <QTimeZone>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Quorvane_AppPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_ComponentsPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_MainPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_ShellPlugin)

using namespace Qt::StringLiterals;
using namespace quorvane;

int main(int argc, char *argv[])
{
    QApplication app(argc, argv); // Qt Charts needs the widgets application
    QApplication::setApplicationName(u"Quorvane"_s);
    QApplication::setOrganizationName(u"Quorvane"_s);
    QApplication::setDesktopFileName(u"com.peldrachen.quorvane"_s);
    QApplication::setQuitOnLastWindowClosed(false); // the tray keeps the app alive
    QQuickStyle::setStyle(u"Fusion"_s);

    QSettings settings(QSettings::IniFormat, QSettings::UserScope, u"Quorvane"_s, u"Quorvane"_s);
    Preferences preferences(settings);
    SystemClock clock;
    QNetworkAccessManager network;
    LibsecretStore secrets;
    const QString locale = QLocale::system().name();
    const QString zone = QString::fromUtf8(QTimeZone::systemTimeZoneId());
    FreedesktopNotifier notifier(QDBusConnection::sessionBus(), clock, locale, zone);
    Login1WakeMonitor wake(QDBusConnection::systemBus());
    UrlOpener opener;
    SystemClipboard clipboard;

    AppEnvironment env;
    env.clock = &clock;
    env.transport = std::make_shared<NetworkTransport>(network);
    env.secrets = &secrets;
    env.notifier = &notifier;
    env.preferences = &preferences;
    env.opener = &opener;
    env.clipboard = &clipboard;
    env.wake = &wake;
    env.dataDirectory = QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)).filePath(u"Quorvane"_s);
    env.locale = locale;
    env.zone = zone;
    AppModel model(env);

    QObject::connect(&notifier, &Notifier::joinRequested, &notifier, [&opener](const QUrl &url) { opener.open(url); });

    ShellController shell;
    QObject::connect(&shell, &ShellController::quitRequested, &app, &QApplication::quit);

    qmlRegisterSingletonInstance("Quorvane.App", 1, 0, "App", &model);
    qmlRegisterSingletonInstance("Quorvane.App", 1, 0, "Shell", &shell);
    QQmlApplicationEngine engine;
    engine.addImportPath(u"qrc:/qt/qml"_s);
    engine.load(QUrl(u"qrc:/qt/qml/Quorvane/Shell/Root.qml"_s));
    if (engine.rootObjects().isEmpty())
        return 1;
    return QApplication::exec();
}
