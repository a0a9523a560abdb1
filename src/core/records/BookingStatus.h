#pragma once

#include "Codec.h"

#include <optional>

namespace quorvane {

enum class BookingStatus { pending, confirmed, cancelled, rejected, unknown };

namespace Status {
QString rawValue(BookingStatus status);
// Exact, case-sensitive; an unknown text gives no value (the decoder, not this, falls back to unknown).
std::optional<BookingStatus> fromRawValue(const QString &raw);
} // namespace Status

inline size_t qHash(BookingStatus s, size_t seed = 0)
{
    return ::qHash(int(s), seed);
}

// Never fails: anything that isn't one of the five words decodes as `unknown`.
QUORVANE_DECLARE_CODEC(BookingStatus)

} // namespace quorvane
