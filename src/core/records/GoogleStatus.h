#pragma once

#include "CalendarItem.h"

namespace quorvane {

// The state of the Google Calendar connection.
struct GoogleStatus {
    bool connected = false;
    std::optional<QString> email;
    std::optional<QString> connectedAt; // a plain text, never parsed
    std::optional<QString> lastError;
    std::optional<QString> error;
    std::optional<QList<CalendarItem>> calendars;

    bool operator==(const GoogleStatus &) const = default;
};

inline size_t qHash(const GoogleStatus &g, size_t seed = 0)
{
    return hashFields(seed, g.connected, g.email, g.connectedAt, g.lastError, g.error, g.calendars);
}

QUORVANE_DECLARE_CODEC(GoogleStatus)

} // namespace quorvane
