#pragma once

#include "Command.h"
#include "DayAvailability.h"

#include <QList>
#include <QString>
#include <QStringList>

// `quorvanectl hours [--json] [--describe] [TEXT...]`: what a typed sentence would set as weekly hours.
namespace quorvane::cli::HoursCommand {

[[nodiscard]] const Command &command();

// One line per day, Monday first as the screens show the week, such as "Mon 9 AM–5 PM".
[[nodiscard]] QStringList readableLines(const QList<DayAvailability> &days);

} // namespace quorvane::cli::HoursCommand
