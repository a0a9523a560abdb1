#pragma once

#include "Instant.h"

namespace quorvane {

// Where "now" comes from. Injected everywhere, so tests and screenshots run at a fixed moment.
class Clock
{
public:
    virtual ~Clock() = default;
    [[nodiscard]] virtual Instant now() const = 0;
};

} // namespace quorvane
