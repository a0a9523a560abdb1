#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

// Where the tray popover opens: against the tray icon, on the side of it that faces the middle
// of the screen, kept whole on the screen.
namespace quorvane::PopoverPlacement {

// Space between the icon and the popover.
inline constexpr int gap = 6;

// Where the icon really is, from the geometry the tray reports and the pointer that just
// clicked it. The report can't always be trusted: a tray host that never tells the icon it was
// embedded leaves it reported at the screen's corner. So a geometry that doesn't hold the
// pointer keeps its size but is centred on the pointer. Empty where the tray reports nothing
// (Wayland): then the pointer alone is the anchor.
[[nodiscard]] QRect anchor(const QRect &icon, const QPoint &cursor);

// `icon` and `cursor` as for anchor(); `screen` is the available area.
[[nodiscard]] QPoint topLeft(const QRect &icon, const QPoint &cursor, const QSize &popover, const QRect &screen);

} // namespace quorvane::PopoverPlacement
