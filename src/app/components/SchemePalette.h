#pragma once

#include "ColorScheme.h"

#include <QPalette>

namespace quorvane {

// The application's palette for the desktop's light or dark preference. The platform's own
// palette stays wherever it already is what the desktop asks for.
namespace SchemePalette {

// Light text on a dark window.
[[nodiscard]] bool isDark(const QPalette &palette);
// The application's palette is dark (false before there is a GUI application).
[[nodiscard]] bool applicationIsDark();

[[nodiscard]] QPalette dark();
[[nodiscard]] QPalette light();

// `platform` when the preference is none or it already matches; else ours for the preference.
[[nodiscard]] QPalette choose(ColorScheme preference, const QPalette &platform);

} // namespace SchemePalette

} // namespace quorvane
