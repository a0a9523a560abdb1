#pragma once

#include "model/AppViewModel.h"

#include "today/TodayCounters.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

class AppModel;

// The Today screen's counters and its calendar card, recomputed when the model changes or ticks.
class TodayViewModel : public AppViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int todayCount READ todayCount NOTIFY changed)
    Q_PROPERTY(int weekCount READ weekCount NOTIFY changed)
    Q_PROPERTY(int openPollsCount READ openPollsCount NOTIFY changed)
    Q_PROPERTY(bool showsConnectCard READ showsConnectCard NOTIFY changed)

public:
    explicit TodayViewModel(QObject *parent = nullptr);

    [[nodiscard]] int todayCount() const { return m_counts.today; }
    [[nodiscard]] int weekCount() const { return m_counts.thisWeek; }
    [[nodiscard]] int openPollsCount() const { return m_counts.openPolls; }
    [[nodiscard]] bool showsConnectCard() const { return m_showsConnectCard; }

    Q_INVOKABLE void connectGoogle();

private:
    void recompute() override;

    TodayCounters::Counts m_counts;
    bool m_showsConnectCard = false;
};

} // namespace quorvane
