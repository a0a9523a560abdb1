#include "NetworkTransport.h"

#include "APIError.h"
#include "Cancelled.h"
#include "TransportError.h"

#include <QCoroNetworkReply>
#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <memory>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {

// A reply is never deleted while it is awaited; it goes once the coroutine is done with it.
struct DeleteLater {
    void operator()(QNetworkReply *reply) const { reply->deleteLater(); }
};

// Errors below the HTTP layer (connection, time-out, abort, proxy) mean no answer came.
bool isBelowHTTP(QNetworkReply::NetworkError error)
{
    return error != QNetworkReply::NoError && error < QNetworkReply::ContentAccessDenied;
}

QNetworkReply *start(QNetworkAccessManager &manager, const HTTPRequest &request)
{
    if (request.body)
        return manager.sendCustomRequest(request.request, request.method, *request.body);
    if (request.method == "GET")
        return manager.get(request.request);
    return manager.sendCustomRequest(request.request, request.method);
}

HTTPResponse responseOf(QNetworkReply &reply)
{
    const QVariant status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute);
    if (isBelowHTTP(reply.error()) || !status.isValid())
        throw TransportError(reply.errorString());
    return HTTPResponse{status.toInt(), reply.readAll()};
}

// Aborts the reply as soon as its announced or received length passes `limit`; true once it did.
std::shared_ptr<bool> capLength(QNetworkReply *reply, qint64 limit)
{
    auto exceeded = std::make_shared<bool>(false);
    const auto check = [reply, limit, exceeded](qint64 length) {
        if (length > limit && !*exceeded) {
            *exceeded = true;
            QMetaObject::invokeMethod(reply, &QNetworkReply::abort, Qt::QueuedConnection);
        }
    };
    QObject::connect(reply, &QNetworkReply::metaDataChanged, reply, [reply, check] {
        const QVariant announced = reply->header(QNetworkRequest::ContentLengthHeader);
        if (announced.isValid())
            check(announced.toLongLong());
    });
    QObject::connect(reply, &QNetworkReply::downloadProgress, reply,
                     [check](qint64 received, qint64) { check(received); });
    return exceeded;
}

} // namespace

NetworkTransport::NetworkTransport(QNetworkAccessManager &manager)
    : m_manager(&manager)
{}

QCoro::Task<HTTPResponse> NetworkTransport::send(HTTPRequest request, Cancellation cancellation)
{
    cancellation.throwIfCancelled();
    if (!m_manager)
        throw TransportError(u"The network manager is gone"_s);
    const std::unique_ptr<QNetworkReply, DeleteLater> reply(start(*m_manager, request));
    // Queued, so that the coroutine resumes from the event loop, not inside cancel().
    const auto abort = cancellation.onCancel([target = QPointer<QNetworkReply>(reply.get())] {
        if (target)
            QMetaObject::invokeMethod(target, &QNetworkReply::abort, Qt::QueuedConnection);
    });
    const std::shared_ptr<bool> tooLong =
        request.maxBodyBytes ? capLength(reply.get(), *request.maxBodyBytes) : std::make_shared<bool>(false);
    co_await reply.get();
    cancellation.throwIfCancelled();
    if (*tooLong)
        throw APIError::decoding(u"the answer is over %1 MB"_s.arg(*request.maxBodyBytes / (1024 * 1024)));
    co_return responseOf(*reply);
}

} // namespace quorvane
