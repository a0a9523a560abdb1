#pragma once

#include "Answer.h"
#include "BookingStatus.h"
#include "Instant.h"

#include <QUrl>

namespace quorvane {

// One booked meeting. `type` is the slug of its event type, which may no longer exist.
struct Booking {
    QString id;
    QString type;
    Instant start;
    Instant end;
    QString name;
    QString email;
    QString tz;
    std::optional<QString> notes;
    BookingStatus status = BookingStatus::pending;
    std::optional<QString> meet;
    std::optional<bool> inCalendar;
    std::optional<Instant> created;
    std::optional<Instant> updated;
    std::optional<bool> noShow;
    std::optional<QList<Answer>> answers;

    [[nodiscard]] bool isActive() const
    {
        return status == BookingStatus::pending || status == BookingStatus::confirmed;
    }
    // The conference link as the server wrote it: no trimming, no repair.
    [[nodiscard]] std::optional<QUrl> meetURL() const;

    bool operator==(const Booking &) const = default;
};

size_t qHash(const Booking &b, size_t seed = 0);

QUORVANE_DECLARE_SCANNED_CODEC(Booking)

} // namespace quorvane
