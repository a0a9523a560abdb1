#pragma once

#include "Command.h"

// `quorvanectl open WINDOW` and `quorvanectl join`: the running app does them, started if need be.
namespace quorvane::cli::OpenCommand {

[[nodiscard]] const Command &open();
[[nodiscard]] const Command &join();

} // namespace quorvane::cli::OpenCommand
