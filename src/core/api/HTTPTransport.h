#pragma once

#include "Cancellation.h"
#include "HTTPRequest.h"
#include "HTTPResponse.h"

#include <QCoroTask>

namespace quorvane {

// What carries a prepared request to the server and brings back its answer.
//
// send() gives back every HTTP answer, whatever its status. It throws TransportError
// when there is no HTTP answer at all (no network, refused, timed out, not HTTP), and
// Cancelled once `cancellation` is cancelled, before or during the exchange. An answer whose
// body would pass the request's maxBodyBytes throws APIError::decoding, unread.
class HTTPTransport
{
public:
    virtual ~HTTPTransport() = default;
    virtual QCoro::Task<HTTPResponse> send(HTTPRequest request, Cancellation cancellation) = 0;
};

} // namespace quorvane
