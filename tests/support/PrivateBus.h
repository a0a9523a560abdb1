#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

namespace quorvane::test {

// A dbus-daemon of the test's own. Nothing is on it but what the test puts there, and nothing
// starts on demand, unless the test hands it a directory of .service files.
class PrivateBus
{
public:
    explicit PrivateBus(const QString &servicesDir = {});
    ~PrivateBus();
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

    [[nodiscard]] bool isRunning() const { return !m_address.isEmpty(); }
    [[nodiscard]] QString address() const { return m_address; }
    // Why the daemon didn't start, for the test's failure message.
    [[nodiscard]] QString error() const { return m_error; }

    // A new client of the bus, with its own unique name; closed with the bus.
    [[nodiscard]] QDBusConnection connect(const QString &label);
    // Drops a client at once, as if its process had gone: its names are released.
    void disconnect(const QDBusConnection &connection);

private:
    QTemporaryDir m_dir;
    QProcess m_daemon;
    QString m_address;
    QString m_error;
    QStringList m_connections;
};

} // namespace quorvane::test
