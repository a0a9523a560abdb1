#pragma once

#include <QColor>
#include <QString>

// Colours as the server and the settings write them: hex texts such as "#34C759".
namespace quorvane::HexColor {

// "#" trimmed from both ends, the rest read as a 64-bit hex number whose low 24 bits are
// red, green and blue; anything unreadable is Tints::unreadableColor. Longer texts lose
// their upper bits and short ones are not expanded ("#FFF" is red 0, green 15, blue 255).
[[nodiscard]] QColor parse(const QString &text);

// "#RRGGBB" in upper case, without alpha; an invalid colour gives Tints::unreadableColor's.
[[nodiscard]] QString string(const QColor &color);

} // namespace quorvane::HexColor
