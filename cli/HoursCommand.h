#pragma once

#include "DayAvailability.h"

#include <QList>
#include <QString>
#include <QStringList>

// `quorvanectl hours [--json] TEXT`: what a typed sentence would set as weekly hours.
namespace quorvane::cli::HoursCommand {

int run(const QStringList &arguments);

// One line per day, Monday first as the screens show the week, such as "Mon 9 AM–5 PM".
[[nodiscard]] QStringList readableLines(const QList<DayAvailability> &days);

} // namespace quorvane::cli::HoursCommand
