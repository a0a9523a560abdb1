#pragma once

#include "Result.h"

#include <exception>

namespace quorvane {

// A server answer that did not decode, passed on as the JSON layer reported it rather
// than as an APIError. Only the settings save reports its answer this way.
class JSONFailure : public std::exception
{
public:
    explicit JSONFailure(DecodeError error)
        : m_error(std::move(error))
    {}

    [[nodiscard]] const DecodeError &error() const { return m_error; }
    const char *what() const noexcept override { return "JSON decoding failed"; }

private:
    DecodeError m_error;
};

} // namespace quorvane
