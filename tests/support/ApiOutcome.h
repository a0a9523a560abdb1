#pragma once

#include "APIError.h"
#include "Cancelled.h"
#include "JSONFailure.h"

#include <QCoroTask>
#include <QString>

namespace quorvane::test {

// How an API call failed, as one line that test tables compare.
inline QString describe(const APIError &error)
{
    switch (error.kind()) {
    case APIError::Kind::notSignedIn:
        return QStringLiteral("notSignedIn");
    case APIError::Kind::unauthorized:
        return QStringLiteral("unauthorized");
    case APIError::Kind::offline:
        return QStringLiteral("offline");
    case APIError::Kind::rateLimited:
        return QStringLiteral("rateLimited");
    case APIError::Kind::server:
        return QStringLiteral("server(%1, %2)").arg(error.status()).arg(error.message());
    case APIError::Kind::decoding:
        return QStringLiteral("decoding(%1)").arg(error.message());
    }
    return {};
}

// Awaits a call whose success is already told as text, turning every failure into text too.
inline QCoro::Task<QString> settle(QCoro::Task<QString> task)
{
    QString outcome;
    try {
        outcome = co_await std::move(task);
    } catch (const APIError &error) {
        outcome = describe(error);
    } catch (const Cancelled &) {
        outcome = QStringLiteral("cancelled");
    } catch (const JSONFailure &failure) {
        outcome = QStringLiteral("json(%1)").arg(failure.error().description());
    }
    co_return outcome;
}

// Runs a call to its end from a test slot.
inline QString run(QCoro::Task<QString> task)
{
    return QCoro::waitFor(settle(std::move(task)));
}

} // namespace quorvane::test
