#pragma once

#include "linux/DBusApplication.h"

namespace quorvane {

class AppModel;

// The status a status bar reads from the bus: the meeting the tray counts down to, its
// countdown as the tray words it, and whether the user is signed in and the data fresh.
namespace BusStatus {

[[nodiscard]] DBusApplication::Status of(const AppModel &model);

// Keeps the bus's status on the model: after new data, at the tray's minute tick, and as
// sign-in and the connection change.
void follow(const AppModel &model, DBusApplication &bus);

} // namespace BusStatus

} // namespace quorvane
