#include "linux/PortalColorScheme.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString path = u"/org/freedesktop/portal/desktop"_s;
const QString interface = u"org.freedesktop.portal.Settings"_s;
const QString group = u"org.freedesktop.appearance"_s;
const QString key = u"color-scheme"_s;
} // namespace

PortalColorScheme::PortalColorScheme(QDBusConnection bus, QObject *parent)
    : QObject(parent)
    , m_bus(std::move(bus))
{}

bool PortalColorScheme::available(const QDBusConnection &bus)
{
    const QDBusConnectionInterface *names = bus.interface();
    return names
           && (names->isServiceRegistered(service).value()
               || names->activatableServiceNames().value().contains(service));
}

void PortalColorScheme::start()
{
    m_bus.connect(service, path, interface, u"SettingChanged"_s, this, SLOT(settingChanged(QDBusMessage)));
    auto *watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(readCall()), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *w) {
        w->deleteLater();
        take(w->reply());
    });
}

void PortalColorScheme::readNow(int timeoutMs)
{
    take(m_bus.call(readCall(), QDBus::Block, timeoutMs));
}

QDBusMessage PortalColorScheme::readCall() const
{
    // Read rather than ReadOne: every portal version has it.
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, u"Read"_s);
    call << group << key;
    return call;
}

void PortalColorScheme::take(const QDBusMessage &reply)
{
    // An error (no such setting, no portal) leaves the preference as it was.
    if (reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty())
        set(fromValue(reply.arguments().constFirst()));
}

ColorScheme PortalColorScheme::fromValue(const QVariant &value)
{
    QVariant inner = value;
    // Read wraps the value in one variant more than the setting has.
    while (inner.userType() == qMetaTypeId<QDBusVariant>())
        inner = inner.value<QDBusVariant>().variant();
    bool ok = false;
    const uint number = inner.toUInt(&ok);
    if (!ok || number > uint(ColorScheme::light))
        return ColorScheme::noPreference;
    return ColorScheme(number);
}

void PortalColorScheme::settingChanged(const QDBusMessage &signal)
{
    const QList<QVariant> arguments = signal.arguments();
    if (arguments.size() == 3 && arguments[0] == group && arguments[1] == key)
        set(fromValue(arguments[2]));
}

void PortalColorScheme::set(ColorScheme scheme)
{
    if (scheme == m_scheme)
        return;
    m_scheme = scheme;
    Q_EMIT changed(scheme);
}

} // namespace quorvane
