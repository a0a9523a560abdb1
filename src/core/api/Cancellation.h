#pragma once

#include <QCoroTask>

#include <chrono>
#include <functional>
#include <memory>

namespace quorvane {

// A cheap shared handle through which the holder of a piece of async work gives up on
// it. Copies share one state. cancel() aborts the network reply in flight and wakes a
// sleep; the work then ends by throwing Cancelled. Used on the thread that runs the work.
class Cancellation
{
    struct State;

public:
    Cancellation();

    // Idempotent. The registered actions run once, on this call's stack.
    void cancel() const;
    [[nodiscard]] bool isCancelled() const;
    // Throws Cancelled if cancel() was called.
    void throwIfCancelled() const;

    // Keeps an action registered for as long as it lives.
    class Subscription
    {
    public:
        Subscription() = default;
        Subscription(Subscription &&other) noexcept;
        Subscription &operator=(Subscription &&other) noexcept;
        ~Subscription();

    private:
        friend class Cancellation;
        Subscription(std::weak_ptr<State> state, quint64 id)
            : m_state(std::move(state))
            , m_id(id)
        {}
        void release();

        std::weak_ptr<State> m_state;
        quint64 m_id = 0;
    };

    // Runs `action` when cancel() is called while the subscription lives; at once if the
    // handle is cancelled already. The action must not block; posting work is the norm.
    [[nodiscard]] Subscription onCancel(std::function<void()> action) const;

    // Waits `duration` without blocking the thread; throws Cancelled soon after cancel().
    static QCoro::Task<void> sleep(std::chrono::milliseconds duration, Cancellation cancellation);

private:
    std::shared_ptr<State> m_state;
};

} // namespace quorvane
