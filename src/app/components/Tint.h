#pragma once

#include <QColor>

namespace quorvane {

// The named colours the screens tint things with. `secondary` is the grey of secondary text.
enum class Tint { accent, red, orange, yellow, green, blue, purple, pink, secondary };

namespace Tints {
// The desktop palette's fixed colours for each name, the same in light and dark windows.
[[nodiscard]] QColor color(Tint tint);
} // namespace Tints

} // namespace quorvane
