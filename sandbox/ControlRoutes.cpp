#include "ControlRoutes.h"

#include "ISO.h"
#include "JSON.h"
#include "RequestError.h"

using namespace Qt::StringLiterals;

namespace quorvane::sandbox::ControlRoutes {

namespace {

using Access = Router::Access;

int wholeNumber(const QJsonObject &body, const QString &key, int fallback, int low, int high)
{
    const QJsonValue v = body.value(key);
    if (v.isUndefined() || v.isNull())
        return fallback;
    const double d = v.toDouble(-1);
    if (!v.isDouble() || d != double(qint64(d)) || d < low || d > high)
        throw RequestError{400, u"\"%1\" must be a whole number from %2 to %3"_s.arg(key, QString::number(low),
                                                                                     QString::number(high))};
    return int(d);
}

GuestBooking guestFrom(const QJsonObject &body)
{
    GuestBooking g;
    g.type = Body::text(body, u"type"_s);
    g.start = ISO::parse(Body::text(body, u"start"_s)).value_or(QDateTime());
    if (!g.start.isValid())
        throw RequestError{400, u"\"start\" must be an ISO 8601 date with a zone"_s};
    g.name = Body::text(body, u"name"_s);
    g.email = Body::text(body, u"email"_s);
    g.tz = body.value(u"tz"_s).toString();
    if (body.value(u"notes"_s).isString())
        g.notes = body.value(u"notes"_s).toString();
    if (body.contains(u"status"_s)) {
        const std::optional<BookingStatus> status = Status::fromRawValue(Body::text(body, u"status"_s));
        if (!status)
            throw RequestError{400, u"Unknown status"_s};
        g.status = *status;
    }
    return g;
}

} // namespace

Fault faultFrom(const QJsonObject &body)
{
    Fault f;
    if (body.contains(u"status"_s))
        f.status = wholeNumber(body, u"status"_s, 500, 100, 599);
    const QJsonValue b = body.value(u"body"_s);
    if (b.isString())
        f.body = b.toString().toUtf8();
    else if (b.isObject() || b.isArray())
        f.body = JSON::encode(b);
    f.delayMs = wholeNumber(body, u"delayMs"_s, 0, 0, 120000);
    f.drop = body.value(u"drop"_s).toBool(false);
    f.count = wholeNumber(body, u"count"_s, 1, 1, 1000000);
    f.bodyBytes = wholeNumber(body, u"bodyBytes"_s, 0, 0, 200'000'000);
    return f;
}

void install(Router &router, Backend &b, FaultInjector &faults)
{
    router.add("POST", u"/sandbox/bookings"_s, Access::open, [&b](const HttpRequest &r) {
        return HttpReply::json(toJson(b.book(guestFrom(r.jsonObject()), false)));
    });
    router.add("POST", u"/sandbox/bookings/*/cancel"_s, Access::open,
               [&b](const HttpRequest &r) { return HttpReply::json(toJson(b.cancel(r.captures.value(0)))); });
    router.add("POST", u"/sandbox/faults"_s, Access::open, [&faults](const HttpRequest &r) {
        const QJsonObject body = r.jsonObject();
        const QString path = Body::text(body, u"path"_s);
        faults.plant(path, faultFrom(body));
        return HttpReply::json(QJsonObject{{u"path"_s, FaultInjector::key(path)}});
    });
    router.add("DELETE", u"/sandbox/faults"_s, Access::open, [&faults](const HttpRequest &) {
        faults.clear();
        return HttpReply::json(QJsonObject{{u"ok"_s, true}});
    });
}

} // namespace quorvane::sandbox::ControlRoutes
