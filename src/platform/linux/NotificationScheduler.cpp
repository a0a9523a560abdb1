#include "NotificationScheduler.h"

#include <algorithm>

namespace quorvane {

namespace {

// Timers run on a clock that stops while the machine sleeps, so a long wait would come late
// after a suspend. Looking again at least every minute keeps a reminder within a minute of
// its time.
constexpr qint64 longestWaitMs = 60'000;

} // namespace

NotificationScheduler::NotificationScheduler(const Clock &clock, QObject *parent)
    : QObject(parent)
    , m_clock(clock)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &NotificationScheduler::deliverDue);
}

void NotificationScheduler::add(const NotificationRequest &request)
{
    NotificationRequest timed = request;
    if (!timed.fireAt)
        timed.fireAt = m_clock.now();
    m_pending.removeIf([&](const NotificationRequest &r) { return r.identifier == timed.identifier; });
    const auto at = std::upper_bound(m_pending.begin(), m_pending.end(), timed,
                                     [](const auto &a, const auto &b) { return *a.fireAt < *b.fireAt; });
    m_pending.insert(at, timed);
    rearm();
}

void NotificationScheduler::removeWithPrefix(const QString &prefix)
{
    m_pending.removeIf([&](const NotificationRequest &r) { return r.identifier.startsWith(prefix); });
    rearm();
}

void NotificationScheduler::removeAll()
{
    m_pending.clear();
    rearm();
}

void NotificationScheduler::deliverDue()
{
    const Instant now = m_clock.now();
    QList<NotificationRequest> ready;
    while (!m_pending.isEmpty() && *m_pending.first().fireAt <= now)
        ready.append(m_pending.takeFirst());
    rearm();
    for (const NotificationRequest &request : std::as_const(ready))
        Q_EMIT due(request);
}

void NotificationScheduler::rearm()
{
    if (m_pending.isEmpty()) {
        m_timer.stop();
        return;
    }
    const qint64 wait = m_clock.now().msecsTo(*m_pending.first().fireAt);
    m_timer.start(int(std::clamp<qint64>(wait, 0, longestWaitMs)));
}

} // namespace quorvane
