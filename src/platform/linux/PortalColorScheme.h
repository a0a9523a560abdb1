#pragma once

#include "ColorScheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

namespace quorvane {

// The desktop's light or dark preference, from the desktop portal's Settings: the
// `org.freedesktop.appearance` `color-scheme` setting, read once and then followed through
// SettingChanged. A portal that doesn't know the setting leaves it at noPreference.
class PortalColorScheme : public QObject
{
    Q_OBJECT

public:
    explicit PortalColorScheme(QDBusConnection bus, QObject *parent = nullptr);

    // The session bus has a desktop portal, running or to be started.
    [[nodiscard]] static bool available(const QDBusConnection &bus);

    // Asks the portal without waiting and follows its changes from then on; changed() when the
    // answer comes.
    void start();
    // Asks the portal and waits for the answer (at most `timeoutMs`), for the colours of the
    // first frame. Needs a portal in another process.
    void readNow(int timeoutMs);
    [[nodiscard]] ColorScheme scheme() const { return m_scheme; }

    // The setting's value as the portal sends it: a number, perhaps wrapped in variants.
    [[nodiscard]] static ColorScheme fromValue(const QVariant &value);

Q_SIGNALS:
    void changed(quorvane::ColorScheme scheme);

private Q_SLOTS:
    void settingChanged(const QDBusMessage &signal);

private:
    [[nodiscard]] QDBusMessage readCall() const;
    void take(const QDBusMessage &reply);
    void set(ColorScheme scheme);

    QDBusConnection m_bus;
    ColorScheme m_scheme = ColorScheme::noPreference;
};

} // namespace quorvane
