#pragma once

// Private to the logic library: the one place where Qt strings and names turn into ICU objects.
// Public headers never include this, so callers don't see ICU.

#include <QString>

#include <unicode/locid.h>
#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <memory>

namespace quorvane::ICUBridge {

[[nodiscard]] icu::UnicodeString toICU(const QString &text);
[[nodiscard]] QString fromICU(const icu::UnicodeString &text);

// Takes ICU names ("en_US") and BCP-47 tags ("en-US") alike.
[[nodiscard]] icu::Locale locale(const QString &name);

// Never null; an unknown id gives ICU's "Etc/Unknown", which behaves as UTC.
[[nodiscard]] std::unique_ptr<icu::TimeZone> zone(const QString &id);

[[nodiscard]] bool isUnknown(const icu::TimeZone &zone);

} // namespace quorvane::ICUBridge
