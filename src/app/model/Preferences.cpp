#include "model/Preferences.h"

#include "BuildInfo.h"

using namespace Qt::StringLiterals;

namespace quorvane {

Preferences::Preferences(QSettings &settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
{}

QString Preferences::defaultServerURL()
{
    return QString::fromUtf8(build::defaultServer);
}

bool Preferences::boolValue(const char *key, bool fallback) const
{
    return m_settings.value(QLatin1StringView(key), fallback).toBool();
}

void Preferences::store(const char *key, const QVariant &value)
{
    const QString name = QLatin1StringView(key);
    if (m_settings.contains(name) && m_settings.value(name) == value)
        return;
    m_settings.setValue(name, value);
    m_settings.sync();
    Q_EMIT changed(name);
}

bool Preferences::menuBarShowsNext() const
{
    return boolValue(Keys::menuBarShowsNext, true);
}
void Preferences::setMenuBarShowsNext(bool value)
{
    store(Keys::menuBarShowsNext, value);
}
bool Preferences::notifyBookings() const
{
    return boolValue(Keys::notifyBookings, true);
}
void Preferences::setNotifyBookings(bool value)
{
    store(Keys::notifyBookings, value);
}
bool Preferences::notifyReminders() const
{
    return boolValue(Keys::notifyReminders, true);
}
void Preferences::setNotifyReminders(bool value)
{
    store(Keys::notifyReminders, value);
}
bool Preferences::onboarded() const
{
    return boolValue(Keys::onboarded, false);
}
void Preferences::setOnboarded(bool value)
{
    store(Keys::onboarded, value);
}

int Preferences::reminderMinutes() const
{
    bool ok = false;
    const int minutes = m_settings.value(QLatin1StringView(Keys::reminderMinutes), 5).toInt(&ok);
    return ok ? minutes : 5;
}

void Preferences::setReminderMinutes(int value)
{
    store(Keys::reminderMinutes, value);
}

QString Preferences::serverURL() const
{
    return m_settings.value(QLatin1StringView(Keys::serverURL), defaultServerURL()).toString();
}

void Preferences::setServerURL(const QString &value)
{
    store(Keys::serverURL, value);
}

QUrl Preferences::baseURL() const
{
    const QUrl url(serverURL(), QUrl::StrictMode);
    if (url.isValid() && !url.scheme().isEmpty() && !url.host().isEmpty())
        return url;
    return QUrl(defaultServerURL());
}

std::optional<QString> Preferences::publicBaseURL() const
{
    const QVariant value = m_settings.value(QLatin1StringView(Keys::publicBaseURL));
    if (!value.isValid() || value.typeId() != QMetaType::QString)
        return std::nullopt;
    return value.toString();
}

void Preferences::migrate()
{
    const std::optional<QString> old = publicBaseURL();
    if (old && old->startsWith(u"https://"_s))
        setServerURL(*old);
}

} // namespace quorvane
