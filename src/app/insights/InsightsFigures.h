#pragma once

#include "Instant.h"

#include <QList>
#include <QString>
#include <QStringList>

// The insights screen's texts and chart geometry. Locale and zone are passed in.
namespace quorvane::InsightsFigures {

// A rate as a whole percentage in the locale's way; no clamp: no-shows may pass 100 %.
[[nodiscard]] QString rate(double share, const QString &locale);

// The heat map's rows from the top: Monday first and Sunday last, whatever the locale's week.
// Weekdays are numbered 1 (Sunday) to 7 (Saturday).
[[nodiscard]] QList<int> rowOrder();
// The row of a weekday in rowOrder().
[[nodiscard]] int row(int weekday);
// The locale's short name of a weekday ("Mon").
[[nodiscard]] QString weekdayName(int weekday, const QString &locale);

// The heat map's hour marks: "9 AM".
[[nodiscard]] QString hourLabel(int hour);
// A week's mark: "Mar 2".
[[nodiscard]] QString weekLabel(const Instant &start, const QString &locale, const QString &zone);

// Where a share of a count sits on a ring that starts at the top and runs clockwise: the
// starting angle and the sweep in degrees, `inset` degrees cut from each sector's end.
struct Sector {
    double start = 0;
    double sweep = 0;
};
[[nodiscard]] QList<Sector> ring(const QList<int> &counts, double inset);

} // namespace quorvane::InsightsFigures
