#include "FixtureTransport.h"

#include "ISO.h"
#include "JSON.h"
#include "TransportError.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QTimeZone>
#include <QUrlQuery>

#include <chrono>

using namespace Qt::StringLiterals;

namespace quorvane::test {

namespace {

HTTPResponse ok(const QJsonValue &body)
{
    return HTTPResponse{200, JSON::encode(body)};
}

QJsonArray bookingArray(const QList<Booking> &bookings)
{
    QJsonArray out;
    for (const Booking &b : bookings)
        out.append(toJson(b));
    return out;
}

} // namespace

FixtureTransport::FixtureTransport(Snapshot snapshot, Instant at)
    : data(std::move(snapshot))
    , now(std::move(at))
{}

QCoro::Task<HTTPResponse> FixtureTransport::send(HTTPRequest request, Cancellation cancellation)
{
    const QUrl url = request.request.url();
    const QString path = url.path().mid(1); // the fixtures' server lives at the root
    requested.append(QString::fromLatin1(request.method) + u' ' + path);
    switch (mode) {
    case Mode::silent:
        // A day is "never" for any fixture; cancelling wakes it and throws Cancelled.
        co_await Cancellation::sleep(std::chrono::hours(24), cancellation);
        throw TransportError(u"no answer"_s);
    case Mode::fail:
        co_await Cancellation::sleep(std::chrono::milliseconds(0), cancellation);
        throw TransportError(u"Connection refused"_s);
    case Mode::status:
        co_await Cancellation::sleep(std::chrono::milliseconds(0), cancellation);
        co_return HTTPResponse{failureStatus, R"({"error":"The server had a problem."})"};
    case Mode::answer:
        break;
    }
    // Answers arrive on a later turn of the event loop, as from a real network.
    co_await Cancellation::sleep(std::chrono::milliseconds(0), cancellation);
    co_return answer(request.method, path, url);
}

HTTPResponse FixtureTransport::answer(const QByteArray &method, const QString &path, const QUrl &url) const
{
    const QUrlQuery query(url);
    if (path == "auth/device/start"_L1)
        return ok(
            QJsonObject{{u"device_code"_s, u"fixture-device"_s},
                        {u"user_code"_s, u"WDJB-MJHT"_s},
                        {u"verification_uri_complete"_s, url.resolved(QUrl(u"/device?code=WDJB-MJHT"_s)).toString()}});
    if (path == "auth/device/poll"_L1) {
        if (approveSignIn)
            return ok(QJsonObject{{u"access_token"_s, u"fixture-token"_s}});
        return HTTPResponse{428, R"({"error":"authorization_pending"})"};
    }
    if (method != "GET")
        return ok(QJsonObject{{u"ok"_s, true}});
    if (path == "sync/me"_L1 && data.account)
        return ok(toJson(*data.account));
    if (path == "sync/settings"_L1 && data.settings)
        return ok(toJson(*data.settings));
    if (path == "sync/bookings"_L1)
        return ok(QJsonObject{{u"bookings"_s, bookingArray(data.upcoming)}});
    if (path == "sync/history"_L1)
        return ok(QJsonObject{{u"bookings"_s, bookingArray(data.history)}});
    if (path == "sync/polls"_L1) {
        QJsonArray polls;
        for (const Poll &p : data.polls)
            polls.append(toJson(p));
        return ok(QJsonObject{{u"polls"_s, polls}});
    }
    if (path == "sync/google"_L1 && data.google)
        return ok(toJson(*data.google));
    if (path == "sync/changes"_L1)
        return ok(QJsonObject{{u"changes"_s, QJsonArray()}, {u"serverTime"_s, ISO::string(now)}});
    if (path == "sync/slots"_L1)
        return ok(slotsFor(query.queryItemValue(u"type"_s), query.queryItemValue(u"days"_s).toInt(),
                           query.queryItemValue(u"tz"_s)));
    return HTTPResponse{404, R"({"error":"Not found"})"};
}

// Four times a working day, half of them ranked higher, for the event type's length.
QJsonObject FixtureTransport::slotsFor(const QString &slug, int days, const QString &zone) const
{
    int minutes = 30;
    if (data.settings) {
        for (const EventType &t : data.settings->eventTypes) {
            if (t.slug == slug)
                minutes = t.minutes;
        }
    }
    const QTimeZone tz(zone.isEmpty() ? QByteArrayLiteral("America/New_York") : zone.toUtf8());
    const QDate first = now.toTimeZone(tz).date().addDays(1);
    QJsonArray slots;
    for (int d = 0; d < std::clamp(days, 1, 30); ++d) {
        const QDate day = first.addDays(d);
        if (day.dayOfWeek() > 5)
            continue;
        for (const QTime at : {QTime(10, 0), QTime(11, 30), QTime(14, 0), QTime(15, 30)}) {
            const Instant start = QDateTime(day, at, tz).toUTC();
            slots.append(toJson(Slot{start, start.addSecs(minutes * 60), at.hour() < 12 ? 80 : 40}));
        }
    }
    return QJsonObject{{u"type"_s, slug}, {u"mode"_s, u"smart"_s}, {u"slots"_s, slots}};
}

} // namespace quorvane::test
