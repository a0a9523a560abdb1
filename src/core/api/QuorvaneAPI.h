#pragma once

#include "BookingChanges.h"
#include "Cancellation.h"
#include "DeviceCodes.h"
#include "HTTPTransport.h"
#include "Records.h"

#include <QCoroTask>
#include <QJsonObject>
#include <QMap>
#include <QUrl>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace quorvane {

// The client's whole conversation with the server. A cheap value: make a fresh one at
// each use, so that a changed server URL or token counts at the next request.
//
// Every operation is a coroutine that throws on failure:
//   APIError    the typed failure (not signed in, unauthorized, offline, rate limited,
//               server status, undecodable answer);
//   Cancelled   `cancellation` was cancelled; not a failure to show to the user;
//   JSONFailure only from saveSettings(), whose answer is not wrapped in an APIError;
//   TransportError, BadServerResponse  only from the sign-in steps, as noted there.
// A GET is tried twice with a pause of 0.6 s between; a write is tried once, since a
// repeated write could take effect twice.
//
// The two steps of a device sign-in go out before there is a token: they carry no
// Authorization, never ask `token`, are tried once, and leave the reading of statuses to
// the flow, as noted at each. Otherwise they are requests like any other.
struct QuorvaneAPI {
    using TokenProvider = std::function<std::optional<QString>()>;
    using Query = QMap<QString, QString>; // goes out sorted by key

    QUrl base;           // the server root; paths are appended to it
    TokenProvider token; // asked once per request
    std::shared_ptr<HTTPTransport> transport;
    Cancellation cancellation{};
    // How long a request may go without a byte moving before it counts as offline.
    std::chrono::milliseconds timeout = defaultTimeout;

    static constexpr std::chrono::milliseconds retryPause{600}; // times the try number
    static constexpr std::chrono::milliseconds defaultTimeout{20'000};
    // No answer of the service comes near this; a longer one is refused, not read into memory.
    static constexpr qint64 maxAnswerBytes = 32 * 1024 * 1024;

    // The one routine below every operation: adds the token and the client's name, maps
    // statuses to APIError and retries what is safe to retry. Gives the body of a 2xx.
    [[nodiscard]] QCoro::Task<QByteArray> request(QString path, QByteArray method, Query query = {},
                                                  std::optional<QByteArray> body = {}, int attempts = 1) const;
    // Sends `body` as a JSON object, once; gives back the answer's body.
    [[nodiscard]] QCoro::Task<QByteArray> post(QString path, QJsonObject body,
                                               QByteArray method = QByteArrayLiteral("POST")) const;

    // A public file of the service, such as the update feed or a release's download: a GET
    // without the token, tried twice, of any length. A relative `url` lies below the base.
    [[nodiscard]] QCoro::Task<QByteArray> fetchPublic(QUrl url) const;

    [[nodiscard]] QCoro::Task<Account> me() const;
    [[nodiscard]] QCoro::Task<HostSettings> settings() const;
    // Gives the settings as the server stored them.
    [[nodiscard]] QCoro::Task<HostSettings> saveSettings(HostSettings settings) const;
    [[nodiscard]] QCoro::Task<QList<Booking>> upcoming() const;
    [[nodiscard]] QCoro::Task<QList<Booking>> history(Instant from) const;
    [[nodiscard]] QCoro::Task<BookingChanges> changes(Instant since) const;
    [[nodiscard]] QCoro::Task<GoogleStatus> google() const;
    [[nodiscard]] QCoro::Task<QList<Poll>> polls() const;
    [[nodiscard]] QCoro::Task<SlotList> slots(QString type, int days, QString tz) const;
    [[nodiscard]] QCoro::Task<void> cancel(QString id) const;
    [[nodiscard]] QCoro::Task<void> setNoShow(QString id, bool value) const;
    // The new poll's public link, if the answer names one.
    [[nodiscard]] QCoro::Task<std::optional<QString>> createPoll(QString title, QString type) const;
    [[nodiscard]] QCoro::Task<void> deletePoll(QString id) const;
    // Where to send the browser to connect Google Calendar, if the answer names it.
    [[nodiscard]] QCoro::Task<std::optional<QUrl>> connectLink() const;
    [[nodiscard]] QCoro::Task<void> disconnectGoogle() const;

    // Asks for a pair of codes for the device named `label`. Anything but 200 throws
    // APIError::server with the status; an answer without the three codes throws
    // BadServerResponse; a failed exchange throws as the transport reported it.
    [[nodiscard]] QCoro::Task<DeviceCodes> deviceStart(QString label) const;
    // Asks whether the person approved yet. Every HTTP answer comes back as it is, since 428
    // ("not yet") and the failures are all told apart by the flow; only a failed exchange
    // throws, as the transport reported it.
    [[nodiscard]] QCoro::Task<HTTPResponse> devicePoll(QString deviceCode) const;
};

} // namespace quorvane
