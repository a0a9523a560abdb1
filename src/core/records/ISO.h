#pragma once

#include "Instant.h"

#include <QString>

#include <optional>

// The three date paths differ on purpose: queries go out with milliseconds,
// bodies and files to the second, and reading takes both.
namespace quorvane::ISO {

// "2026-03-10T14:00:00Z", "2026-03-10T14:00:00.250Z", "2026-03-10T09:00:00-05:00".
// A zone is required; anything else gives no value.
[[nodiscard]] std::optional<Instant> parse(const QString &text);

// UTC with three fractional digits and a final Z, for query parameters.
[[nodiscard]] QString string(const Instant &instant);

// UTC to the second with a final Z, as the shared encoder writes dates.
[[nodiscard]] QString secondsString(const Instant &instant);

} // namespace quorvane::ISO
