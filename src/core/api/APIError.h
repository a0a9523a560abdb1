#pragma once

#include <QString>

#include <exception>

namespace quorvane {

// The typed failure of all server work. Thrown by QuorvaneAPI operations.
class APIError : public std::exception
{
public:
    enum class Kind { notSignedIn, unauthorized, offline, rateLimited, server, decoding };

    static APIError notSignedIn() { return APIError(Kind::notSignedIn); }
    static APIError unauthorized() { return APIError(Kind::unauthorized); }
    static APIError offline() { return APIError(Kind::offline); }
    static APIError rateLimited() { return APIError(Kind::rateLimited); }
    static APIError server(int status, QString message) { return APIError(Kind::server, status, std::move(message)); }
    static APIError decoding(QString message) { return APIError(Kind::decoding, 0, std::move(message)); }

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] int status() const { return m_status; }              // server only
    [[nodiscard]] const QString &message() const { return m_message; } // server and decoding

    // The words the user sees.
    [[nodiscard]] QString errorDescription() const;
    [[nodiscard]] bool isRetryable() const;

    const char *what() const noexcept override { return "APIError"; }
    bool operator==(const APIError &other) const
    {
        return m_kind == other.m_kind && m_status == other.m_status && m_message == other.m_message;
    }

private:
    explicit APIError(Kind kind, int status = 0, QString message = {})
        : m_kind(kind)
        , m_status(status)
        , m_message(std::move(message))
    {}

    Kind m_kind;
    int m_status;
    QString m_message;
};

} // namespace quorvane
