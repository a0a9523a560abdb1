#include "SandboxHarness.h"

#include "ISO.h"

#include <QJsonDocument>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace quorvane::sandbox {

QJsonObject SandboxHarness::Response::json() const
{
    return QJsonDocument::fromJson(body).object();
}

SandboxConfig SandboxHarness::config(bool demo)
{
    SandboxConfig c;
    c.port = 0;
    c.demo = demo;
    c.seed = 42;
    c.tokens = {QString::fromLatin1(token)};
    c.testControls = true;
    c.logRequests = false;
    return c;
}

Instant SandboxHarness::defaultNow()
{
    return ISO::parse(u"2025-03-03T08:00:00Z"_s).value();
}

SandboxHarness::SandboxHarness(SandboxConfig config, const Instant &now)
    : m_now(std::make_shared<Instant>(now))
{
    std::shared_ptr<Instant> clock = m_now;
    m_sandbox = std::make_unique<Sandbox>(std::move(config), [clock] { return *clock; });
}

bool SandboxHarness::start()
{
    QString error;
    if (!m_sandbox->start(&error)) {
        qWarning("sandbox did not start: %s", qPrintable(error));
        return false;
    }
    return true;
}

SandboxHarness::Response SandboxHarness::send(const QByteArray &method, const QString &path, const QByteArray &body,
                                              const QByteArray &contentType, const QByteArray &bearer)
{
    QNetworkRequest request(QUrl(base() + path));
    if (!bearer.isEmpty())
        request.setRawHeader("Authorization", "Bearer " + bearer);
    if (!contentType.isEmpty())
        request.setRawHeader("Content-Type", contentType);
    // Each request on its own connection, so a dropped one can't be quietly resent.
    request.setRawHeader("Connection", "close");
    QNetworkReply *reply = m_network.sendCustomRequest(request, method, body);
    QSignalSpy finished(reply, &QNetworkReply::finished);
    if (!reply->isFinished() && !finished.wait(15000))
        qWarning("no answer to %s %s", method.constData(), qPrintable(path));
    Response r;
    r.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    r.body = reply->readAll();
    reply->deleteLater();
    return r;
}

SandboxHarness::Response SandboxHarness::post(const QString &path, const QJsonObject &body, const QByteArray &bearer)
{
    return send("POST", path, QJsonDocument(body).toJson(QJsonDocument::Compact), "application/json", bearer);
}

SandboxHarness::Response SandboxHarness::postForm(const QString &path, const QList<QPair<QString, QString>> &fields)
{
    QByteArrayList pairs;
    for (const auto &[key, value] : fields)
        pairs.append(QUrl::toPercentEncoding(key) + '=' + QUrl::toPercentEncoding(value));
    return send("POST", path, pairs.join('&'), "application/x-www-form-urlencoded", {});
}

} // namespace quorvane::sandbox
