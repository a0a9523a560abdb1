#pragma once

#include "HTTPTransport.h"
#include "Records.h"

#include <QStringList>

namespace quorvane::test {

// Answers the sync API from a snapshot held in memory, without a network: every GET of the
// refresh cycle, slots for sharing, an empty success for commands, and a device sign-in that
// waits for approval (or is approved at once). Other modes stand for a server that is
// unreachable, broken, or never answers.
class FixtureTransport final : public HTTPTransport
{
public:
    enum class Mode {
        answer, // 2xx from the snapshot
        fail,   // no HTTP answer at all: offline
        status, // every request gets `failureStatus`
        silent, // no answer until the request is cancelled
    };

    explicit FixtureTransport(Snapshot data, Instant now);

    QCoro::Task<HTTPResponse> send(HTTPRequest request, Cancellation cancellation) override;

    Mode mode = Mode::answer;
    int failureStatus = 500;
    bool approveSignIn = false; // the device sign-in's poll gets a token instead of "pending"
    Snapshot data;
    Instant now;           // the server's time, for changes and slots
    QStringList requested; // "GET sync/me", "POST auth/device/start", in order of arrival

private:
    [[nodiscard]] HTTPResponse answer(const QByteArray &method, const QString &path, const QUrl &url) const;
    [[nodiscard]] QJsonObject slotsFor(const QString &slug, int days, const QString &zone) const;
};

} // namespace quorvane::test
