#pragma once

#include "Clock.h"
#include "NotificationRequest.h"
#include "NotificationScheduler.h"
#include "Notifier.h"

#include <QDBusConnection>
#include <QHash>

#include <optional>

class QDBusServiceWatcher;

namespace quorvane {

// Notifications through the desktop's org.freedesktop.Notifications server. Announcements go
// out at once; reminders wait in an in-process scheduler until they are due. A repeated
// identifier replaces what the server still shows under it.
class FreedesktopNotifier final : public Notifier
{
    Q_OBJECT
public:
    // `locale` and `zone` decide how times read in the texts ("en_US", "Europe/Berlin").
    FreedesktopNotifier(const QDBusConnection &bus, const Clock &clock, const QString &locale, const QString &zone,
                        QObject *parent = nullptr);

    void setLocale(const QString &locale, const QString &zone);

    void announce(const ChangeEvent &event, const QString &typeTitle) override;
    void scheduleReminders(const QList<Booking> &bookings, int minutesBefore,
                           const QHash<QString, QString> &titles) override;
    void removeAll() override;

    // A notification server runs on the session bus, or the bus would start one on demand.
    QCoro::Task<bool> authorized() override;
    // There is no permission to ask for on this desktop.
    QCoro::Task<bool> requestAuthorization() override;

    [[nodiscard]] QList<NotificationRequest> pending() const { return m_scheduler.pending(); }

private Q_SLOTS:
    void onActionInvoked(uint id, const QString &action);
    void onActivationToken(uint id, const QString &token);
    void onClosed(uint id, uint reason);

private:
    struct Shown {
        QString identifier;
        QString meet;
    };

    void show(const NotificationRequest &request);
    QCoro::Task<> drain();
    QCoro::Task<> send(NotificationRequest request);
    QCoro::Task<bool> bodyIsMarkup();
    void remember(uint id, const NotificationRequest &request);
    void forgetServer();

    QDBusConnection m_bus;
    const Clock &m_clock;
    QString m_locale;
    QString m_zone;
    NotificationScheduler m_scheduler;
    QDBusServiceWatcher *m_serverWatcher = nullptr;
    std::optional<bool> m_bodyMarkup; // as the running server answered
    // One Notify at a time, so a repeat learns the id of what it replaces before it goes out.
    QList<NotificationRequest> m_outbox;
    bool m_sending = false;
    QHash<QString, uint> m_idsByIdentifier;
    QHash<uint, Shown> m_shown;
    QHash<uint, QString> m_activationTokens; // arrive just before their action
};

} // namespace quorvane
