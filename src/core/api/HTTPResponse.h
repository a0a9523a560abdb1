#pragma once

#include <QByteArray>

namespace quorvane {

// An HTTP answer of any status. Only the status and the body matter to the client.
struct HTTPResponse {
    int status = 0;
    QByteArray body;
};

} // namespace quorvane
