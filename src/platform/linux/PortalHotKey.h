#pragma once

#include "HotKey.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QVariantMap>

namespace quorvane {

// The hot key on Wayland, through the desktop portal's GlobalShortcuts: a session with one
// shortcut, "Share times", offered as Ctrl+Alt+Super+S. The desktop asks the user and keeps
// whatever binding they choose; Activated is the press.
class PortalHotKey final : public HotKey
{
    Q_OBJECT

public:
    static constexpr char shortcutId[] = "share-times";

    explicit PortalHotKey(QDBusConnection bus, QObject *parent = nullptr);

    // The session bus has a desktop portal, running or to be started.
    [[nodiscard]] static bool available(const QDBusConnection &bus);

    // Creates the session and binds the shortcut; isRegistered() once the desktop agreed.
    void start();
    [[nodiscard]] bool isRegistered() const override { return m_bound; }
    // The binding the desktop settled on, in its words ("Ctrl+Alt+Super+S"); empty until then.
    [[nodiscard]] const QString &trigger() const { return m_trigger; }

Q_SIGNALS:
    void registeredChanged();

private Q_SLOTS:
    void sessionCreated(uint response, const QVariantMap &results);
    void shortcutsBound(uint response, const QVariantMap &results);
    void activated(const QDBusMessage &signal);

private:
    // Calls `method` with a fresh request token in `options` (the last argument), and sends the
    // request's Response to `slot`.
    void request(const QString &method, QList<QVariant> arguments, QVariantMap options, const char *slot);

    QDBusConnection m_bus;
    QString m_session;
    QString m_trigger;
    bool m_bound = false;
    int m_requests = 0;
};

} // namespace quorvane
