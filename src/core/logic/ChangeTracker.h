#pragma once

#include "Booking.h"
#include "ChangeEvent.h"
#include "Instant.h"

#include <QByteArray>
#include <QList>
#include <QSet>
#include <QString>

#include <optional>

namespace quorvane {

// Turns the change poll's answers into news exactly once, across restarts: it remembers
// which booking ids were announced and how far it has read. No clock and no I/O of its own.
struct ChangeTracker {
    // Bounds on the remembered ids, so the file stays small.
    static constexpr qsizetype trimAbove = 5000;
    static constexpr qsizetype keepAfterTrim = 2000;
    // The next poll asks again for this stretch; the sets absorb the repeats.
    static constexpr int overlapSeconds = 5;

    QSet<QString> seenActive;
    QSet<QString> seenCancelled;
    Instant cursor;

    explicit ChangeTracker(Instant from)
        : cursor(std::move(from))
    {}

    // With `prime` the tracker learns everything and announces nothing (first poll after
    // sign-in). A booking created and cancelled between polls gives only `cancelled`.
    QList<ChangeEvent> ingest(const QList<Booking> &bookings, std::optional<Instant> serverTime, bool prime);

    // The tracker file: a plain JSON object whose cursor is a number of seconds since
    // 2001-01-01T00:00:00Z, kept to the millisecond.
    [[nodiscard]] QByteArray toFileJson() const;
    // Anything but an object with all three keys of the right types is no tracker.
    [[nodiscard]] static std::optional<ChangeTracker> fromFileJson(const QByteArray &bytes);

    bool operator==(const ChangeTracker &) const = default;
};

} // namespace quorvane
