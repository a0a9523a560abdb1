#include "today/TodayViewModel.h"

namespace quorvane {

TodayViewModel::TodayViewModel(QObject *parent)
    : AppViewModel({&AppModel::snapshotChanged, &AppModel::ticked}, parent)
{}

void TodayViewModel::recompute()
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
}

void TodayViewModel::connectGoogle()
{
    if (m_app)
        m_app->connectGoogle();
}

} // namespace quorvane
