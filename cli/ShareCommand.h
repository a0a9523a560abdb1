#pragma once

#include "Command.h"

// `quorvanectl share`: the Share Times message, with the best open times picked.
namespace quorvane::cli::ShareCommand {

[[nodiscard]] const Command &command();

} // namespace quorvane::cli::ShareCommand
