#include "ScriptedServer.h"

#include <QHostAddress>
#include <QHttpServerRequest>
#include <QPointer>
#include <QTcpSocket>
#include <QTimer>

#include <algorithm>

namespace quorvane::test {

namespace {

QByteArray methodName(QHttpServerRequest::Method method)
{
    switch (method) {
    case QHttpServerRequest::Method::Get: return "GET";
    case QHttpServerRequest::Method::Put: return "PUT";
    case QHttpServerRequest::Method::Delete: return "DELETE";
    case QHttpServerRequest::Method::Post: return "POST";
    case QHttpServerRequest::Method::Head: return "HEAD";
    case QHttpServerRequest::Method::Options: return "OPTIONS";
    case QHttpServerRequest::Method::Patch: return "PATCH";
    default: return "OTHER";
    }
}

// Written by hand: a QHttpServerResponder may not outlive the request it was made for.
QByteArray httpMessage(const ScriptedServer::Answer &answer)
{
    QByteArray message = "HTTP/1.1 " + QByteArray::number(answer.status) + " Scripted\r\n";
    message += "Content-Type: application/json\r\n";
    if (!answer.location.isEmpty())
        message += "Location: " + answer.location + "\r\n";
    message += "Content-Length: " + QByteArray::number(answer.body.size()) + "\r\n\r\n";
    return message + answer.body;
}

} // namespace

QByteArray ScriptedServer::Request::header(const QByteArray &name) const
{
    for (const auto &[key, value] : headers) {
        if (key.compare(name, Qt::CaseInsensitive) == 0)
            return value;
    }
    return {};
}

QList<QByteArray> ScriptedServer::Request::headerNames() const
{
    QList<QByteArray> names;
    for (const auto &header : headers)
        names.append(header.first.toLower());
    std::sort(names.begin(), names.end());
    return names;
}

ScriptedServer::ScriptedServer(QObject *parent) : QAbstractHttpServer(parent)
{
    m_clock.start();
    if (const quint16 port = listen(QHostAddress::LocalHost, 0))
        m_base = QUrl(QStringLiteral("http://127.0.0.1:%1").arg(port));
}

void ScriptedServer::enqueue(const QList<Answer> &answers)
{
    for (const Answer &answer : answers)
        enqueue(answer);
}

bool ScriptedServer::handleRequest(const QHttpServerRequest &request, QTcpSocket *socket)
{
    m_requests.append(Request{methodName(request.method()), request.url(), request.headers(), request.body(),
                              m_clock.elapsed()});
    Answer answer;
    if (!m_script.empty()) {
        answer = m_script.front();
        m_script.pop_front();
    } else {
        answer.body = "{}";
    }
    // The socket may be gone by the time a delayed answer is due.
    const QPointer<QTcpSocket> target(socket);
    auto respond = [target, answer] {
        if (!target)
            return;
        if (answer.cutOff) {
            // Closing before any answer would not do: the network stack quietly sends the
            // request again on a fresh connection.
            target->write("HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\n{");
            target->flush();
            target->abort();
        } else {
            target->write(httpMessage(answer));
        }
    };
    if (answer.delayMs > 0)
        QTimer::singleShot(answer.delayMs, this, respond);
    else
        respond();
    Q_EMIT received(int(m_requests.size()) - 1);
    return true;
}

} // namespace quorvane::test
