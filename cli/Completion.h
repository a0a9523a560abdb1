#pragma once

#include "Command.h"

#include <QList>
#include <QString>

// The bash completion of quorvanectl, written from its command table.
namespace quorvane::cli::Completion {

[[nodiscard]] QString bash(const QList<const Command *> &commands);

} // namespace quorvane::cli::Completion
