#pragma once

#include <exception>

namespace quorvane {

// Thrown when the holder of a Cancellation gave up on the work. Not a failure to
// report: whoever cancelled already knows.
class Cancelled : public std::exception
{
public:
    const char *what() const noexcept override { return "cancelled"; }
};

} // namespace quorvane
