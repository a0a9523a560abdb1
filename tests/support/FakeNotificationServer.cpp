#include "FakeNotificationServer.h"

#include <QDBusMessage>

namespace quorvane::test {

namespace {
const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString objectPath = QStringLiteral("/org/freedesktop/Notifications");
} // namespace

FakeNotificationServer::FakeNotificationServer(const QDBusConnection &connection, const QStringList &capabilities)
    : m_connection(connection)
    , m_capabilities(capabilities)
{}

bool FakeNotificationServer::start()
{
    return m_connection.registerObject(objectPath, this, QDBusConnection::ExportAllSlots)
           && m_connection.registerService(service);
}

void FakeNotificationServer::stop()
{
    m_connection.unregisterService(service);
    m_connection.unregisterObject(objectPath);
}

uint FakeNotificationServer::Notify(const QString &appName, uint replacesID, const QString &appIcon,
                                    const QString &summary, const QString &body, const QStringList &actions,
                                    const QVariantMap &hints, int expireTimeout)
{
    // Like the common servers: replacing something no longer shown makes a new one.
    const uint id = m_showing.contains(replacesID) ? replacesID : m_nextID++;
    m_showing.insert(id);
    m_calls.append(
        {message().signature(), appName, replacesID, appIcon, summary, body, actions, hints, expireTimeout, id});
    return id;
}

QStringList FakeNotificationServer::GetCapabilities()
{
    return m_capabilities;
}

void FakeNotificationServer::invokeAction(uint id, const QString &action, const QString &activationToken)
{
    if (!activationToken.isEmpty())
        emitSignal(QStringLiteral("ActivationToken"), {id, activationToken});
    emitSignal(QStringLiteral("ActionInvoked"), {id, action});
    closeByUser(id, 2);
}

void FakeNotificationServer::closeByUser(uint id, uint reason)
{
    if (m_showing.remove(id))
        emitSignal(QStringLiteral("NotificationClosed"), {id, reason});
}

void FakeNotificationServer::emitSignal(const QString &name, const QVariantList &arguments)
{
    QDBusMessage signal = QDBusMessage::createSignal(objectPath, service, name);
    signal.setArguments(arguments);
    m_connection.send(signal);
}

} // namespace quorvane::test
