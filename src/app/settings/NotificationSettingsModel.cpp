#include "settings/NotificationSettingsModel.h"

#include "model/AppModel.h"
#include "settings/Settings.h"

namespace quorvane {

NotificationSettingsModel::NotificationSettingsModel(QObject *parent)
    : AppViewModel({&AppModel::preferencesChanged}, parent)
{}

bool NotificationSettingsModel::notifyReminders() const
{
    return m_app && m_app->notifyReminders();
}

void NotificationSettingsModel::setNotifyReminders(bool on)
{
    if (!m_app || on == notifyReminders())
        return;
    m_app->setNotifyReminders(on);
    m_app->scheduleReminders();
}

QStringList NotificationSettingsModel::reminderChoices()
{
    QStringList out;
    for (const int minutes : Settings::reminderChoices())
        out.append(Settings::reminderText(minutes));
    return out;
}

int NotificationSettingsModel::reminderIndex() const
{
    return m_app ? int(Settings::reminderChoices().indexOf(m_app->reminderMinutes())) : -1;
}

void NotificationSettingsModel::chooseReminder(int index)
{
    const QList<int> choices = Settings::reminderChoices();
    if (!m_app || index < 0 || index >= choices.size() || choices.at(index) == m_app->reminderMinutes())
        return;
    m_app->setReminderMinutes(choices.at(index));
    m_app->scheduleReminders();
}

UpdateSettingsModel::UpdateSettingsModel(QObject *parent)
    : AppViewModel({&AppModel::ticked}, parent)
{}

void UpdateSettingsModel::setLastCheck(const QDateTime &when)
{
    if (when == m_lastCheck)
        return;
    m_lastCheck = when;
    Q_EMIT lastCheckChanged();
    Q_EMIT changed();
}

QString UpdateSettingsModel::lastChecked() const
{
    return m_app ? Settings::lastCheckedText(m_lastCheck, m_app->now(), m_app->locale()) : QString();
}

} // namespace quorvane
