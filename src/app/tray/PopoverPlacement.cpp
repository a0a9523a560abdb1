#include "tray/PopoverPlacement.h"

#include <algorithm>

namespace quorvane::PopoverPlacement {

namespace {
int clampInto(int value, int low, int high)
{
    // A popover taller or wider than the screen keeps its top left corner on it.
    return std::max(low, std::min(value, high));
}
} // namespace

QRect anchor(const QRect &icon, const QPoint &cursor)
{
    if (icon.isEmpty() || icon.contains(cursor))
        return icon;
    return QRect(cursor - QPoint(icon.width() / 2, icon.height() / 2), icon.size());
}

QPoint topLeft(const QRect &reported, const QPoint &cursor, const QSize &popover, const QRect &screen)
{
    const QRect icon = anchor(reported, cursor);
    // The pointer is an anchor of no size: its top and bottom are the same line.
    const bool byIcon = !icon.isEmpty();
    const int left = byIcon ? icon.left() : cursor.x();
    const int width = byIcon ? icon.width() : 0;
    const int top = byIcon ? icon.top() : cursor.y();
    const int bottom = byIcon ? icon.bottom() + 1 : cursor.y();
    const int x = left + (width - popover.width()) / 2;
    // A panel at the bottom of the screen opens the popover upwards.
    const bool below = (top + bottom) / 2 < screen.top() + screen.height() / 2;
    const int y = below ? bottom + gap : top - gap - popover.height();
    return {clampInto(x, screen.left(), screen.right() + 1 - popover.width()),
            clampInto(y, screen.top(), screen.bottom() + 1 - popover.height())};
}

} // namespace quorvane::PopoverPlacement
