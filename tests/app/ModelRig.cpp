#include "ModelRig.h"

#include "ISO.h"
#include "NetworkTransport.h"

#include <QDir>

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
    co_return co_await m_inner->send(std::move(request), std::move(cancellation));
}

int RecordingTransport::count(const QByteArray &method, const QString &path) const
{
    return int(std::count_if(sent.cbegin(), sent.cend(), [&](const SentRequest &r) {
        return r.method == method && r.path.endsWith(path);
    }));
}

ModelRig::ModelRig()
    : server(sandbox::SandboxHarness::config(true), defaultNow())
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
    if (!server.start()) {
        *why = u"the sandbox did not start"_s;
        return false;
    }
    if (!bus.isRunning()) {
        *why = u"no private bus: "_s + bus.error();
        return false;
    }
    notifications = std::make_unique<FakeNotificationServer>(bus.connect(u"notifications"_s));
    if (!notifications->start()) {
        *why = u"the fake notification server did not start"_s;
        return false;
    }
    notifier = std::make_unique<FreedesktopNotifier>(bus.connect(u"app"_s), clock, u"en_US"_s,
                                                     u"America/New_York"_s);
    preferences->setServerURL(server.base());
    if (!keychain.write(QString::fromLatin1(token))) {
        *why = u"the keyring refused the token (run inside tests/support/run-in-session)"_s;
        return false;
    }
    return true;
}

AppEnvironment ModelRig::environment()
{
    AppEnvironment env;
    env.clock = &clock;
    env.transport = transport;
    env.secrets = &secrets;
    env.notifier = notifier.get();
    env.preferences = preferences.get();
    env.opener = &opener;
    env.clipboard = &clipboard;
    env.dataDirectory = dataDirectory;
    env.locale = u"en_US"_s;
    env.zone = u"America/New_York"_s;
    env.timings = timings;
    return env;
}

void ModelRig::setNow(const Instant &at)
{
    clock.set(at);
    server.setNow(at);
}

void ModelRig::advance(qint64 seconds)
{
    setNow(clock.now().addSecs(seconds));
}

Booking ModelRig::guestBooks(const QString &name, const Instant &start, const QString &type)
{
    sandbox::Backend &backend = server.sandbox().backend();
    sandbox::GuestBooking request;
    request.type = type.isEmpty() ? backend.settings().eventTypes.first().slug : type;
    request.start = start;
    request.name = name;
    request.email = u"guest@example.com"_s;
    request.tz = u"Europe/Paris"_s;
    return backend.book(request, false);
}

} // namespace quorvane::test
