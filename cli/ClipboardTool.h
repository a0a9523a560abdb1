#pragma once

#include <QString>

// The desktop's clipboard from a program that is about to exit. The clipboard belongs to a
// running program on both X11 and Wayland, so the text is handed to one that stays behind to
// serve it: wl-copy on Wayland, xclip or xsel on X11.
namespace quorvane::cli::ClipboardTool {

// Empty when the text is on the clipboard, else why not.
[[nodiscard]] QString copy(const QString &text);

} // namespace quorvane::cli::ClipboardTool
