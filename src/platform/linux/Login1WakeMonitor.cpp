#include "Login1WakeMonitor.h"

namespace quorvane {

Login1WakeMonitor::Login1WakeMonitor(const QDBusConnection &bus, QObject *parent)
    : WakeMonitor(parent)
{
    if (!bus.isConnected())
        return;
    // Only logind itself may say so: the match is on its name, not on anyone sending the signal.
    QDBusConnection(bus).connect(QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
                                 QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"),
                                 this, SLOT(onPrepareForSleep(bool)));
}

void Login1WakeMonitor::onPrepareForSleep(bool sleeping)
{
    if (!sleeping)
        Q_EMIT woke();
}

} // namespace quorvane
