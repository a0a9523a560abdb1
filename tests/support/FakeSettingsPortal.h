#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QStringList>

#include <optional>

namespace quorvane::test {

// The desktop portal's Settings as a desktop offers it, with the one setting the app reads:
// `org.freedesktop.appearance` `color-scheme`. Read answers as the portal does, the value
// wrapped in one variant more; a setting it doesn't have is an error.
class FakeSettingsPortal : public QDBusVirtualObject
{
    Q_OBJECT

public:
    FakeSettingsPortal(const QDBusConnection &connection, std::optional<uint> colorScheme);
    // Takes the portal's name and path; false if that failed.
    bool start();

    // The user switched the desktop: the setting changes and SettingChanged goes out.
    void setColorScheme(uint value);
    [[nodiscard]] const QStringList &calls() const { return m_calls; }

    QString introspect(const QString &path) const override;
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    QDBusConnection m_connection;
    std::optional<uint> m_colorScheme;
    QStringList m_calls;
};

} // namespace quorvane::test
