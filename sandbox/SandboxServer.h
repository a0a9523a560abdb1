#pragma once

#include "FaultInjector.h"
#include "HttpReply.h"
#include "HttpRequest.h"
#include "Router.h"

#include <QAbstractHttpServer>

#include <functional>

namespace quorvane::sandbox {

// The HTTP side: turns each request into a plain value, lets a planted fault strike first,
// dispatches through the router, writes the answer, and logs one line per request
// (method, path, status, milliseconds; never a query, never a header).
class SandboxServer final : public QAbstractHttpServer
{
    Q_OBJECT

public:
    using Log = std::function<void(const QString &line)>;

    // Heads larger than this are refused with 431 (the HTTP server itself sets no bound).
    static constexpr qsizetype maxHeaderBytes = 32 * 1024;

    SandboxServer(const Router &router, FaultInjector &faults, QObject *parent = nullptr);
    void setLog(Log log) { m_log = std::move(log); }
    // Listens behind a RequestGuard; the port taken, or 0.
    quint16 listenGuarded(const QHostAddress &address, quint16 port);

protected:
    bool handleRequest(const QHttpServerRequest &request, QTcpSocket *socket) override;
    void missingHandler(const QHttpServerRequest &request, QTcpSocket *socket) override;

private:
    [[nodiscard]] static HttpRequest toValue(const QHttpServerRequest &request);
    [[nodiscard]] HttpReply replyFor(const HttpRequest &request, const std::optional<Fault> &fault) const;
    static void write(QHttpServerResponder &responder, const HttpReply &reply);
    void answerLater(const QHttpServerRequest &request, QTcpSocket *socket, HttpRequest value, const Fault &fault);
    void log(const HttpRequest &request, const QString &outcome, qint64 started) const;

    const Router &m_router;
    FaultInjector &m_faults;
    Log m_log;
};

} // namespace quorvane::sandbox
