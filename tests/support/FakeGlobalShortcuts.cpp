#include "support/FakeGlobalShortcuts.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace quorvane::test {

namespace {
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString interface = u"org.freedesktop.portal.GlobalShortcuts"_s;

QString senderPart(const QDBusMessage &message)
{
    return message.service().mid(1).replace(u'.', u'_');
}

QList<FakeGlobalShortcuts::Binding> readShortcuts(const QDBusArgument &argument)
{
    QList<FakeGlobalShortcuts::Binding> out;
    argument.beginArray();
    while (!argument.atEnd()) {
        FakeGlobalShortcuts::Binding binding;
        QVariantMap options;
        argument.beginStructure();
        argument >> binding.id >> options;
        argument.endStructure();
        binding.description = options.value(u"description"_s).toString();
        binding.preferredTrigger = options.value(u"preferred_trigger"_s).toString();
        out.append(binding);
    }
    argument.endArray();
    return out;
}
} // namespace

FakeGlobalShortcuts::FakeGlobalShortcuts(const QDBusConnection &connection)
    : m_connection(connection)
{}

bool FakeGlobalShortcuts::start()
{
    return m_connection.registerVirtualObject(portalPath, this, QDBusConnection::SubPath)
           && m_connection.registerService(u"org.freedesktop.portal.Desktop"_s);
}

void FakeGlobalShortcuts::activate(const QString &id, const QString &activationToken)
{
    QDBusMessage signal = QDBusMessage::createSignal(portalPath, interface, u"Activated"_s);
    signal << QVariant::fromValue(QDBusObjectPath(m_session)) << id << qulonglong(1)
           << QVariantMap{{u"activation_token"_s, activationToken}};
    m_connection.send(signal);
}

QString FakeGlobalShortcuts::introspect(const QString &) const
{
    return {};
}

bool FakeGlobalShortcuts::handleMessage(const QDBusMessage &message, const QDBusConnection &)
{
    const QString member = message.member();
    if (message.interface() == "org.freedesktop.DBus.Properties"_L1 && member == "Get"_L1) {
        m_connection.send(message.createReply(QVariant::fromValue(QDBusVariant(uint(1)))));
        return true;
    }
    if (message.interface() != interface)
        return false;
    m_calls.append(member);
    if (member == "CreateSession"_L1) {
        const QVariantMap options = qdbus_cast<QVariantMap>(message.arguments().value(0));
        m_session = u"%1/session/%2/%3"_s.arg(portalPath, senderPart(message),
                                              options.value(u"session_handle_token"_s).toString());
        respond(message, {{u"session_handle"_s, m_session}});
        return true;
    }
    if (member == "BindShortcuts"_L1) {
        const QVariant shortcuts = message.arguments().value(1);
        m_bindings = readShortcuts(shortcuts.value<QDBusArgument>());
        // The user took the offered key.
        respond(message, {{u"shortcuts"_s, shortcuts}});
        return true;
    }
    m_connection.send(message.createErrorReply(QDBusError::UnknownMethod, member));
    return true;
}

void FakeGlobalShortcuts::respond(const QDBusMessage &call, const QVariantMap &results)
{
    const QVariantMap options = qdbus_cast<QVariantMap>(call.arguments().constLast());
    const QString request =
        u"%1/request/%2/%3"_s.arg(portalPath, senderPart(call), options.value(u"handle_token"_s).toString());
    m_connection.send(call.createReply(QVariant::fromValue(QDBusObjectPath(request))));
    QDBusMessage response = QDBusMessage::createSignal(request, u"org.freedesktop.portal.Request"_s, u"Response"_s);
    response << uint(0) << results;
    m_connection.send(response);
}

} // namespace quorvane::test
