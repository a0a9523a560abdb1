#include "onboarding/DeviceSignIn.h"

#include "APIError.h"
#include "BadServerResponse.h"
#include "Clock.h"
#include "Keychain.h"
#include "TransportError.h"
#include "UrlOpener.h"
#include "linux/MachineInfo.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>

#include <exception>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(DeviceSignIn)
};

QString describe(const std::exception_ptr &error)
{
    try {
        std::rethrow_exception(error);
    } catch (const APIError &failure) {
        return failure.errorDescription();
    } catch (const TransportError &failure) {
        if (failure.reason().isEmpty())
            return Text::tr("Couldn't reach the server.");
        return Text::tr("Couldn't reach the server (%1).").arg(failure.reason());
    } catch (const BadServerResponse &) {
        return Text::tr("The server's answer couldn't be read.");
    } catch (...) {
        return Text::tr("Sign-in failed.");
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
    // The steps carry no token, so the client is given no way to read one.
    run(QuorvaneAPI{base, {}, m_transport, cancellation});
}

void DeviceSignIn::cancel()
{
    m_cancellation.cancel();
    setPhase(idle);
}

QCoro::Task<void> DeviceSignIn::run(QuorvaneAPI api)
{
    const Cancellation cancellation = api.cancellation;
    std::exception_ptr error;
    try {
        co_await flow(std::move(api));
    } catch (...) {
        error = std::current_exception();
    }
    // Whoever cancelled has set the phase already, and may have destroyed this object.
    if (error && !cancellation.isCancelled())
        setPhase(failed, {}, {}, describe(error));
}

QCoro::Task<void> DeviceSignIn::flow(QuorvaneAPI api)
{
    const Cancellation cancellation = api.cancellation;
    const DeviceCodes codes = co_await api.deviceStart(MachineInfo::deviceLabel());
    cancellation.throwIfCancelled();
    setPhase(waiting, codes.userCode, codes.page);
    cancellation.throwIfCancelled(); // an observer of the phase may have cancelled
    m_opener->open(codes.page);

    const Instant deadline = m_clock->now().addMSecs(m_timings.deadline.count());
    while (m_clock->now() < deadline) {
        co_await Cancellation::sleep(m_timings.pollInterval, cancellation);
        // A failed exchange ends the flow here: only "not yet approved" keeps it polling.
        const HTTPResponse answer = co_await api.devicePoll(codes.deviceCode);
        cancellation.throwIfCancelled();
        if (answer.status != 428) {
            conclude(answer);
            co_return;
        }
    }
    setPhase(failed, {}, {}, Text::tr("Timed out waiting for approval."));
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
        setPhase(failed, {}, {}, Text::tr("That code expired. Try again."));
    else
        setPhase(failed, {}, {}, Text::tr("Sign-in failed (%1).").arg(answer.status));
}

void DeviceSignIn::store(const QString &token)
{
    if (!Keychain(*m_secrets).write(token, Keychain::apiAccount)) {
        setPhase(failed, {}, {}, Text::tr("Couldn't save to the system keyring."));
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
