#pragma once

#include "Cancellation.h"
#include "HTTPTransport.h"
#include "QuorvaneAPI.h"

#include <QCoroTask>
#include <QObject>
#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>

namespace quorvane {

class Clock;
class SecretStore;
class UrlOpener;

// Signs this computer in through the browser: asks the server for a pair of codes, opens the
// verification page, polls until the person approved, and keeps the token in the system
// keyring. Lives on the main thread; at most one flow runs at a time.
//
// The payloads of the phase: `code` and `url` while waiting, `message` once failed; empty in
// every other phase.
class DeviceSignIn : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Phase phase READ phase NOTIFY phaseChanged)
    Q_PROPERTY(QString code READ code NOTIFY phaseChanged)
    Q_PROPERTY(QUrl url READ url NOTIFY phaseChanged)
    Q_PROPERTY(QString message READ message NOTIFY phaseChanged)

public:
    enum Phase { idle, starting, waiting, done, failed };
    Q_ENUM(Phase)

    struct Timings {
        std::chrono::milliseconds pollInterval{3'000};
        std::chrono::milliseconds deadline{600'000}; // from the moment the page opens
    };

    // The store, opener and clock must outlive this object.
    DeviceSignIn(std::shared_ptr<HTTPTransport> transport, SecretStore &secrets, const UrlOpener &opener,
                 const Clock &clock, QObject *parent = nullptr);
    DeviceSignIn(std::shared_ptr<HTTPTransport> transport, SecretStore &secrets, const UrlOpener &opener,
                 const Clock &clock, Timings timings, QObject *parent = nullptr);
    ~DeviceSignIn() override;

    [[nodiscard]] Phase phase() const { return m_phase; }
    [[nodiscard]] const QString &code() const { return m_code; }
    [[nodiscard]] const QUrl &url() const { return m_url; }
    [[nodiscard]] const QString &message() const { return m_message; }

    // Cancels a running flow and starts a new one against the server at `base`; returns at once.
    Q_INVOKABLE void start(const QUrl &base);
    Q_INVOKABLE void cancel();

    // Called after the token was stored, before succeeded().
    std::function<void()> onSuccess;

Q_SIGNALS:
    void phaseChanged();
    void succeeded();
    // Asks the platform to bring the application to the front.
    void activateRequested();

private:
    QCoro::Task<void> run(QuorvaneAPI api);
    QCoro::Task<void> flow(QuorvaneAPI api);
    void conclude(const HTTPResponse &answer);
    void store(const QString &token);
    void setPhase(Phase phase, QString code = {}, QUrl url = {}, QString message = {});

    std::shared_ptr<HTTPTransport> m_transport;
    SecretStore *m_secrets;
    const UrlOpener *m_opener;
    const Clock *m_clock;
    Timings m_timings;
    Cancellation m_cancellation;

    Phase m_phase = idle;
    QString m_code;
    QUrl m_url;
    QString m_message;
};

} // namespace quorvane
