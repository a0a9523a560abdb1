#include "settings/AccountSettingsModel.h"

#include "model/AppModel.h"
#include "settings/Settings.h"

namespace quorvane {

AccountSettingsModel::AccountSettingsModel(QObject *parent)
    : AppViewModel({&AppModel::snapshotChanged, &AppModel::preferencesChanged}, parent)
{}

bool AccountSettingsModel::signedIn() const
{
    return m_app && m_app->account().has_value();
}

QString AccountSettingsModel::name() const
{
    return signedIn() ? Settings::nameText(*m_app->account()) : QString();
}

QString AccountSettingsModel::email() const
{
    return signedIn() ? m_app->account()->email : QString();
}

QString AccountSettingsModel::pageLink() const
{
    return m_app ? m_app->pageLink() : QString();
}

QUrl AccountSettingsModel::pageURL() const
{
    if (!m_app)
        return {};
    const QUrl page(m_app->pageLink(), QUrl::StrictMode);
    return page.isValid() && !page.scheme().isEmpty() && !page.host().isEmpty() ? page : m_app->baseURL();
}

void AccountSettingsModel::openPage() const
{
    if (m_app)
        m_app->openURL(pageURL());
}

void AccountSettingsModel::openDashboard() const
{
    if (m_app)
        m_app->openURL(m_app->baseURL());
}

void AccountSettingsModel::signOut() const
{
    if (m_app)
        m_app->signOut();
}

void AccountSettingsModel::serverEntered() const
{
    if (m_app)
        m_app->refreshNow();
}

} // namespace quorvane
