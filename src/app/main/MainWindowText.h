#pragma once

#include "Instant.h"
#include "main/FooterStatus.h"

#include <QString>

#include <optional>

// The texts of the main window's frame, as plain functions of the model's state.
namespace quorvane::MainWindowText {

// "Offline", else "Saving…", else "Updated {short time}", else empty. Offline wins over saving.
[[nodiscard]] QString subtitle(bool offline, bool saving, const std::optional<Instant> &lastRefresh,
                               const QString &locale, const QString &zone);

// The first characters of the first two words of the name ("?" without a name); the case
// stays as typed, and a name of blanks only gives the empty text.
[[nodiscard]] QString initials(const std::optional<QString> &name);

// The name, or "Not signed in" when there is no account or it has no name.
[[nodiscard]] QString accountName(const std::optional<QString> &name);

// "Offline" (grey), else "Live on Google Calendar" (green), else "Calendar not connected" (orange).
[[nodiscard]] FooterStatus footerStatus(bool offline, bool googleConnected);

} // namespace quorvane::MainWindowText
