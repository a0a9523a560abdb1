#pragma once

#include "DayAvailability.h"

#include <QList>
#include <QString>

// The working week as one line that the typed-hours box reads back: "Mon–Thu 9 AM–5 PM,
// Fri 9 AM–1 PM". Days with the same hours share a clause; each range of a day gets its own
// clause, since the box reads one time span per clause and a later clause adds to a day.
namespace quorvane::WeekSentence {

// English, as the box reads it. Parsing the result gives `days` back for any week of ranges
// on the grid's steps; an empty week gives "No working hours".
[[nodiscard]] QString describe(const QList<DayAvailability> &days);

} // namespace quorvane::WeekSentence
