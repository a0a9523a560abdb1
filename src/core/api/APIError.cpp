#include "APIError.h"

namespace quorvane {

QString APIError::errorDescription() const
{
    switch (m_kind) {
    case Kind::notSignedIn:
        return QStringLiteral("You're not signed in.");
    case Kind::unauthorized:
        return QStringLiteral("Your session has expired. Sign in again.");
    case Kind::offline:
        return QStringLiteral("You're offline. Showing saved data.");
    case Kind::rateLimited:
        return QStringLiteral("Too many requests. Quorvane will retry shortly.");
    case Kind::server:
        return m_message.isEmpty() ? QStringLiteral("Server error (%1)").arg(m_status) : m_message;
    case Kind::decoding:
        return QStringLiteral("Unexpected response: %1").arg(m_message);
    }
    return {};
}

bool APIError::isRetryable() const
{
    switch (m_kind) {
    case Kind::offline:
    case Kind::rateLimited:
        return true;
    case Kind::server:
        return m_status >= 500;
    default:
        return false;
    }
}

} // namespace quorvane
