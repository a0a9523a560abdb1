#include "RequestGuard.h"

#include <QRegularExpression>
#include <QTcpSocket>

#include <memory>

namespace quorvane::sandbox {

namespace {

QByteArray badRequest()
{
    const QByteArray body = R"({"error":"Malformed request"})";
    return "HTTP/1.1 400 Bad Request\r\nContent-Type: application/json\r\nContent-Length: "
           + QByteArray::number(body.size()) + "\r\nCache-Control: no-store\r\nConnection: close\r\n\r\n" + body;
}

} // namespace

bool RequestGuard::wellFormed(const QByteArray &head)
{
    static const QRegularExpression requestLine(QStringLiteral(R"(^[A-Z]{1,20} [!-~]+ HTTP/1\.[01]$)"));
    static const QRegularExpression headerLine(QStringLiteral(R"(^[!#$%&'*+\-.^_`|~0-9A-Za-z]+:)"));
    QList<QByteArray> lines = head.split('\n');
    lines.removeLast(); // not ended yet: judged by what comes next, if at all
    for (qsizetype i = 0; i < lines.size(); ++i) {
        QByteArray line = lines.at(i);
        if (line.endsWith('\r'))
            line.chop(1);
        if (i > 0 && line.isEmpty())
            return true; // the end of the head
        const QRegularExpression &form = i == 0 ? requestLine : headerLine;
        if (!form.match(QString::fromLatin1(line)).hasMatch())
            return false;
    }
    return true;
}

void RequestGuard::incomingConnection(qintptr descriptor)
{
    auto *socket = new QTcpSocket(this);
    if (!socket->setSocketDescriptor(descriptor)) {
        delete socket;
        return;
    }
    // Connected before the HTTP server's own handler, so this sees the bytes first. Only the
    // first chunk is judged, and only when it holds a whole line: clients send that much at once.
    auto judged = std::make_shared<bool>(false);
    connect(socket, &QTcpSocket::readyRead, socket, [socket, judged] {
        if (*judged)
            return;
        *judged = true;
        const QByteArray head = socket->peek(socket->bytesAvailable());
        if (!head.contains('\n') || wellFormed(head))
            return;
        socket->readAll(); // nothing left for the HTTP server to act on
        socket->write(badRequest());
        socket->disconnectFromHost();
    });
    addPendingConnection(socket);
}

} // namespace quorvane::sandbox
