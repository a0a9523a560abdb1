#pragma once

#include "Clipboard.h"
#include "FixedClock.h"
#include "HTTPTransport.h"
#include "Keychain.h"
#include "SandboxHarness.h"
#include "UrlOpener.h"
#include "linux/FreedesktopNotifier.h"
#include "linux/LibsecretStore.h"
#include "model/AppModel.h"
#include "model/Preferences.h"
#include "support/FakeNotificationServer.h"
#include "support/PrivateBus.h"

#include <QNetworkAccessManager>
#include <QSettings>
#include <QTemporaryDir>

#include <functional>
#include <memory>

namespace quorvane::test {

// The real network transport, with a log of what it sent.
class RecordingTransport : public HTTPTransport
{
public:
    struct Sent {
        QByteArray method;
        QString path;
        QByteArray body;
    };
    explicit RecordingTransport(std::shared_ptr<HTTPTransport> inner)
        : m_inner(std::move(inner))
    {}
    QCoro::Task<HTTPResponse> send(HTTPRequest request, Cancellation cancellation) override;
    [[nodiscard]] int count(const QByteArray &method, const QString &path) const;
    QList<Sent> sent;
    std::function<void(qsizetype)> onSend; // told how many went out, this one included

private:
    std::shared_ptr<HTTPTransport> m_inner;
};

// Keeps what was copied, for tests that read it back.
struct KeptClipboard : Clipboard {
    void setText(const QString &text) override { texts.append(text); }
    QStringList texts;
};

// One application model against an in-process sandbox on loopback, the real keyring of the
// test session, a private bus with a fake notification server, and throwaway folders.
// The sandbox and the model read the same fixed clock.
class ModelRig
{
public:
    static constexpr char token[] = "test-token";

    // autoApproveSeconds >= 0: the sandbox approves a device sign-in on its own.
    explicit ModelRig(int autoApproveSeconds = -1);
    ~ModelRig();

    // False with a reason when something in the rig could not start.
    [[nodiscard]] bool ready(QString *why);
    // The services of a model on the rig's folders, and such a model; a second one acts as a
    // restart.
    [[nodiscard]] AppEnvironment environment();
    [[nodiscard]] std::unique_ptr<AppModel> makeModel() { return std::make_unique<AppModel>(environment()); }

    // Moves the clock of both the model and the sandbox.
    void advance(qint64 seconds);
    // A guest books the first event type through the service, now.
    Booking guestBooks(const QString &name, const Instant &start);

    sandbox::SandboxHarness server;
    FixedClock clock;
    PrivateBus bus;
    std::unique_ptr<FakeNotificationServer> notifications;
    std::unique_ptr<FreedesktopNotifier> notifier;
    LibsecretStore secrets;
    Keychain keychain{secrets};
    QTemporaryDir folder;
    std::unique_ptr<QSettings> settings;
    std::unique_ptr<Preferences> preferences;
    QNetworkAccessManager network;
    std::shared_ptr<RecordingTransport> transport;
    KeptClipboard clipboard;
    QList<QUrl> opened;
    UrlOpener opener;
    QString dataDirectory;
    AppEnvironment::Timings timings;
};

// `App` in QML for windows on a rig's model: register once per process, then point
// `appForQml` at the model before an engine loads.
inline AppModel *appForQml = nullptr;
void registerAppForQml();

} // namespace quorvane::test
