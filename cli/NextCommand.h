#pragma once

#include "Command.h"

// `quorvanectl next`: the next meeting and its countdown, for a terminal or a status bar.
namespace quorvane::cli::NextCommand {

[[nodiscard]] const Command &command();

} // namespace quorvane::cli::NextCommand
