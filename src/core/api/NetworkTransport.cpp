#include "NetworkTransport.h"

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
    co_await reply.get();
    cancellation.throwIfCancelled();
    co_return responseOf(*reply);
}

} // namespace quorvane
