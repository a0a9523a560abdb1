#pragma once

#include "HTTPTransport.h"

#include <QPointer>

class QNetworkAccessManager;

namespace quorvane {

// The transport of the running program: one QNetworkAccessManager, owned by the caller
// and living longer than every request sent through it; used on the manager's thread.
// Give the manager no cache: the client always asks the server.
class NetworkTransport : public HTTPTransport
{
public:
    explicit NetworkTransport(QNetworkAccessManager &manager);

    QCoro::Task<HTTPResponse> send(HTTPRequest request, Cancellation cancellation) override;

private:
    QPointer<QNetworkAccessManager> m_manager;
};

} // namespace quorvane
