#pragma once

#include <QKeySequence>
#include <QString>

namespace quorvane {

// Key combinations as this desktop writes them in labels and subtitles.
namespace KeyLabel {
// The first combination of `keys`, modifiers in the order Ctrl, Alt, Super, Shift, with the
// platform's key names: "Ctrl+K", "Ctrl+Shift+J", "Ctrl+Alt+Super+S".
[[nodiscard]] QString text(const QKeySequence &keys);
} // namespace KeyLabel

} // namespace quorvane
