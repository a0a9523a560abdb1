#pragma once

#include <QByteArray>
#include <QTcpServer>

namespace quorvane::sandbox {

// Listens like any QTcpServer, but reads the start of each new connection before the HTTP
// server does and answers 400 to what isn't HTTP/1.x: a broken request line, or a header line
// without a name. The HTTP server would otherwise drop the first without a word and take the
// second as it comes.
class RequestGuard final : public QTcpServer
{
    Q_OBJECT

public:
    using QTcpServer::QTcpServer;

    // Whether the first bytes of a connection, up to their last complete line, can start an
    // HTTP/1.x request.
    [[nodiscard]] static bool wellFormed(const QByteArray &head);

protected:
    void incomingConnection(qintptr descriptor) override;
};

} // namespace quorvane::sandbox
