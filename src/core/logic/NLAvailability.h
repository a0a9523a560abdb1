#pragma once

#include "DayAvailability.h"

#include <QList>
#include <QString>

// Reads a typed line such as "weekdays 9-5, fri 9am-1pm" as weekly hours.
namespace quorvane::NLAvailability {

// Never fails: what it cannot read gives no days. Later clauses add to a day, never replace it.
[[nodiscard]] QList<DayAvailability> parse(const QString &text);

} // namespace quorvane::NLAvailability
