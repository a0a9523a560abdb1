#pragma once

#include "AppModel.h"
#include "Clipboard.h"
#include "support/FakeNotificationServer.h"
#include "FixedClock.h"
#include "HTTPTransport.h"
#include "Keychain.h"
#include "Preferences.h"
#include "support/PrivateBus.h"
#include "SandboxHarness.h"
#include "UrlOpener.h"
#include "linux/FreedesktopNotifier.h"
#include "linux/LibsecretStore.h"

#include <QNetworkAccessManager>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>

namespace quorvane::test {

// What went over the wire, as the client sent it.
struct SentRequest {
    QByteArray method;
    QString path;
    QByteArray body;
};

// The real network transport, with a log of what it sent.
class RecordingTransport : public HTTPTransport
{
public:
    explicit RecordingTransport(std::shared_ptr<HTTPTransport> inner) : m_inner(std::move(inner)) {}
    QCoro::Task<HTTPResponse> send(HTTPRequest request, Cancellation cancellation) override;
    QList<SentRequest> sent;
    [[nodiscard]] int count(const QByteArray &method, const QString &path) const;

private:
    std::shared_ptr<HTTPTransport> m_inner;
};

class RecordingClipboard : public Clipboard
{
public:
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

    ModelRig();
    ~ModelRig();

    // False with a reason when a part of the rig could not start.
    [[nodiscard]] bool ready(QString *why);
    // The services of a model on the rig's folders, and such a model; a second one acts as a
    // restart.
    [[nodiscard]] AppEnvironment environment();
    [[nodiscard]] std::unique_ptr<AppModel> makeModel() { return std::make_unique<AppModel>(environment()); }

    void setNow(const Instant &at);
    void advance(qint64 seconds);
    [[nodiscard]] Instant now() const { return clock.now(); }
    // A guest books through the service, now.
    Booking guestBooks(const QString &name, const Instant &start, const QString &type = {});

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
    RecordingClipboard clipboard;
    QList<QUrl> opened;
    UrlOpener opener;
    QString dataDirectory;
    AppEnvironment::Timings timings;
};

} // namespace quorvane::test
