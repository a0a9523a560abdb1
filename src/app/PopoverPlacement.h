#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

// Where the tray popover opens: against the tray icon, on the side of it that faces the middle
// of the screen, kept whole on the screen.
namespace quorvane::PopoverPlacement {

// Space between the icon and the popover.
inline constexpr int gap = 6;

// `icon` is the icon's geometry as the tray host reports it; where the host reports none
// (Wayland), the popover opens by `cursor` instead. `screen` is the available area.
[[nodiscard]] QPoint topLeft(const QRect &icon, const QPoint &cursor, const QSize &popover, const QRect &screen);

} // namespace quorvane::PopoverPlacement
