#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

namespace quorvane {

// The running app on the session bus, under its application id. Launches, the desktop and
// scripts reach it through org.freedesktop.Application; status bars read
// com.peldrachen.quorvane.Status, whose changes are announced with PropertiesChanged.
class DBusApplication : public QObject
{
    Q_OBJECT

public:
    static constexpr char path[] = "/com/peldrachen/quorvane";
    static constexpr char statusInterface[] = "com.peldrachen.quorvane.Status";

    // What a status bar shows, as the bus carries it: times in ISO 8601 UTC, "" for none.
    struct Status {
        QString nextId;
        QString nextTitle;
        QString nextGuest;
        QString nextStart;
        QString nextEnd;
        QString nextJoinLink;
        QString countdown;
        bool signedIn = false;
        bool offline = false;
        QString savedAt;
        // The meetings not yet over, today's and all, as the sidebar counts them.
        int todayCount = 0;
        int upcomingCount = 0;

        // By the bus's property names.
        [[nodiscard]] QVariantMap toMap() const;
        bool operator==(const Status &) const = default;
    };

    // `actions`: the names ActivateAction takes; any other is refused with InvalidArgs.
    DBusApplication(QDBusConnection bus, QStringList actions, QObject *parent = nullptr);
    ~DBusApplication() override;

    // The application id, which is the bus name.
    [[nodiscard]] static QString serviceName();

    // Puts the object on the bus and takes the name. False where there is no bus or another
    // process holds the name; the object is taken off again then.
    bool claim();
    [[nodiscard]] bool isClaimed() const { return m_claimed; }

    // Asks the app that holds the name for an action, or to come to the front when `action`
    // is empty; never starts one. True once it answered.
    static bool ask(QDBusConnection bus, const QString &action, int timeoutMs = 5000);

    [[nodiscard]] const Status &status() const { return m_status; }
    // Announces the values that differ from the last status; nothing when none does.
    void setStatus(const Status &status);
    [[nodiscard]] bool knows(const QString &action) const { return m_actions.contains(action); }

Q_SIGNALS:
    // `activationToken`: the desktop's permission to raise a window, when the caller sent one.
    void activateRequested(const QString &activationToken);
    void actionRequested(const QString &name, const QString &activationToken);
    void openRequested(const QStringList &uris, const QString &activationToken);

private:
    QDBusConnection m_bus;
    QStringList m_actions;
    Status m_status;
    bool m_claimed = false;
};

} // namespace quorvane
