#pragma once

#include <QColor>
#include <QString>

namespace quorvane {

// The named colours the screens tint things with. `secondary` is the grey of secondary text.
enum class Tint { accent, red, orange, yellow, green, blue, purple, pink, secondary };

// The one table of the app's colours: C++ paints with it and QML's Style reads it through
// SystemColors, so the tray icon, the models and the screens never disagree.
namespace Tints {

// Each name's colour in the light or the dark appearance: the dark ones a little brighter, to
// hold their contrast on a dark window.
[[nodiscard]] QColor color(Tint tint, bool dark);
// In the appearance the application has now (its palette's).
[[nodiscard]] QColor color(Tint tint);

// The light colour as "#RRGGBB", for the places that carry colours as text, like event types.
[[nodiscard]] QString hex(Tint tint);

// A booking whose event type is gone is drawn in the secondary grey.
inline constexpr Tint unknownType = Tint::secondary;
// A colour text that can't be read becomes the accent.
inline constexpr Tint unreadableColor = Tint::accent;

} // namespace Tints

} // namespace quorvane
