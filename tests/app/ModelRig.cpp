#include "ModelRig.h"

#include "ISO.h"
#include "NetworkTransport.h"

#include <QQmlEngine>

using namespace Qt::StringLiterals;

namespace quorvane::test {

namespace {
// Tuesday 9:40 in New York, a working morning.
Instant defaultNow()
{
    return ISO::parse(u"2026-03-10T13:40:00Z"_s).value();
}
} // namespace

QCoro::Task<HTTPResponse> RecordingTransport::send(HTTPRequest request, Cancellation cancellation)
{
    sent.append({request.method, request.request.url().path(), request.body.value_or(QByteArray())});
    if (onSend)
        onSend(sent.size());
    co_return co_await m_inner->send(std::move(request), std::move(cancellation));
}

int RecordingTransport::count(const QByteArray &method, const QString &path) const
{
    return int(std::count_if(sent.cbegin(), sent.cend(),
                             [&](const Sent &r) { return r.method == method && r.path.endsWith(path); }));
}

ModelRig::ModelRig(int autoApproveSeconds)
    : server(
        [autoApproveSeconds] {
            sandbox::SandboxConfig config = sandbox::SandboxHarness::config(true);
            config.autoApproveSeconds = autoApproveSeconds;
            return config;
        }(),
        defaultNow())
    , clock(defaultNow())
    , opener([this](const QUrl &url) {
        opened.append(url);
        return true;
    })
{
    settings = std::make_unique<QSettings>(folder.filePath(u"Quorvane.conf"_s), QSettings::IniFormat);
    preferences = std::make_unique<Preferences>(*settings);
    transport = std::make_shared<RecordingTransport>(std::make_shared<NetworkTransport>(network));
    dataDirectory = folder.filePath(u"data/Quorvane"_s);
    timings.toast = std::chrono::milliseconds(300);
}

ModelRig::~ModelRig()
{
    keychain.signOut();
}

bool ModelRig::ready(QString *why)
{
    const auto fail = [why](const QString &reason) { return *why = reason, false; };
    if (!server.start())
        return fail(u"the sandbox did not start"_s);
    if (!bus.isRunning())
        return fail(u"no private bus: "_s + bus.error());
    notifications = std::make_unique<FakeNotificationServer>(bus.connect(u"notifications"_s));
    if (!notifications->start())
        return fail(u"the fake notification server did not start"_s);
    notifier = std::make_unique<FreedesktopNotifier>(bus.connect(u"app"_s), clock, u"en_US"_s, u"America/New_York"_s);
    preferences->setServerURL(server.base());
    if (!keychain.write(QString::fromLatin1(token)))
        return fail(u"the keyring refused the token (run inside tests/support/run-in-session)"_s);
    return true;
}

AppEnvironment ModelRig::environment()
{
    return {.clock = &clock,
            .transport = transport,
            .secrets = &secrets,
            .notifier = notifier.get(),
            .preferences = preferences.get(),
            .opener = &opener,
            .clipboard = &clipboard,
            .dataDirectory = dataDirectory,
            .locale = u"en_US"_s,
            .zone = u"America/New_York"_s,
            .timings = timings};
}

void ModelRig::advance(qint64 seconds)
{
    clock.set(clock.now().addSecs(seconds));
    server.setNow(clock.now());
}

Booking ModelRig::guestBooks(const QString &name, const Instant &start)
{
    sandbox::Backend &backend = server.sandbox().backend();
    sandbox::GuestBooking request;
    request.type = backend.settings().eventTypes.first().slug;
    request.start = start;
    request.name = name;
    request.email = u"guest@example.com"_s;
    request.tz = u"Europe/Paris"_s;
    return backend.book(request, false);
}

void registerAppForQml()
{
    qmlRegisterSingletonType<AppModel>("Quorvane.App", 1, 0, "App", [](QQmlEngine *, QJSEngine *) {
        Q_ASSERT_X(appForQml, "registerAppForQml", "point appForQml at a model first");
        QQmlEngine::setObjectOwnership(appForQml, QQmlEngine::CppOwnership);
        return appForQml;
    });
}

} // namespace quorvane::test
