#include "QuorvaneAPI.h"

#include "APIError.h"
#include "BadServerResponse.h"
#include "BuildInfo.h"
#include "Cancelled.h"
#include "ISO.h"
#include "JSON.h"
#include "JSONFailure.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QUrlQuery>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(QuorvaneAPI)
};
} // namespace

// The server's list answers. Private wrappers, decoded strictly, never encoded.
namespace {
struct BList {
    QList<Booking> bookings;
};
struct CList {
    QList<Booking> changes;
    std::optional<QString> serverTime;
};
struct PList {
    QList<Poll> polls;
};
} // namespace

template <>
struct Codec<BList> {
    static BList decode(const QJsonValue &value, const CodingPath &path)
    {
        return BList{ObjectReader(value, path).required<QList<Booking>>("bookings"_L1)};
    }
};

template <>
struct Codec<CList> {
    static CList decode(const QJsonValue &value, const CodingPath &path)
    {
        const ObjectReader reader(value, path);
        return CList{reader.required<QList<Booking>>("changes"_L1), reader.optional<QString>("serverTime"_L1)};
    }
};

template <>
struct Codec<PList> {
    static PList decode(const QJsonValue &value, const CodingPath &path)
    {
        return PList{ObjectReader(value, path).required<QList<Poll>>("polls"_L1)};
    }
};

namespace {

constexpr qsizetype decodingMessageLength = 160;

// `path` goes below the base's own path, its slashes kept as separators.
QUrl urlFor(const QUrl &base, const QString &path, const QuorvaneAPI::Query &query)
{
    QUrl url = base;
    QString joined = base.path(QUrl::FullyEncoded);
    if (!joined.endsWith(u'/'))
        joined += u'/';
    joined += QString::fromLatin1(QUrl::toPercentEncoding(path, "/"));
    url.setPath(joined, QUrl::StrictMode);
    if (!query.isEmpty()) {
        QUrlQuery items;
        for (auto it = query.cbegin(); it != query.cend(); ++it) // QMap: ascending keys
            items.addQueryItem(it.key(), it.value());
        url.setQuery(items);
    }
    Q_ASSERT_X(url.isValid(), "QuorvaneAPI", "the server URL must be valid");
    return url;
}

// Every request the client sends is built here, so that all carry the same name, time-out and
// redirect rule. Without a bearer (the sign-in steps) there is no Authorization header at all.
HTTPRequest prepare(const QUrl &url, const QByteArray &method, const std::optional<QByteArray> &body,
                    const std::optional<QString> &bearer, std::chrono::milliseconds timeout)
{
    QNetworkRequest request(url);
    // No local cache: the transport's manager has none, so nothing is read from or written to
    // one. (AlwaysNetwork would add Cache-Control and Pragma to the request; and the
    // save-control attribute races with redirects inside Qt 6.4's reply.)
    request.setTransferTimeout(int(timeout.count()));
    // Qt would carry the Authorization header along to wherever a redirect points.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::SameOriginRedirectPolicy);
    if (bearer)
        request.setRawHeader("Authorization", "Bearer " + bearer->toUtf8());
    request.setHeader(QNetworkRequest::UserAgentHeader, u"Quorvane-Linux/%1"_s.arg(QLatin1StringView(build::version)));
    if (body)
        request.setHeader(QNetworkRequest::ContentTypeHeader, u"application/json"_s);
    return HTTPRequest{request, method, body, QuorvaneAPI::maxAnswerBytes};
}

// The `error` text of a failure's body; empty unless the body is an object holding a text there.
QString errorMessage(const QByteArray &body)
{
    const QJsonValue error = QJsonDocument::fromJson(body).object().value("error"_L1);
    return error.isString() ? error.toString() : QString();
}

// A non-2xx answer: the failure, and whether another try may mend it.
struct Verdict {
    APIError error;
    bool retry;
};

Verdict judge(const HTTPResponse &response, const QByteArray &method)
{
    if (response.status == 401)
        return {APIError::unauthorized(), false};
    if (response.status == 429)
        return {APIError::rateLimited(), true};
    const APIError error = APIError::server(response.status, errorMessage(response.body));
    return {error, error.isRetryable() && method == "GET"};
}

// Sends a prepared request, tried up to `attempts` times while a retry may mend it; gives the
// body of a 2xx.
QCoro::Task<QByteArray> exchange(QuorvaneAPI api, HTTPRequest prepared, int attempts)
{
    Q_ASSERT(api.transport);
    const QByteArray method = prepared.method;
    APIError lastError = APIError::offline();
    const int tries = std::max(attempts, 1);
    for (int attempt = 0; attempt < tries; ++attempt) {
        if (attempt > 0)
            co_await Cancellation::sleep(QuorvaneAPI::retryPause * attempt, api.cancellation);
        std::optional<HTTPResponse> response;
        try {
            response = co_await api.transport->send(prepared, api.cancellation);
        } catch (const APIError &) {
            throw;
        } catch (const Cancelled &) {
            throw;
        } catch (...) {
            if (method != "GET")
                throw APIError::offline();
            lastError = APIError::offline();
            continue;
        }
        if (response->status >= 200 && response->status <= 299)
            co_return response->body;
        Verdict verdict = judge(*response, method);
        if (!verdict.retry)
            throw verdict.error;
        lastError = std::move(verdict.error);
    }
    throw lastError;
}

QCoro::Task<QByteArray> perform(QuorvaneAPI api, QString path, QByteArray method, QuorvaneAPI::Query query,
                                std::optional<QByteArray> body, int attempts)
{
    const std::optional<QString> token = api.token ? api.token() : std::nullopt;
    if (!token || token->isEmpty())
        throw APIError::notSignedIn();
    HTTPRequest prepared = prepare(urlFor(api.base, path, query), method, body, token, api.timeout);
    co_return co_await exchange(api, std::move(prepared), attempts);
}

template <class T>
QCoro::Task<T> get(QuorvaneAPI api, QString path, QuorvaneAPI::Query query = {})
{
    const QByteArray body = co_await api.request(path, QByteArrayLiteral("GET"), query, std::nullopt, 2);
    Result<T> decoded = JSON::decode<T>(body);
    if (!decoded)
        throw APIError::decoding(decoded.error().description().left(decodingMessageLength));
    co_return std::move(decoded).value();
}

// A text under `key` of an answer that should be an object; anything else gives none.
std::optional<QString> textIn(const QByteArray &answer, QLatin1StringView key)
{
    const QJsonValue value = QJsonDocument::fromJson(answer).object().value(key);
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

QCoro::Task<HostSettings> put(QuorvaneAPI api, HostSettings settings)
{
    const QByteArray answer =
        co_await api.request(u"sync/settings"_s, QByteArrayLiteral("PUT"), {}, JSON::encode(settings), 1);
    Result<HostSettings> stored = JSON::decode<HostSettings>(answer);
    if (!stored)
        throw JSONFailure(stored.error());
    co_return std::move(stored).value();
}

QCoro::Task<BookingChanges> fetchChanges(QuorvaneAPI api, Instant since)
{
    const QuorvaneAPI::Query query{{u"since"_s, ISO::string(since)}};
    CList list = co_await get<CList>(api, u"sync/changes"_s, query);
    const std::optional<Instant> serverTime = list.serverTime ? ISO::parse(*list.serverTime) : std::nullopt;
    co_return BookingChanges{std::move(list.changes), serverTime};
}

QCoro::Task<QList<Booking>> bookingList(QuorvaneAPI api, QString path, QuorvaneAPI::Query query)
{
    co_return (co_await get<BList>(api, path, query)).bookings;
}

QCoro::Task<QList<Poll>> pollList(QuorvaneAPI api)
{
    co_return (co_await get<PList>(api, u"sync/polls"_s)).polls;
}

QCoro::Task<void> command(QuorvaneAPI api, QString path, QJsonObject body)
{
    co_await api.post(path, body); // the answer's body is of no interest
}

QCoro::Task<std::optional<QString>> newPoll(QuorvaneAPI api, QString title, QString type)
{
    const QJsonObject body{{u"title"_s, title}, {u"type"_s, type}};
    co_return textIn(co_await api.post(u"sync/polls"_s, body), "url"_L1);
}

QCoro::Task<std::optional<QUrl>> googleLink(QuorvaneAPI api)
{
    const std::optional<QString> text = textIn(co_await api.post(u"sync/connect-link"_s, {}), "url"_L1);
    if (!text)
        co_return std::nullopt;
    const QUrl url(*text, QUrl::StrictMode);
    co_return url.isValid() ? std::optional(url) : std::nullopt;
}

// One POST of a sign-in step: no token yet, so none is asked for. One try, every HTTP answer
// given back as it is, a failed exchange passed on as the transport reported it.
QCoro::Task<HTTPResponse> unsignedPost(QuorvaneAPI api, QString path, QJsonObject body)
{
    Q_ASSERT(api.transport);
    HTTPRequest prepared = prepare(urlFor(api.base, path, {}), QByteArrayLiteral("POST"),
                                   QJsonDocument(body).toJson(QJsonDocument::Compact), std::nullopt, api.timeout);
    // A sign-in step waits longer than the other operations: the server may be slow to mint codes.
    prepared.request.setTransferTimeout(60'000);
    co_return co_await api.transport->send(prepared, api.cancellation);
}

DeviceCodes codesIn(const QJsonObject &answer)
{
    const QJsonValue device = answer.value("device_code"_L1);
    const QJsonValue user = answer.value("user_code"_L1);
    const QJsonValue page = answer.value("verification_uri_complete"_L1);
    if (!device.isString() || !user.isString() || !page.isString())
        throw BadServerResponse();
    const QUrl url(page.toString(), QUrl::StrictMode);
    if (url.isEmpty() || !url.isValid())
        throw BadServerResponse();
    return DeviceCodes{device.toString(), user.toString(), url};
}

QCoro::Task<DeviceCodes> askForCodes(QuorvaneAPI api, QString label)
{
    const QJsonObject body{{u"label"_s, label}};
    const HTTPResponse answer = co_await unsignedPost(api, u"auth/device/start"_s, body);
    // Only 200 counts: this step has no "created" or "no content" to give.
    if (answer.status != 200)
        throw APIError::server(answer.status, Text::tr("Couldn't start sign-in."));
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(answer.body, &error);
    if (error.error != QJsonParseError::NoError)
        throw BadServerResponse();
    co_return codesIn(document.object()); // JSON other than an object reads as an empty one
}

} // namespace

QCoro::Task<QByteArray> QuorvaneAPI::request(QString path, QByteArray method, Query query,
                                             std::optional<QByteArray> body, int attempts) const
{
    // The coroutine keeps its own copy: this value may be a temporary.
    return perform(*this, std::move(path), std::move(method), std::move(query), std::move(body), attempts);
}

QCoro::Task<QByteArray> QuorvaneAPI::fetchPublic(QUrl url) const
{
    const QUrl resolved = url.isRelative() ? urlFor(base, url.path(), {}) : url;
    HTTPRequest prepared = prepare(resolved, QByteArrayLiteral("GET"), std::nullopt, std::nullopt, timeout);
    prepared.maxBodyBytes.reset(); // a release's download may be large; its signature decides
    return exchange(*this, std::move(prepared), 2);
}

QCoro::Task<QByteArray> QuorvaneAPI::post(QString path, QJsonObject body, QByteArray method) const
{
    return request(std::move(path), std::move(method), {}, QJsonDocument(body).toJson(QJsonDocument::Compact), 1);
}

QCoro::Task<Account> QuorvaneAPI::me() const
{
    return get<Account>(*this, u"sync/me"_s);
}

QCoro::Task<HostSettings> QuorvaneAPI::settings() const
{
    return get<HostSettings>(*this, u"sync/settings"_s);
}

QCoro::Task<HostSettings> QuorvaneAPI::saveSettings(HostSettings settings) const
{
    return put(*this, std::move(settings));
}

QCoro::Task<QList<Booking>> QuorvaneAPI::upcoming() const
{
    return bookingList(*this, u"sync/bookings"_s, {});
}

QCoro::Task<QList<Booking>> QuorvaneAPI::history(Instant from) const
{
    return bookingList(*this, u"sync/history"_s, {{u"from"_s, ISO::string(from)}});
}

QCoro::Task<BookingChanges> QuorvaneAPI::changes(Instant since) const
{
    return fetchChanges(*this, since);
}

QCoro::Task<GoogleStatus> QuorvaneAPI::google() const
{
    return get<GoogleStatus>(*this, u"sync/google"_s);
}

QCoro::Task<QList<Poll>> QuorvaneAPI::polls() const
{
    return pollList(*this);
}

QCoro::Task<SlotList> QuorvaneAPI::slots(QString type, int days, QString tz) const
{
    return get<SlotList>(*this, u"sync/slots"_s,
                         {{u"type"_s, type}, {u"days"_s, QString::number(days)}, {u"tz"_s, tz}});
}

QCoro::Task<void> QuorvaneAPI::cancel(QString id) const
{
    return command(*this, u"sync/cancel"_s, {{u"id"_s, id}});
}

QCoro::Task<void> QuorvaneAPI::setNoShow(QString id, bool value) const
{
    return command(*this, u"sync/noshow"_s, {{u"id"_s, id}, {u"value"_s, value}});
}

QCoro::Task<std::optional<QString>> QuorvaneAPI::createPoll(QString title, QString type) const
{
    return newPoll(*this, std::move(title), std::move(type));
}

QCoro::Task<void> QuorvaneAPI::deletePoll(QString id) const
{
    return command(*this, u"sync/polls/delete"_s, {{u"id"_s, id}});
}

QCoro::Task<std::optional<QUrl>> QuorvaneAPI::connectLink() const
{
    return googleLink(*this);
}

QCoro::Task<void> QuorvaneAPI::disconnectGoogle() const
{
    return command(*this, u"sync/disconnect"_s, {});
}

QCoro::Task<DeviceCodes> QuorvaneAPI::deviceStart(QString label) const
{
    return askForCodes(*this, std::move(label));
}

QCoro::Task<HTTPResponse> QuorvaneAPI::devicePoll(QString deviceCode) const
{
    return unsignedPost(*this, u"auth/device/poll"_s, {{u"device_code"_s, deviceCode}});
}

} // namespace quorvane
