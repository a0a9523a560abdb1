#pragma once

#include <QString>

#include <exception>

namespace quorvane {

// The request never got an HTTP answer: no network, refused, timed out, or the answer
// was not HTTP. The client counts all of these as being offline.
class TransportError : public std::exception
{
public:
    explicit TransportError(QString reason)
        : m_reason(std::move(reason))
    {}

    // The network layer's own words; they name the host, never the request's headers.
    [[nodiscard]] const QString &reason() const { return m_reason; }
    const char *what() const noexcept override { return "transport error"; }

private:
    QString m_reason;
};

} // namespace quorvane
