#pragma once

#include "Instant.h"

#include <QString>
#include <QStringList>

#include <optional>

// Locale data (CLDR through ICU) behind plain Qt types. The locale ("en_US", "de-DE") and the
// zone (an IANA id) are always passed in: nothing here reads the machine's settings.
namespace quorvane::Formats {

// The instant in the zone, with the fields a skeleton asks for ("EEEMMMdjmm", "jmm", "MMMd")
// in the order, punctuation and 12/24-hour cycle the locale prescribes.
[[nodiscard]] QString format(const Instant &instant, const QString &skeleton, const QString &locale,
                             const QString &zone);

// The locale's medium date and short time, as in "Mar 10, 2026, 9:30\u202FAM".
[[nodiscard]] QString mediumDateShortTime(const Instant &instant, const QString &locale, const QString &zone);

// The locale's pattern for a skeleton: "jmm" gives "h:mm\u202Fa" in en_US and "HH:mm" in de_DE.
[[nodiscard]] QString pattern(const QString &skeleton, const QString &locale);

[[nodiscard]] bool isKnownZone(const QString &zone);

[[nodiscard]] bool isDaylightTime(const QString &zone, const Instant &instant);

// The zone's short name for one season in a locale ("EST", "EDT", "MESZ", or "GMT-5" where the
// locale has no abbreviation). No value for a zone id that isn't known.
[[nodiscard]] std::optional<QString> zoneShortName(const QString &zone, bool daylight, const QString &locale);

enum class Capitalization { middleOfSentence, startOfSentence };

// A count of calendar days from today in words: "yesterday", "today", "tomorrow", "in 3 days".
[[nodiscard]] QString relativeDay(int days, const QString &locale,
                                  Capitalization capitalization = Capitalization::middleOfSentence);

// How far `then` lies from `now` in full words, in the largest unit that isn't zero, with the
// locale's names where it has them: "now", "yesterday", "last week", "in 3 hours", "2 months ago".
[[nodiscard]] QString relativeTime(const Instant &then, const Instant &now, const QString &locale);

// A share as a whole percentage in the locale's way: 0.125 gives "13%" in en_US, "13 %" in
// de_DE. Shares above 1 are shown as they are.
[[nodiscard]] QString percent(double share, const QString &locale);

enum class WeekdayWidth { narrow, abbreviated, wide }; // "T", "Tue", "Tuesday"

// The seven weekday names, Sunday first. Standalone forms are for labels on their own
// (column heads); the others are for use inside a date.
[[nodiscard]] QStringList weekdaySymbols(const QString &locale, WeekdayWidth width, bool standalone);

} // namespace quorvane::Formats
