#pragma once

#include "Codec.h"
#include "Hashing.h"
#include "Instant.h"

namespace quorvane {

// A group poll: offered times and the votes they got.
struct Poll {
    struct Option {
        Instant start;
        int votes = 0;
        bool operator==(const Option &) const = default;
    };

    QString id;
    QString title;
    int minutes = 0;
    bool booked = false;
    QStringList voters;
    QList<Option> options;

    bool operator==(const Poll &) const = default;
};

inline size_t qHash(const Poll::Option &o, size_t seed = 0)
{
    return hashFields(seed, o.start, o.votes);
}
inline size_t qHash(const Poll &p, size_t seed = 0)
{
    return hashFields(seed, p.id, p.title, p.minutes, p.booked, p.voters, p.options);
}

QUORVANE_DECLARE_CODEC(Poll::Option)
QUORVANE_DECLARE_CODEC(Poll)

} // namespace quorvane
