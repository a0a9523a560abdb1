#include "support/FakeSettingsPortal.h"

#include <QDBusMessage>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace quorvane::test {

namespace {
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString interface = u"org.freedesktop.portal.Settings"_s;
const QString group = u"org.freedesktop.appearance"_s;
const QString key = u"color-scheme"_s;
} // namespace

FakeSettingsPortal::FakeSettingsPortal(const QDBusConnection &connection, std::optional<uint> colorScheme)
    : m_connection(connection)
    , m_colorScheme(colorScheme)
{}

bool FakeSettingsPortal::start()
{
    return m_connection.registerVirtualObject(portalPath, this, QDBusConnection::SubPath)
           && m_connection.registerService(u"org.freedesktop.portal.Desktop"_s);
}

void FakeSettingsPortal::setColorScheme(uint value)
{
    m_colorScheme = value;
    QDBusMessage signal = QDBusMessage::createSignal(portalPath, interface, u"SettingChanged"_s);
    signal << group << key << QVariant::fromValue(QDBusVariant(value));
    m_connection.send(signal);
}

QString FakeSettingsPortal::introspect(const QString &) const
{
    return {};
}

bool FakeSettingsPortal::handleMessage(const QDBusMessage &message, const QDBusConnection &)
{
    if (message.interface() != interface)
        return false;
    m_calls.append(message.member());
    const QList<QVariant> arguments = message.arguments();
    if (message.member() == "Read"_L1 && arguments.value(0) == group && arguments.value(1) == key && m_colorScheme) {
        const QDBusVariant inner(*m_colorScheme);
        m_connection.send(message.createReply(QVariant::fromValue(QDBusVariant(QVariant::fromValue(inner)))));
        return true;
    }
    m_connection.send(
        message.createErrorReply(u"org.freedesktop.portal.Error.NotFound"_s, u"Requested setting not found"_s));
    return true;
}

} // namespace quorvane::test
