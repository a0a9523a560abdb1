#pragma once

#include "Codec.h"
#include "Hashing.h"

namespace quorvane {

// One guest's answer to one of the event type's questions.
struct Answer {
    QString q;
    QString a;

    bool operator==(const Answer &) const = default;
};

inline size_t qHash(const Answer &x, size_t seed = 0)
{
    return hashFields(seed, x.q, x.a);
}

QUORVANE_DECLARE_SCANNED_CODEC(Answer)

} // namespace quorvane
