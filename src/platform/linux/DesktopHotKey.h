#pragma once

#include "HotKey.h"

#include <QDBusConnection>

#include <memory>

namespace quorvane {

// The hot key as this desktop can offer it: the X11 grab; else, on Wayland, the portal's
// GlobalShortcuts; else none, and the compositor's own binding runs `quorvane --share`.
[[nodiscard]] std::unique_ptr<HotKey> makeDesktopHotKey(const QDBusConnection &session);

} // namespace quorvane
