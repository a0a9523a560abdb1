#include "settings/NotificationAccess.h"

#include "Notifier.h"

#include <QPointer>

namespace quorvane {

namespace {
// The task goes on by itself once its handle is dropped, and catches its own failures.
void detach(QCoro::Task<> &&task)
{
    QCoro::Task<> dropped = std::move(task);
    Q_UNUSED(dropped);
}
} // namespace

NotificationAccess::NotificationAccess(Notifier &notifier, QObject *parent)
    : QObject(parent)
    , m_notifier(notifier)
{}

void NotificationAccess::appear()
{
    detach(ask(false, ++m_generation));
}

void NotificationAccess::enable()
{
    detach(ask(true, ++m_generation));
}

QCoro::Task<> NotificationAccess::ask(bool request, quint64 generation)
{
    const QPointer<NotificationAccess> self(this);
    Notifier &notifier = m_notifier;
    bool answer = false;
    try {
        // Two plain awaits: g++ 12 mishandles a Task made inside `co_await (c ? a : b)`.
        if (request)
            answer = co_await notifier.requestAuthorization();
        else
            answer = co_await notifier.authorized();
    } catch (...) {
        answer = false; // a question that failed counts as no
    }
    if (!self || generation != m_generation)
        co_return;
    m_authorized = answer;
    m_refused = request && !answer;
    Q_EMIT changed();
}

} // namespace quorvane
