#pragma once

#include "Codec.h"
#include "Hashing.h"

namespace quorvane {

// One Google calendar of the account.
struct CalendarItem {
    QString id;
    std::optional<QString> title;
    bool primary = false;
    bool writable = false;
    std::optional<QString> color;

    bool operator==(const CalendarItem &) const = default;
};

inline size_t qHash(const CalendarItem &c, size_t seed = 0)
{
    return hashFields(seed, c.id, c.title, c.primary, c.writable, c.color);
}

QUORVANE_DECLARE_CODEC(CalendarItem)

} // namespace quorvane
