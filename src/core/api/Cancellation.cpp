#include "Cancellation.h"

#include "Cancelled.h"

#include <QCoroTimer>
#include <QTimer>

#include <map>

namespace quorvane {

struct Cancellation::State {
    bool cancelled = false;
    quint64 nextId = 1;
    std::map<quint64, std::function<void()>> actions;
};

Cancellation::Cancellation()
    : m_state(std::make_shared<State>())
{}

void Cancellation::cancel() const
{
    const std::shared_ptr<State> state = m_state; // an action may drop the last other copy
    if (state->cancelled)
        return;
    state->cancelled = true;
    // Taken out first: an action may end a subscription while we iterate.
    const auto actions = std::exchange(state->actions, {});
    for (const auto &[id, action] : actions)
        action();
}

bool Cancellation::isCancelled() const
{
    return m_state->cancelled;
}

void Cancellation::throwIfCancelled() const
{
    if (m_state->cancelled)
        throw Cancelled();
}

Cancellation::Subscription Cancellation::onCancel(std::function<void()> action) const
{
    if (m_state->cancelled) {
        action();
        return {};
    }
    const quint64 id = m_state->nextId++;
    m_state->actions.emplace(id, std::move(action));
    return Subscription(m_state, id);
}

Cancellation::Subscription::Subscription(Subscription &&other) noexcept
    : m_state(std::move(other.m_state))
    , m_id(std::exchange(other.m_id, 0))
{}

Cancellation::Subscription &Cancellation::Subscription::operator=(Subscription &&other) noexcept
{
    if (this != &other) {
        release();
        m_state = std::move(other.m_state);
        m_id = std::exchange(other.m_id, 0);
    }
    return *this;
}

Cancellation::Subscription::~Subscription()
{
    release();
}

void Cancellation::Subscription::release()
{
    if (const auto state = m_state.lock())
        state->actions.erase(m_id);
    m_state.reset();
}

QCoro::Task<void> Cancellation::sleep(std::chrono::milliseconds duration, Cancellation cancellation)
{
    cancellation.throwIfCancelled();
    QTimer timer;
    timer.setSingleShot(true);
    timer.start(duration);
    // Restarting at zero wakes the wait on the next turn of the event loop.
    const Subscription wake = cancellation.onCancel([&timer] { timer.start(0); });
    co_await timer;
    cancellation.throwIfCancelled();
}

} // namespace quorvane
