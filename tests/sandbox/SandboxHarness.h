#pragma once

#include "Sandbox.h"

#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <memory>

namespace quorvane::sandbox {

// A sandbox running in this process on a free loopback port, with a clock the test moves,
// and a plain HTTP client to talk to it.
class SandboxHarness
{
public:
    struct Response {
        int status = 0; // 0: no HTTP answer at all
        QByteArray body;
        [[nodiscard]] QJsonObject json() const;
    };

    static constexpr auto token = "test-token";
    static SandboxConfig config(bool demo = true);

    explicit SandboxHarness(SandboxConfig config = SandboxHarness::config(), const Instant &now = defaultNow());
    // Fails the calling test when the server doesn't start.
    [[nodiscard]] bool start();

    [[nodiscard]] Sandbox &sandbox() { return *m_sandbox; }
    [[nodiscard]] QString base() const { return m_sandbox->baseUrl(); }
    [[nodiscard]] Instant now() const { return *m_now; }
    void setNow(const Instant &now) { *m_now = now; }
    void advance(qint64 seconds) { *m_now = m_now->addSecs(seconds); }

    Response send(const QByteArray &method, const QString &path, const QByteArray &body, const QByteArray &contentType,
                  const QByteArray &bearer);
    Response get(const QString &path, const QByteArray &bearer = token) { return send("GET", path, {}, {}, bearer); }
    Response put(const QString &path, const QByteArray &body, const QByteArray &bearer = token)
    {
        return send("PUT", path, body, "application/json", bearer);
    }
    Response post(const QString &path, const QJsonObject &body, const QByteArray &bearer = token);
    Response postForm(const QString &path, const QList<QPair<QString, QString>> &fields);

    // A Monday morning in March, before New York's clocks change.
    static Instant defaultNow();

private:
    std::shared_ptr<Instant> m_now;
    std::unique_ptr<Sandbox> m_sandbox;
    QNetworkAccessManager m_network;
};

} // namespace quorvane::sandbox
