#pragma once

#include <QByteArray>
#include <QNetworkRequest>

#include <optional>

namespace quorvane {

// A complete request as the client prepared it: URL, headers and attributes live in
// `request`; a transport adds nothing of its own but what its HTTP stack must.
struct HTTPRequest {
    QNetworkRequest request;
    QByteArray method = QByteArrayLiteral("GET");
    std::optional<QByteArray> body;
    // The longest answer body taken; a longer one is refused before it is read whole.
    std::optional<qint64> maxBodyBytes;
};

} // namespace quorvane
