#pragma once

#include "Booking.h"
#include "Instant.h"

#include <QString>

#include <optional>

// What the tray shows of the next meeting: the full title in the tooltip, and a short form that
// fits inside the icon.
namespace quorvane::TrayText {

// Meetings further away than this are left out of the tray: eight hours.
inline constexpr qint64 horizonSeconds = 28'800;

// "Ann in 25m" or "Now: Ann"; no value when the user turned the countdown off, or with no
// meeting within the horizon.
[[nodiscard]] std::optional<QString> title(const std::optional<Booking> &next, const Instant &now, bool showsNext);

// The title, or the application's name when there is none.
[[nodiscard]] QString toolTip(const std::optional<QString> &title);

// "now", "25m", "2h": the countdown in at most three characters, or empty when there is no title.
// Hours are whole hours begun below the start, so "2h" means two hours and some minutes.
[[nodiscard]] QString iconText(const std::optional<Booking> &next, const Instant &now, bool showsNext);

} // namespace quorvane::TrayText
