#include "onboarding/DeviceSignIn.h"

#include "APIError.h"
#include "Clock.h"
#include "Keychain.h"
#include "TransportError.h"
#include "UrlOpener.h"
#include "linux/MachineInfo.h"

#include <QJsonDocument>
#include <QPointer>

#include <exception>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {

// The server answered, but not with what a sign-in step must give.
class BadServerResponse : public std::exception
{
public:
    const char *what() const noexcept override { return "bad server response"; }
};

QUrl endpoint(const QUrl &base, const QString &path)
{
    QUrl url = base;
    QString joined = base.path();
    if (!joined.endsWith(u'/'))
        joined += u'/';
    url.setPath(joined + path);
    return url;
}

// No Authorization header: there is no token yet, and these steps are open.
HTTPRequest requestFor(const QUrl &url, const QJsonObject &body)
{
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/json"_s);
    request.setTransferTimeout(60'000);
    return HTTPRequest{request, QByteArrayLiteral("POST"), QJsonDocument(body).toJson(QJsonDocument::Compact)};
}

QString describe(const std::exception_ptr &error)
{
    try {
        std::rethrow_exception(error);
    } catch (const APIError &failure) {
        return failure.errorDescription();
    } catch (const TransportError &failure) {
        if (failure.reason().isEmpty())
            return u"Couldn't reach the server."_s;
        return u"Couldn't reach the server (%1)."_s.arg(failure.reason());
    } catch (const BadServerResponse &) {
        return u"The server's answer couldn't be read."_s;
    } catch (...) {
        return u"Sign-in failed."_s;
    }
}

} // namespace

DeviceSignIn::DeviceSignIn(std::shared_ptr<HTTPTransport> transport, SecretStore &secrets, const UrlOpener &opener,
                           const Clock &clock, QObject *parent)
    : DeviceSignIn(std::move(transport), secrets, opener, clock, Timings(), parent)
{}

DeviceSignIn::DeviceSignIn(std::shared_ptr<HTTPTransport> transport, SecretStore &secrets, const UrlOpener &opener,
                           const Clock &clock, Timings timings, QObject *parent)
    : QObject(parent)
    , m_transport(std::move(transport))
    , m_secrets(&secrets)
    , m_opener(&opener)
    , m_clock(&clock)
    , m_timings(timings)
{}

// A flow still suspended wakes up cancelled and ends without touching this object.
DeviceSignIn::~DeviceSignIn()
{
    m_cancellation.cancel();
}

void DeviceSignIn::start(const QUrl &base)
{
    m_cancellation.cancel();
    m_cancellation = Cancellation();
    const Cancellation cancellation = m_cancellation;
    setPhase(starting);
    // The task frees itself when the flow ends; the cancellation is the only handle needed.
    run(base, cancellation, m_transport);
}

void DeviceSignIn::cancel()
{
    m_cancellation.cancel();
    setPhase(idle);
}

QCoro::Task<void> DeviceSignIn::run(QUrl base, Cancellation cancellation, std::shared_ptr<HTTPTransport> transport)
{
    std::exception_ptr error;
    try {
        co_await flow(std::move(base), cancellation, std::move(transport));
    } catch (...) {
        error = std::current_exception();
    }
    // Whoever cancelled has set the phase already, and may have destroyed this object.
    if (error && !cancellation.isCancelled())
        setPhase(failed, {}, {}, describe(error));
}

QCoro::Task<void> DeviceSignIn::flow(QUrl base, Cancellation cancellation, std::shared_ptr<HTTPTransport> transport)
{
    const QJsonObject label{{u"label"_s, MachineInfo::deviceLabel()}};
    const Codes codes =
        codesFrom(co_await post(endpoint(base, u"auth/device/start"_s), label, cancellation, transport));
    setPhase(waiting, codes.userCode, codes.url);
    cancellation.throwIfCancelled(); // an observer of the phase may have cancelled
    m_opener->open(codes.url);

    const Instant deadline = m_clock->now().addMSecs(m_timings.deadline.count());
    const HTTPRequest poll =
        requestFor(endpoint(base, u"auth/device/poll"_s), QJsonObject{{u"device_code"_s, codes.deviceCode}});
    while (m_clock->now() < deadline) {
        co_await Cancellation::sleep(m_timings.pollInterval, cancellation);
        // A failed exchange ends the flow here: only "not yet approved" keeps it polling.
        const HTTPResponse answer = co_await transport->send(poll, cancellation);
        cancellation.throwIfCancelled();
        if (answer.status != 428) {
            conclude(answer);
            co_return;
        }
    }
    setPhase(failed, {}, {}, u"Timed out waiting for approval."_s);
}

QCoro::Task<QJsonObject> DeviceSignIn::post(QUrl url, QJsonObject body, Cancellation cancellation,
                                            std::shared_ptr<HTTPTransport> transport)
{
    const HTTPResponse answer = co_await transport->send(requestFor(url, body), cancellation);
    cancellation.throwIfCancelled();
    if (answer.status != 200)
        throw APIError::server(answer.status, u"Couldn't start sign-in."_s);
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(answer.body, &error);
    if (error.error != QJsonParseError::NoError)
        throw BadServerResponse();
    co_return document.object();
}

DeviceSignIn::Codes DeviceSignIn::codesFrom(const QJsonObject &answer)
{
    const QJsonValue device = answer.value("device_code"_L1);
    const QJsonValue user = answer.value("user_code"_L1);
    const QJsonValue page = answer.value("verification_uri_complete"_L1);
    if (!device.isString() || !user.isString() || !page.isString())
        throw BadServerResponse();
    const QUrl url(page.toString(), QUrl::StrictMode);
    if (url.isEmpty() || !url.isValid())
        throw BadServerResponse();
    return Codes{device.toString(), user.toString(), url};
}

void DeviceSignIn::conclude(const HTTPResponse &answer)
{
    const QJsonObject body = QJsonDocument::fromJson(answer.body).object(); // anything else: empty
    const QJsonValue token = answer.status == 200 ? body.value("access_token"_L1) : QJsonValue();
    // An empty token would only erase the item and pass for success.
    if (token.isString() && !token.toString().isEmpty()) {
        store(token.toString());
        return;
    }
    if (body.value("error"_L1).toString() == "expired_token"_L1)
        setPhase(failed, {}, {}, u"That code expired. Try again."_s);
    else
        setPhase(failed, {}, {}, u"Sign-in failed (%1)."_s.arg(answer.status));
}

void DeviceSignIn::store(const QString &token)
{
    if (!Keychain(*m_secrets).write(token, Keychain::apiAccount)) {
        setPhase(failed, {}, {}, u"Couldn't save to the system keyring."_s);
        return;
    }
    // Any of the three may end this object's life.
    const QPointer<DeviceSignIn> self(this);
    setPhase(done);
    if (self && onSuccess)
        onSuccess();
    if (self)
        Q_EMIT succeeded();
    if (self)
        Q_EMIT activateRequested();
}

void DeviceSignIn::setPhase(Phase phase, QString code, QUrl url, QString message)
{
    if (phase == m_phase && code == m_code && url == m_url && message == m_message)
        return;
    m_phase = phase;
    m_code = std::move(code);
    m_url = std::move(url);
    m_message = std::move(message);
    Q_EMIT phaseChanged();
}

} // namespace quorvane
