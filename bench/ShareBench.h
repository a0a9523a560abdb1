#pragma once

#include <QString>

namespace quorvane::bench {

// The command palette's list and a 4-letter query, per keystroke, with 200 bookings and 20
// event types.
bool benchPalette();

// Share Times opened on a running app through `quorvane --share`, as the compositor's key
// binding does, from the launch to the window's appearance on an X server of its own; as a
// ratio to the Controls+Charts floor window's first frame.
bool benchShareOpening(const QString &benchPath, const QString &appPath);

} // namespace quorvane::bench
