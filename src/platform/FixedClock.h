#pragma once

#include "Clock.h"

#include <chrono>

namespace quorvane {

// A clock that only moves when told to: for tests and the screenshot renderer.
class FixedClock final : public Clock
{
public:
    explicit FixedClock(Instant at)
        : m_now(at.toUTC())
    {}

    [[nodiscard]] Instant now() const override { return m_now; }
    void set(const Instant &at) { m_now = at.toUTC(); }
    void advance(std::chrono::milliseconds by) { m_now = m_now.addMSecs(by.count()); }

private:
    Instant m_now;
};

} // namespace quorvane
