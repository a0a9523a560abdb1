#pragma once

#include <exception>

namespace quorvane {

// The server answered, but not with what the step must give: the sign-in codes missing,
// or an answer that is not JSON at all.
class BadServerResponse : public std::exception
{
public:
    const char *what() const noexcept override { return "bad server response"; }
};

} // namespace quorvane
