#pragma once

#include "APIError.h"
#include "Cancelled.h"
#include "JSONFailure.h"
#include "NetworkTransport.h"
#include "QuorvaneAPI.h"
#include "support/ScriptedServer.h"

#include <QCoroTask>
#include <QNetworkAccessManager>

#include <memory>

namespace quorvane::test {

// The only token the API tests use; it must never show up in anything they print.
inline const QString canaryToken = QStringLiteral("canary-7c41e9-do-not-print");

// One line naming how a call ended, so that tables can compare outcomes as text.
inline QString describe(const APIError &error)
{
    switch (error.kind()) {
    case APIError::Kind::notSignedIn: return QStringLiteral("notSignedIn");
    case APIError::Kind::unauthorized: return QStringLiteral("unauthorized");
    case APIError::Kind::offline: return QStringLiteral("offline");
    case APIError::Kind::rateLimited: return QStringLiteral("rateLimited");
    case APIError::Kind::server: return QStringLiteral("server(%1, %2)").arg(error.status()).arg(error.message());
    case APIError::Kind::decoding: return QStringLiteral("decoding(%1)").arg(error.message());
    }
    return {};
}

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

inline QCoro::Task<QString> bodyOf(QCoro::Task<QByteArray> task)
{
    co_return QStringLiteral("ok ") + QString::fromUtf8(co_await std::move(task));
}

// A client over real HTTP to a scripted server on the loopback interface.
struct ApiHarness {
    ScriptedServer server;
    QNetworkAccessManager manager;
    std::shared_ptr<NetworkTransport> transport = std::make_shared<NetworkTransport>(manager);
    int tokenReads = 0;

    [[nodiscard]] QuorvaneAPI api(std::optional<QString> token = canaryToken, QUrl base = {})
    {
        return QuorvaneAPI{base.isEmpty() ? server.base() : base,
                           [this, token] {
                               ++tokenReads;
                               return token;
                           },
                           transport};
    }
};

} // namespace quorvane::test
