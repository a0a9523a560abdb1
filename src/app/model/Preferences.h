#pragma once

#include <QObject>
#include <QSettings>
#include <QString>
#include <QUrl>

#include <optional>

namespace quorvane {

// The user's settings of this machine, over QSettings. Every key the app keeps lives here,
// with its default; account settings live on the server instead.
class Preferences : public QObject
{
    Q_OBJECT

public:
    struct Keys {
        static constexpr char menuBarShowsNext[] = "menuBarShowsNext";
        static constexpr char notifyBookings[] = "notifyBookings";
        static constexpr char notifyReminders[] = "notifyReminders";
        static constexpr char reminderMinutes[] = "reminderMinutes";
        static constexpr char serverURL[] = "serverURL";
        static constexpr char onboarded[] = "onboarded.v2";
        // An earlier version's server setting: read, never written.
        static constexpr char publicBaseURL[] = "publicBaseURL";
    };

    // `settings` must outlive this object.
    explicit Preferences(QSettings &settings, QObject *parent = nullptr);

    [[nodiscard]] bool menuBarShowsNext() const;
    void setMenuBarShowsNext(bool value);
    [[nodiscard]] bool notifyBookings() const;
    void setNotifyBookings(bool value);
    [[nodiscard]] bool notifyReminders() const;
    void setNotifyReminders(bool value);
    [[nodiscard]] int reminderMinutes() const;
    void setReminderMinutes(int value);
    [[nodiscard]] QString serverURL() const;
    // The server to talk to: serverURL when it has a scheme and a host, else the default.
    [[nodiscard]] QUrl baseURL() const;
    void setServerURL(const QString &value);
    [[nodiscard]] bool onboarded() const;
    void setOnboarded(bool value);
    [[nodiscard]] std::optional<QString> publicBaseURL() const;

    // An https value left under the old key wins over serverURL, at every launch while it exists.
    void migrate();

    [[nodiscard]] static QString defaultServerURL();

Q_SIGNALS:
    // One of the keys above changed; the name is the key.
    void changed(const QString &key);

private:
    [[nodiscard]] bool boolValue(const char *key, bool fallback) const;
    void store(const char *key, const QVariant &value);

    QSettings &m_settings;
};

} // namespace quorvane
