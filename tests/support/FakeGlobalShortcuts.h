#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QStringList>

namespace quorvane::test {

// The desktop portal's GlobalShortcuts as a desktop offers it: sessions, bindings that the
// user is taken to approve at once, and Activated when the key is pressed.
class FakeGlobalShortcuts : public QDBusVirtualObject
{
    Q_OBJECT

public:
    struct Binding {
        QString id;
        QString description;
        QString preferredTrigger;
    };

    explicit FakeGlobalShortcuts(const QDBusConnection &connection);
    // Takes the portal's name and path; false if that failed.
    bool start();

    [[nodiscard]] const QStringList &calls() const { return m_calls; }
    [[nodiscard]] const QList<Binding> &bindings() const { return m_bindings; }
    // The user pressed the key of the session's shortcut `id`.
    void activate(const QString &id, const QString &activationToken);

    QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    // Answers the call with its request's path and sends the request's Response.
    void respond(const QDBusMessage &call, const QVariantMap &results);

    QDBusConnection m_connection;
    QStringList m_calls;
    QList<Binding> m_bindings;
    QString m_session;
};

} // namespace quorvane::test
