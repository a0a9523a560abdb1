#include "APIError.h"

#include <QCoreApplication>

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(APIError)
};
} // namespace

QString APIError::errorDescription() const
{
    switch (m_kind) {
    case Kind::notSignedIn:
        return Text::tr("You're not signed in.");
    case Kind::unauthorized:
        return Text::tr("Your session has expired. Sign in again.");
    case Kind::offline:
        return Text::tr("You're offline. Showing saved data.");
    case Kind::rateLimited:
        return Text::tr("Too many requests. Quorvane will retry shortly.");
    case Kind::server:
        return m_message.isEmpty() ? Text::tr("Server error (%1)").arg(m_status) : m_message;
    case Kind::decoding:
        return Text::tr("Unexpected response: %1").arg(m_message);
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
