#pragma once

#include "Instant.h"

#include <functional>

namespace quorvane::sandbox {

// Where the server reads the time. Tests hand in a clock they can move.
using Clock = std::function<Instant()>;

inline Clock systemClock()
{
    return [] { return QDateTime::currentDateTimeUtc(); };
}

} // namespace quorvane::sandbox
