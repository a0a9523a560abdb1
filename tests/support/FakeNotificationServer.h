#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QVariantMap>

namespace quorvane::test {

// An org.freedesktop.Notifications server that shows nothing: it records what it is asked, in
// the types it was sent, and emits the signals a real one would when the user acts.
class FakeNotificationServer : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    struct Call {
        QString signature; // of the whole message, as it came over the bus
        QString appName;
        uint replacesID = 0;
        QString appIcon;
        QString summary;
        QString body;
        QStringList actions;
        QVariantMap hints;
        int expireTimeout = 0;
        uint id = 0; // what the server answered
    };

    explicit FakeNotificationServer(const QDBusConnection &connection,
                                    const QStringList &capabilities = {QStringLiteral("actions"),
                                                                       QStringLiteral("body")});

    // Takes the well-known name; false if that failed.
    bool start();
    void stop();

    [[nodiscard]] const QList<Call> &calls() const { return m_calls; }

    void invokeAction(uint id, const QString &action, const QString &activationToken = {});
    // The user dismissed it (reason 2) or it expired (1).
    void closeByUser(uint id, uint reason = 2);

public Q_SLOTS:
    uint Notify(const QString &appName, uint replacesID, const QString &appIcon, const QString &summary,
                const QString &body, const QStringList &actions, const QVariantMap &hints, int expireTimeout);
    QStringList GetCapabilities();

private:
    void emitSignal(const QString &name, const QVariantList &arguments);

    QDBusConnection m_connection;
    QStringList m_capabilities;
    QList<Call> m_calls;
    QSet<uint> m_showing;
    uint m_nextID = 1;
};

} // namespace quorvane::test
