#pragma once

#include <QStringView>

#include <optional>

// Strict reading of a whole text as a decimal integer, for typed hours and version pieces.
namespace quorvane::Decimal {

// An optional "+" or "-", then ASCII digits and nothing else. Digits of other scripts,
// blanks and values beyond what 64 bits hold give no value.
[[nodiscard]] std::optional<qint64> parse(QStringView text);

} // namespace quorvane::Decimal
