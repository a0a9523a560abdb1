#include "AppBus.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QThread>

using namespace Qt::StringLiterals;

namespace quorvane::cli {

namespace {

constexpr int startSeconds = 15;

// What the desktop handed us to raise a window with, passed on as the freedesktop
// activation asks.
QVariantMap platformData()
{
    QVariantMap data;
    if (const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN"); !token.isEmpty())
        data.insert(u"activation-token"_s, QString::fromUtf8(token));
    if (const QByteArray id = qgetenv("DESKTOP_STARTUP_ID"); !id.isEmpty())
        data.insert(u"desktop-startup-id"_s, QString::fromUtf8(id));
    return data;
}

QString appProgram()
{
    const QDir here(QCoreApplication::applicationDirPath());
    // Installed side by side, or in a build tree (cli/ beside src/).
    for (const QString &candidate : {here.filePath(u"quorvane"_s), here.filePath(u"../src/quorvane"_s)}) {
        if (QFileInfo(candidate).isExecutable())
            return candidate;
    }
    return QStandardPaths::findExecutable(u"quorvane"_s);
}

} // namespace

AppBus::AppBus(QDBusConnection bus)
    : m_bus(std::move(bus))
{}

bool AppBus::isRunning() const
{
    if (!m_bus.isConnected())
        return false;
    const QDBusReply<bool> owned = m_bus.interface()->isServiceRegistered(service);
    return owned.isValid() && owned.value();
}

std::optional<QVariantMap> AppBus::status() const
{
    if (!isRunning())
        return std::nullopt;
    QDBusMessage get = QDBusMessage::createMethodCall(service, path, u"org.freedesktop.DBus.Properties"_s, u"GetAll"_s);
    get << statusInterface;
    const QDBusReply<QVariantMap> reply = m_bus.call(get, QDBus::Block, 5000);
    if (!reply.isValid())
        return std::nullopt;
    return reply.value();
}

QString AppBus::activate(const QString &action)
{
    if (!isRunning()) {
        if (const QString failed = start(); !failed.isEmpty())
            return failed;
    }
    if (action == "main"_L1)
        return call(u"Activate"_s, {platformData()});
    return call(u"ActivateAction"_s, {action, QVariant::fromValue(QVariantList{}), platformData()});
}

QString AppBus::call(const QString &method, const QVariantList &arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, u"org.freedesktop.Application"_s, method);
    message.setArguments(arguments);
    const QDBusMessage reply = m_bus.call(message, QDBus::Block, 10'000);
    return reply.type() == QDBusMessage::ErrorMessage ? reply.errorMessage() : QString();
}

QString AppBus::start()
{
    if (!m_bus.isConnected())
        return u"there is no session bus to reach Quorvane on"_s;
    // A desktop that knows the app's D-Bus service starts it the way the desktop entry says.
    if (m_bus.interface()->startService(service).isValid())
        return isRunning() ? QString() : u"Quorvane didn't start"_s;
    const QString program = appProgram();
    if (program.isEmpty())
        return u"Quorvane isn't running, and the quorvane program wasn't found"_s;
    if (!QProcess::startDetached(program, {u"--hidden"_s}))
        return u"couldn't start %1"_s.arg(program);
    const QDeadlineTimer deadline(startSeconds * 1000);
    while (!deadline.hasExpired()) {
        if (isRunning())
            return {};
        QThread::msleep(100);
    }
    return u"Quorvane didn't answer on the session bus within %1 seconds"_s.arg(startSeconds);
}

} // namespace quorvane::cli
