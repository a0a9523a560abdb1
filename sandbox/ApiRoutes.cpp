#include "ApiRoutes.h"

#include "ISO.h"
#include "RequestError.h"

using namespace Qt::StringLiterals;

namespace quorvane::sandbox::ApiRoutes {

namespace {

using Access = Router::Access;

Instant instantParam(const HttpRequest &r, const QString &key)
{
    const std::optional<Instant> at = ISO::parse(r.queryValue(key));
    if (!at)
        throw RequestError{400, u"\"%1\" must be an ISO 8601 date with a zone"_s.arg(key)};
    return *at;
}

int daysParam(const HttpRequest &r, int fallback)
{
    if (!r.query.hasQueryItem(u"days"_s))
        return fallback;
    bool ok = false;
    const int days = r.queryValue(u"days"_s).toInt(&ok);
    if (!ok || days < 1 || days > 366)
        throw RequestError{400, u"\"days\" must be a whole number from 1 to 366"_s};
    return days;
}

QTimeZone zoneParam(const HttpRequest &r)
{
    const QString id = r.queryValue(u"tz"_s);
    if (id.isEmpty())
        return {};
    const QTimeZone zone(id.toUtf8());
    if (!zone.isValid())
        throw RequestError{400, u"Unknown time zone \"%1\""_s.arg(id)};
    return zone;
}

HttpReply bookingList(const QString &key, const QList<Booking> &bookings, QJsonObject extra = {})
{
    extra.insert(key, toJson(bookings));
    return HttpReply::json(extra);
}

void installReads(Router &router, Backend &b)
{
    router.add("GET", u"/sync/me"_s, Access::token,
               [&b](const HttpRequest &) { return HttpReply::json(toJson(b.account())); });
    router.add("GET", u"/sync/settings"_s, Access::token,
               [&b](const HttpRequest &) { return HttpReply::json(toJson(b.settings())); });
    router.add("GET", u"/sync/bookings"_s, Access::token,
               [&b](const HttpRequest &) { return bookingList(u"bookings"_s, b.upcoming()); });
    router.add("GET", u"/sync/history"_s, Access::token, [&b](const HttpRequest &r) {
        return bookingList(u"bookings"_s, b.history(instantParam(r, u"from"_s)));
    });
    router.add("GET", u"/sync/changes"_s, Access::token, [&b](const HttpRequest &r) {
        const Instant since = instantParam(r, u"since"_s);
        const Instant serverTime = b.now();
        return bookingList(u"changes"_s, b.changes(since), {{u"serverTime"_s, ISO::secondsString(serverTime)}});
    });
    router.add("GET", u"/sync/google"_s, Access::token,
               [&b](const HttpRequest &) { return HttpReply::json(toJson(b.google())); });
    router.add("GET", u"/sync/polls"_s, Access::token, [&b](const HttpRequest &) {
        return HttpReply::json(QJsonObject{{u"polls"_s, toJson(b.store().polls())}});
    });
    router.add("GET", u"/sync/slots"_s, Access::token, [&b](const HttpRequest &r) {
        const QString type = r.queryValue(u"type"_s);
        if (type.isEmpty())
            throw RequestError{400, u"\"type\" is required"_s};
        return HttpReply::json(toJson(b.slots(type, daysParam(r, b.settings().horizonDays), zoneParam(r))));
    });
}

void installWrites(Router &router, Backend &b)
{
    router.add("PUT", u"/sync/settings"_s, Access::token,
               [&b](const HttpRequest &r) { return HttpReply::json(toJson(b.saveSettings(r.jsonObject()))); });
    router.add("POST", u"/sync/cancel"_s, Access::token, [&b](const HttpRequest &r) {
        return HttpReply::json(QJsonObject{{u"booking"_s, toJson(b.cancel(Body::text(r.jsonObject(), u"id"_s)))}});
    });
    router.add("POST", u"/sync/noshow"_s, Access::token, [&b](const HttpRequest &r) {
        const QJsonObject body = r.jsonObject();
        const Booking booking = b.setNoShow(Body::text(body, u"id"_s), Body::boolean(body, u"value"_s));
        return HttpReply::json(QJsonObject{{u"booking"_s, toJson(booking)}});
    });
    router.add("POST", u"/sync/polls"_s, Access::token, [&b](const HttpRequest &r) {
        const QJsonObject body = r.jsonObject();
        const Poll poll = b.createPoll(Body::text(body, u"title"_s), Body::text(body, u"type"_s));
        return HttpReply::json(QJsonObject{{u"url"_s, b.pollUrl(poll.id)}, {u"id"_s, poll.id}});
    });
    router.add("POST", u"/sync/polls/delete"_s, Access::token, [&b](const HttpRequest &r) {
        b.deletePoll(Body::text(r.jsonObject(), u"id"_s));
        return HttpReply::json(QJsonObject{{u"ok"_s, true}});
    });
    router.add("POST", u"/sync/connect-link"_s, Access::token, [&b](const HttpRequest &r) {
        (void)r.jsonObject();
        return HttpReply::json(QJsonObject{{u"url"_s, b.connectLink()}});
    });
    router.add("POST", u"/sync/disconnect"_s, Access::token, [&b](const HttpRequest &r) {
        (void)r.jsonObject();
        b.disconnectCalendar();
        return HttpReply::json(QJsonObject{{u"ok"_s, true}});
    });
}

void installDeviceFlow(Router &router, Backend &b, DeviceFlow &devices)
{
    router.add("POST", u"/auth/device/start"_s, Access::open, [&b, &devices](const HttpRequest &r) {
        const QJsonValue label = r.jsonObject().value(u"label"_s);
        const DeviceFlow::Started s = devices.start(label.toString());
        return HttpReply::json(
            QJsonObject{{u"device_code"_s, s.deviceCode},
                        {u"user_code"_s, s.userCode},
                        {u"verification_uri_complete"_s, b.baseUrl() + u"/device?code="_s + s.userCode},
                        {u"expires_in"_s, DeviceFlow::lifetimeSeconds},
                        {u"interval"_s, 3}});
    });
    router.add("POST", u"/auth/device/poll"_s, Access::open, [&devices](const HttpRequest &r) {
        const QJsonValue code = r.jsonObject().value(u"device_code"_s);
        const DeviceFlow::Polled p = devices.poll(code.toString());
        switch (p.state) {
        case DeviceFlow::State::approved:
            return HttpReply::json(QJsonObject{{u"access_token"_s, p.token}, {u"token_type"_s, u"Bearer"_s}});
        case DeviceFlow::State::pending:
            return HttpReply::error(428, u"authorization_pending"_s);
        case DeviceFlow::State::expired:
            return HttpReply::error(400, u"expired_token"_s);
        case DeviceFlow::State::unknown:
            break;
        }
        return HttpReply::error(400, u"invalid_grant"_s);
    });
}

} // namespace

void install(Router &router, Backend &backend, DeviceFlow &devices)
{
    router.setTokenCheck([&devices](const QByteArray &token) { return devices.isValid(QString::fromUtf8(token)); });
    installReads(router, backend);
    installWrites(router, backend);
    installDeviceFlow(router, backend, devices);
}

} // namespace quorvane::sandbox::ApiRoutes
