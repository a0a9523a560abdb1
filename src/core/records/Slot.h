#pragma once

#include "Codec.h"
#include "Hashing.h"
#include "Instant.h"

namespace quorvane {

// One offered time with the server's ranking. Identified by its start.
struct Slot {
    Instant start;
    Instant end;
    int score = 0;

    [[nodiscard]] const Instant &id() const { return start; }
    bool operator==(const Slot &) const = default;
};

inline size_t qHash(const Slot &s, size_t seed = 0)
{
    return hashFields(seed, s.start, s.end, s.score);
}

QUORVANE_DECLARE_CODEC(Slot)

} // namespace quorvane
