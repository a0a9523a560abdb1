#include "SandboxServer.h"

#include "RequestGuard.h"

#include <QElapsedTimer>
#include <QHttpServerRequest>
#include <QHttpServerResponder>
#include <QPointer>
#include <QTcpSocket>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;

namespace quorvane::sandbox {

namespace {

QByteArray methodName(QHttpServerRequest::Method method)
{
    switch (method) {
    case QHttpServerRequest::Method::Get:
        return "GET";
    case QHttpServerRequest::Method::Put:
        return "PUT";
    case QHttpServerRequest::Method::Delete:
        return "DELETE";
    case QHttpServerRequest::Method::Post:
        return "POST";
    case QHttpServerRequest::Method::Head:
        return "HEAD";
    case QHttpServerRequest::Method::Options:
        return "OPTIONS";
    case QHttpServerRequest::Method::Patch:
        return "PATCH";
    default:
        return "OTHER";
    }
}

qint64 monotonicMs()
{
    static const QElapsedTimer since = [] {
        QElapsedTimer t;
        t.start();
        return t;
    }();
    return since.elapsed();
}

// Closes without a byte of answer, as a dying server or a broken network would.
void drop(QTcpSocket *socket)
{
    QPointer<QTcpSocket> guard(socket);
    QTimer::singleShot(0, socket, [guard] {
        if (guard)
            guard->abort();
    });
}

qsizetype headerBytes(const HttpRequest &request)
{
    qsizetype total = 0;
    for (const auto &[name, value] : request.headers)
        total += name.size() + value.size() + 4;
    return total;
}

// A path as the log shows it: control characters spelled out, so no request can forge a line.
QString printable(const QString &path)
{
    QString out;
    out.reserve(path.size());
    for (const QChar c : path) {
        if (c.unicode() < 0x20 || c.unicode() == 0x7f)
            out += u"%%1"_s.arg(uint(c.unicode()), 2, 16, QChar(u'0')).toUpper();
        else
            out += c;
    }
    return out;
}

} // namespace

SandboxServer::SandboxServer(const Router &router, FaultInjector &faults, QObject *parent)
    : QAbstractHttpServer(parent)
    , m_router(router)
    , m_faults(faults)
{}

quint16 SandboxServer::listenGuarded(const QHostAddress &address, quint16 port)
{
    auto *guard = new RequestGuard(this);
    if (!guard->listen(address, port)) {
        delete guard;
        return 0;
    }
    bind(guard);
    return guard->serverPort();
}

HttpRequest SandboxServer::toValue(const QHttpServerRequest &request)
{
    HttpRequest r;
    r.method = methodName(request.method());
    r.path = request.url().path(QUrl::FullyDecoded);
    r.query = request.query();
    r.body = request.body();
    r.headers = request.headers();
    return r;
}

HttpReply SandboxServer::replyFor(const HttpRequest &request, const std::optional<Fault> &fault) const
{
    const std::optional<QByteArray> answer = fault ? fault->answer() : std::nullopt;
    if (fault && (fault->status || answer)) {
        return HttpReply{fault->status.value_or(200),
                         "application/json",
                         answer.value_or(QByteArray(R"({"error":"Injected failure"})")),
                         {}};
    }
    return m_router.dispatch(request);
}

void SandboxServer::write(QHttpServerResponder &responder, const HttpReply &reply)
{
    responder.writeStatusLine(QHttpServerResponder::StatusCode(reply.status));
    responder.writeHeader("Content-Type", reply.contentType);
    responder.writeHeader("Content-Length", QByteArray::number(reply.body.size()));
    responder.writeHeader("Cache-Control", "no-store");
    for (const auto &[name, value] : reply.headers)
        responder.writeHeader(name, value);
    responder.writeBody(reply.body);
}

bool SandboxServer::handleRequest(const QHttpServerRequest &request, QTcpSocket *socket)
{
    const qint64 started = monotonicMs();
    HttpRequest value = toValue(request);
    // The HTTP server hands over no headers at all when they were too large for it.
    const int refusal = value.header("Host").isEmpty() ? 400 : headerBytes(value) > maxHeaderBytes ? 431 : 0;
    if (refusal) {
        QHttpServerResponder responder = makeResponder(request, socket);
        write(responder, HttpReply::error(refusal, refusal == 400 ? u"A request needs a Host header"_s
                                                                  : u"Request header fields too large"_s));
        log(value, QString::number(refusal), started);
        return true;
    }
    const std::optional<Fault> fault = value.path.startsWith(u"/sandbox/"_s) ? std::nullopt : m_faults.take(value.path);
    if (fault && fault->delayMs > 0) {
        answerLater(request, socket, std::move(value), *fault);
        return true;
    }
    if (fault && fault->drop) {
        drop(socket);
        log(value, u"dropped"_s, started);
        return true;
    }
    const HttpReply reply = replyFor(value, fault);
    QHttpServerResponder responder = makeResponder(request, socket);
    write(responder, reply);
    log(value, QString::number(reply.status), started);
    return true;
}

void SandboxServer::answerLater(const QHttpServerRequest &request, QTcpSocket *socket, HttpRequest value,
                                const Fault &fault)
{
    const qint64 started = monotonicMs();
    // The responder must be made while the request is current; the socket may be gone by
    // the time it is used, so it is checked first.
    auto responder = std::make_shared<QHttpServerResponder>(makeResponder(request, socket));
    QPointer<QTcpSocket> guard(socket);
    QTimer::singleShot(fault.delayMs, this, [this, responder, guard, value = std::move(value), fault, started] {
        if (!guard || guard->state() != QAbstractSocket::ConnectedState) {
            log(value, u"client gone"_s, started);
            return;
        }
        if (fault.drop) {
            drop(guard);
            log(value, u"dropped"_s, started);
            return;
        }
        const HttpReply reply = replyFor(value, fault);
        write(*responder, reply);
        log(value, QString::number(reply.status), started);
    });
}

void SandboxServer::missingHandler(const QHttpServerRequest &request, QTcpSocket *socket)
{
    QHttpServerResponder responder = makeResponder(request, socket);
    write(responder, HttpReply::error(404, u"Not found"_s));
}

void SandboxServer::log(const HttpRequest &request, const QString &outcome, qint64 started) const
{
    if (m_log) {
        m_log(u"%1 %2 %3 %4ms"_s.arg(QString::fromLatin1(request.method), printable(request.path), outcome,
                                     QString::number(monotonicMs() - started)));
    }
}

} // namespace quorvane::sandbox
