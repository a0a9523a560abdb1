#pragma once

#include "Clock.h"
#include "NotificationRequest.h"

#include <QList>
#include <QObject>
#include <QTimer>

namespace quorvane {

// Requests waiting for their time. The desktop has no timed notifications, and the app runs all
// day in the tray, so the app keeps them: listed, replaced by identifier, removed by prefix or
// all, and handed out through due() once the clock reaches them.
class NotificationScheduler : public QObject
{
    Q_OBJECT
public:
    explicit NotificationScheduler(const Clock &clock, QObject *parent = nullptr);

    // Replaces any pending request with the same identifier. A request without a time is due now.
    void add(const NotificationRequest &request);
    void removeWithPrefix(const QString &prefix);
    void removeAll();

    // Earliest first.
    [[nodiscard]] QList<NotificationRequest> pending() const { return m_pending; }

Q_SIGNALS:
    void due(const NotificationRequest &request);

private:
    void deliverDue();
    void rearm();

    const Clock &m_clock;
    QList<NotificationRequest> m_pending;
    QTimer m_timer;
};

} // namespace quorvane
