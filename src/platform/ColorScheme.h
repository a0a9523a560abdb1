#pragma once

namespace quorvane {

// What the desktop asks of an application's colours. The numbers are the desktop portal's
// `color-scheme` setting's own.
enum class ColorScheme { noPreference = 0, dark = 1, light = 2 };

} // namespace quorvane
