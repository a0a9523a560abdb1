#pragma once

#include "Backend.h"

#include <QObject>
#include <QTimer>

namespace quorvane::sandbox {

// Guests who book good times and now and then cancel, at random intervals between the
// bounds, so a running client has changes to notice.
class GuestSimulator : public QObject
{
    Q_OBJECT

public:
    GuestSimulator(Backend &backend, int minSeconds, int maxSeconds, QObject *parent = nullptr);

    void start();
    // One guest's action. Gives the booking that was made or cancelled, if any.
    std::optional<Booking> step();

Q_SIGNALS:
    void acted(const QString &what);

private:
    std::optional<Booking> bookSomething();
    std::optional<Booking> cancelSomething();
    void scheduleNext();

    Backend &m_backend;
    int m_minSeconds;
    int m_maxSeconds;
    QTimer m_timer;
};

} // namespace quorvane::sandbox
