#pragma once

#include <QAbstractHttpServer>
#include <QElapsedTimer>
#include <QUrl>

#include <deque>

namespace quorvane::test {

// A real HTTP server on 127.0.0.1 that records every request and answers from a script,
// in order. Without a scripted answer it replies 200 with "{}".
class ScriptedServer : public QAbstractHttpServer
{
    Q_OBJECT

public:
    struct Answer {
        int status = 200;
        QByteArray body;
        int delayMs = 0;
        bool cutOff = false; // start the answer, then break the connection: a network failure
        QByteArray location; // sent as a Location header when not empty
    };

    struct Request {
        QByteArray method;
        QUrl url; // path and query as they arrived
        QList<QPair<QByteArray, QByteArray>> headers;
        QByteArray body;
        qint64 atMs = 0; // since the server started
        [[nodiscard]] QByteArray header(const QByteArray &name) const;
        [[nodiscard]] QList<QByteArray> headerNames() const; // lower case, sorted
    };

    explicit ScriptedServer(QObject *parent = nullptr);

    [[nodiscard]] QUrl base() const { return m_base; } // http://127.0.0.1:{port}
    void enqueue(const QList<Answer> &answers) { m_script.insert(m_script.end(), answers.begin(), answers.end()); }
    [[nodiscard]] const QList<Request> &requests() const { return m_requests; }

Q_SIGNALS:
    void received();

protected:
    bool handleRequest(const QHttpServerRequest &request, QTcpSocket *socket) override;
    void missingHandler(const QHttpServerRequest &, QTcpSocket *) override {}

private:
    QUrl m_base;
    QElapsedTimer m_clock;
    std::deque<Answer> m_script;
    QList<Request> m_requests;
};

} // namespace quorvane::test

Q_DECLARE_METATYPE(quorvane::test::ScriptedServer::Answer)
