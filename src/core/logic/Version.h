#pragma once

#include <QString>

// Dotted version texts such as "2.0" or "1.10.3".
namespace quorvane::Version {

// Numeric, piece by piece: "1.10" is newer than "1.9", "1.0" equals "1". A piece that
// isn't a number counts as 0.
[[nodiscard]] bool isNewer(const QString &a, const QString &b);

} // namespace quorvane::Version
