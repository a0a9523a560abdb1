#pragma once

#include <QColor>
#include <QString>

namespace quorvane {

// The named colours the screens tint things with. `secondary` is the grey of secondary text.
enum class Tint { accent, red, orange, yellow, green, blue, purple, pink, secondary };

// The one table of the app's colours: C++ paints with it and QML's Style reads it through
// SystemColors, so the tray icon, the models and the screens never disagree.
namespace Tints {

// The desktop palette's fixed colour for each name. These are the light appearance's; the
// dark values belong beside them in this table.
[[nodiscard]] QColor color(Tint tint);

// The same colour as "#RRGGBB", for the places that carry colours as text, like event types.
[[nodiscard]] QString hex(Tint tint);

// A booking whose event type is gone is drawn in the secondary grey.
inline constexpr Tint unknownType = Tint::secondary;
// A colour text that can't be read becomes the accent.
inline constexpr Tint unreadableColor = Tint::accent;

} // namespace Tints

} // namespace quorvane
