#include "today/TodayViewModel.h"

#include "model/AppBinding.h"

namespace quorvane {

void TodayViewModel::setApp(AppModel *app)
{
    if (!AppBinding::follow(m_app, app, this, {&AppModel::snapshotChanged, &AppModel::ticked}, &TodayViewModel::reload))
        return;
    Q_EMIT appChanged();
    reload();
}

void TodayViewModel::reload()
{
    if (m_app) {
        const Instant now = m_app->now();
        m_counts = TodayCounters::counts(m_app->today(), m_app->upcoming(), m_app->snapshot().polls, now,
                                         WeekCalendar(m_app->locale(), m_app->zone()));
        m_showsConnectCard = TodayCounters::showsConnectCard(m_app->googleConnected(), m_app->account().has_value());
    } else {
        m_counts = {};
        m_showsConnectCard = false;
    }
    Q_EMIT changed();
}

void TodayViewModel::connectGoogle()
{
    if (m_app)
        m_app->connectGoogle();
}

} // namespace quorvane
