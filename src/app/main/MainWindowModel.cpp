#include "main/MainWindowModel.h"

#include "main/MainWindowText.h"

namespace quorvane {

MainWindowModel::MainWindowModel(QObject *parent)
    : AppViewModel({&AppModel::offlineChanged, &AppModel::savingChanged, &AppModel::lastRefreshChanged,
                    &AppModel::sectionChanged, &AppModel::snapshotChanged, &AppModel::needsSignInChanged,
                    &AppModel::ticked},
                   parent)
{}

QString MainWindowModel::title() const
{
    return m_app ? Section::title(m_app->section()) : QString();
}

QString MainWindowModel::symbol() const
{
    return m_app ? Section::symbol(m_app->section()) : QString();
}

bool MainWindowModel::showsSignInHero() const
{
    return m_app && m_app->needsSignIn() && !m_app->account().has_value();
}

QString MainWindowModel::subtitle() const
{
    if (!m_app)
        return {};
    return MainWindowText::subtitle(m_app->offline(), m_app->saving(), m_app->lastRefresh(), m_app->locale(),
                                    m_app->zone());
}

QString MainWindowModel::initials() const
{
    const std::optional<Account> account = m_app ? m_app->account() : std::nullopt;
    return MainWindowText::initials(account ? account->name : std::nullopt);
}

QString MainWindowModel::accountName() const
{
    const std::optional<Account> account = m_app ? m_app->account() : std::nullopt;
    return MainWindowText::accountName(account ? account->name : std::nullopt);
}

QString MainWindowModel::statusText() const
{
    return m_app ? MainWindowText::footerStatus(m_app->offline(), m_app->googleConnected()).text : QString();
}

QColor MainWindowModel::statusColor() const
{
    const Tint dot =
        m_app ? MainWindowText::footerStatus(m_app->offline(), m_app->googleConnected()).dot : Tint::secondary;
    return Tints::color(dot);
}

} // namespace quorvane
