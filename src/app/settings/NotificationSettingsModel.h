#pragma once

#include "model/AppViewModel.h"

#include <QStringList>

namespace quorvane {

// The Notifications pane's alerts: each change to the reminders lays them out again at once.
class NotificationSettingsModel : public AppViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool notifyReminders READ notifyReminders WRITE setNotifyReminders NOTIFY changed)
    // "1 min before" … "15 min before"
    Q_PROPERTY(QStringList reminderChoices READ reminderChoices CONSTANT)
    // Where the stored minutes stand among the choices; -1 for a value not offered.
    Q_PROPERTY(int reminderIndex READ reminderIndex NOTIFY changed)

public:
    explicit NotificationSettingsModel(QObject *parent = nullptr);

    [[nodiscard]] bool notifyReminders() const;
    void setNotifyReminders(bool on);
    [[nodiscard]] static QStringList reminderChoices();
    [[nodiscard]] int reminderIndex() const;

    Q_INVOKABLE void chooseReminder(int index);
};

// The Updates pane's one computed line: when the updater last reached its feed.
class UpdateSettingsModel : public AppViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QDateTime lastCheck READ lastCheck WRITE setLastCheck NOTIFY lastCheckChanged)
    // "Last checked 3 hours ago"; empty before the first check.
    Q_PROPERTY(QString lastChecked READ lastChecked NOTIFY changed)

public:
    explicit UpdateSettingsModel(QObject *parent = nullptr);

    [[nodiscard]] const QDateTime &lastCheck() const { return m_lastCheck; }
    void setLastCheck(const QDateTime &when);
    [[nodiscard]] QString lastChecked() const;

Q_SIGNALS:
    void lastCheckChanged();

private:
    QDateTime m_lastCheck;
};

} // namespace quorvane
