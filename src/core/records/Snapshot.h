#pragma once

#include "Account.h"
#include "Booking.h"
#include "GoogleStatus.h"
#include "HostSettings.h"
#include "Poll.h"

namespace quorvane {

// Everything the client knows from the server; the unit of the offline cache.
struct Snapshot {
    std::optional<Account> account;
    std::optional<HostSettings> settings;
    QList<Booking> upcoming;
    QList<Booking> history;
    QList<Poll> polls;
    std::optional<GoogleStatus> google;
    Instant savedAt = distantPast();
};

QUORVANE_DECLARE_SCANNED_CODEC(Snapshot)

} // namespace quorvane
