#include "ScriptedServer.h"

#include <QHttpServerRequest>
#include <QMetaEnum>
#include <QPointer>
#include <QTcpSocket>
#include <QTimer>

#include <algorithm>

namespace quorvane::test {

QByteArray ScriptedServer::Request::header(const QByteArray &name) const
{
    const auto it = std::find_if(headers.begin(), headers.end(),
                                 [&](const auto &h) { return h.first.compare(name, Qt::CaseInsensitive) == 0; });
    return it == headers.end() ? QByteArray() : it->second;
}

QList<QByteArray> ScriptedServer::Request::headerNames() const
{
    QList<QByteArray> names;
    for (const auto &header : headers)
        names.append(header.first.toLower());
    std::sort(names.begin(), names.end());
    return names;
}

ScriptedServer::ScriptedServer(QObject *parent)
    : QAbstractHttpServer(parent)
{
    m_clock.start();
    if (const quint16 port = listen(QHostAddress::LocalHost, 0))
        m_base = QUrl(QStringLiteral("http://127.0.0.1:%1").arg(port));
}

bool ScriptedServer::handleRequest(const QHttpServerRequest &request, QTcpSocket *socket)
{
    const char *method = QMetaEnum::fromType<QHttpServerRequest::Method>().valueToKey(int(request.method()));
    m_requests.append(
        {QByteArray(method).toUpper(), request.url(), request.headers(), request.body(), m_clock.elapsed()});
    Answer answer{200, "{}"};
    if (!m_script.empty()) {
        answer = m_script.front();
        m_script.pop_front();
    }
    // Written by hand: a QHttpServerResponder may not outlive its request, and the socket
    // may be gone by the time a delayed answer is due.
    auto respond = [target = QPointer<QTcpSocket>(socket), answer] {
        if (!target)
            return;
        if (answer.cutOff) {
            // Closing before any answer would not do: Qt quietly sends the request again.
            target->write("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n{");
            target->flush();
            target->abort();
            return;
        }
        QByteArray head = "HTTP/1.1 " + QByteArray::number(answer.status) + " Scripted\r\n";
        if (!answer.location.isEmpty())
            head += "Location: " + answer.location + "\r\n";
        target->write(head + "Content-Length: " + QByteArray::number(answer.body.size()) + "\r\n\r\n" + answer.body);
    };
    if (answer.delayMs > 0)
        QTimer::singleShot(answer.delayMs, this, respond);
    else
        respond();
    Q_EMIT received();
    return true;
}

} // namespace quorvane::test
