#pragma once

#include "today/TodayCounters.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

class AppModel;

// The Today screen's counters and its calendar card, recomputed when the model changes or ticks.
class TodayViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quorvane::AppModel *app READ app WRITE setApp NOTIFY appChanged)
    Q_PROPERTY(int todayCount READ todayCount NOTIFY changed)
    Q_PROPERTY(int weekCount READ weekCount NOTIFY changed)
    Q_PROPERTY(int openPollsCount READ openPollsCount NOTIFY changed)
    Q_PROPERTY(bool showsConnectCard READ showsConnectCard NOTIFY changed)

public:
    using QObject::QObject;

    [[nodiscard]] AppModel *app() const { return m_app; }
    void setApp(AppModel *app);

    [[nodiscard]] int todayCount() const { return m_counts.today; }
    [[nodiscard]] int weekCount() const { return m_counts.thisWeek; }
    [[nodiscard]] int openPollsCount() const { return m_counts.openPolls; }
    [[nodiscard]] bool showsConnectCard() const { return m_showsConnectCard; }

    Q_INVOKABLE void connectGoogle();

Q_SIGNALS:
    void appChanged();
    void changed();

private:
    void reload();

    QPointer<AppModel> m_app;
    TodayCounters::Counts m_counts;
    bool m_showsConnectCard = false;
};

} // namespace quorvane
