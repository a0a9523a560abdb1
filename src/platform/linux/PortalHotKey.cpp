#include "linux/PortalHotKey.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

using namespace Qt::StringLiterals;

namespace {

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString path = u"/org/freedesktop/portal/desktop"_s;
const QString interface = u"org.freedesktop.portal.GlobalShortcuts"_s;
const QString requestInterface = u"org.freedesktop.portal.Request"_s;

// One entry of BindShortcuts' a(sa{sv}).
struct PortalShortcut {
    QString id;
    QVariantMap options;
};

} // namespace

Q_DECLARE_METATYPE(PortalShortcut)

QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument << shortcut.id << shortcut.options;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.options;
    argument.endStructure();
    return argument;
}

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(PortalHotKey)
};
} // namespace

PortalHotKey::PortalHotKey(QDBusConnection bus, QObject *parent)
    : HotKey(parent)
    , m_bus(std::move(bus))
{
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    m_bus.connect(service, path, interface, u"Activated"_s, this, SLOT(activated(QDBusMessage)));
}

bool PortalHotKey::available(const QDBusConnection &bus)
{
    // Asks the bus, not the portal: a portal without GlobalShortcuts just never binds.
    const QDBusConnectionInterface *names = bus.interface();
    return names
           && (names->isServiceRegistered(service).value()
               || names->activatableServiceNames().value().contains(service));
}

void PortalHotKey::start()
{
    request(u"CreateSession"_s, {}, {{u"session_handle_token"_s, u"quorvane"_s}},
            SLOT(sessionCreated(uint, QVariantMap)));
}

void PortalHotKey::request(const QString &method, QList<QVariant> arguments, QVariantMap options, const char *slot)
{
    // The portal answers on a path made of our name and the token; listening there before
    // asking means no answer can come first.
    const QString token = u"quorvane%1"_s.arg(++m_requests);
    QString sender = m_bus.baseService().mid(1);
    sender.replace(u'.', u'_');
    const QString expected = u"%1/request/%2/%3"_s.arg(path, sender, token);
    m_bus.connect(service, expected, requestInterface, u"Response"_s, this, slot);
    options.insert(u"handle_token"_s, token);

    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, method);
    arguments.append(options);
    call.setArguments(arguments);
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, expected, slot](QDBusPendingCallWatcher *w) {
        w->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> reply = *w;
        // An older portal picks its own path.
        if (!reply.isError() && reply.value().path() != expected)
            m_bus.connect(service, reply.value().path(), requestInterface, u"Response"_s, this, slot);
    });
}

void PortalHotKey::sessionCreated(uint response, const QVariantMap &results)
{
    if (response != 0 || !m_session.isEmpty())
        return;
    m_session = results.value(u"session_handle"_s).toString();
    if (m_session.isEmpty())
        return;
    const QString preferred = u"CTRL+ALT+LOGO+s"_s;
    const QList<PortalShortcut> shortcuts{
        {QString::fromLatin1(shortcutId),
         {{u"description"_s, Text::tr("Share times")}, {u"preferred_trigger"_s, preferred}}}};
    request(u"BindShortcuts"_s,
            {QVariant::fromValue(QDBusObjectPath(m_session)), QVariant::fromValue(shortcuts), QString()}, {},
            SLOT(shortcutsBound(uint, QVariantMap)));
}

void PortalHotKey::shortcutsBound(uint response, const QVariantMap &results)
{
    if (response != 0 || m_bound)
        return;
    QList<PortalShortcut> bound;
    results.value(u"shortcuts"_s).value<QDBusArgument>() >> bound;
    for (const PortalShortcut &shortcut : std::as_const(bound)) {
        if (shortcut.id == QLatin1String(shortcutId)) {
            m_trigger = shortcut.options.value(u"trigger_description"_s).toString();
            m_bound = true;
        }
    }
    if (m_bound)
        Q_EMIT registeredChanged();
}

void PortalHotKey::activated(const QDBusMessage &signal)
{
    // (o session_handle, s shortcut_id, t timestamp, a{sv} options)
    const QList<QVariant> arguments = signal.arguments();
    if (arguments.size() < 4 || arguments.at(0).value<QDBusObjectPath>().path() != m_session
        || arguments.at(1).toString() != QLatin1String(shortcutId))
        return;
    const QVariantMap options = qdbus_cast<QVariantMap>(arguments.at(3));
    Q_EMIT pressed(options.value(u"activation_token"_s).toString());
}

} // namespace quorvane
