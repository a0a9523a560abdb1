#pragma once

#include "Command.h"

// `quorvanectl agenda`: the bookings of today, or of the next few days.
namespace quorvane::cli::AgendaCommand {

[[nodiscard]] const Command &command();

} // namespace quorvane::cli::AgendaCommand
