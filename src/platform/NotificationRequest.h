#pragma once

#include "Instant.h"

#include <QString>

#include <optional>

namespace quorvane {

// Reminders offer to join the call; change announcements only to open the app.
enum class NotificationCategory { meeting, booking };

// One notification as the app means it, before any platform turns it into a call.
struct NotificationRequest {
    // "chg-{id}-b", "chg-{id}-c" or "soon-{id}": a second request with the same one replaces the first.
    QString identifier;
    QString title;
    QString body;
    NotificationCategory category = NotificationCategory::booking;
    QString bookingID;
    QString meet;                  // the booking's conference link, empty without one
    std::optional<Instant> fireAt; // none: show at once

    bool operator==(const NotificationRequest &) const = default;
};

} // namespace quorvane
