#pragma once

#include "Clock.h"

namespace quorvane {

// The wall clock, in UTC.
class SystemClock final : public Clock
{
public:
    [[nodiscard]] Instant now() const override { return QDateTime::currentDateTimeUtc(); }
};

} // namespace quorvane
