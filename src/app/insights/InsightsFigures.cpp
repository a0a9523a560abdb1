#include "insights/InsightsFigures.h"

#include "AvailabilityMath.h"
#include "Formats.h"

#include <numeric>

using namespace Qt::StringLiterals;

namespace quorvane::InsightsFigures {

QString rate(double share, const QString &locale)
{
    return Formats::percent(share, locale);
}

QList<int> rowOrder()
{
    return {2, 3, 4, 5, 6, 7, 1};
}

int row(int weekday)
{
    return int(rowOrder().indexOf(weekday));
}

QString weekdayName(int weekday, const QString &locale)
{
    const QStringList names = Formats::weekdaySymbols(locale, Formats::WeekdayWidth::abbreviated, false);
    return names.value((weekday + 6) % 7);
}

QString hourLabel(int hour)
{
    return AvailabilityMath::label(hour * 60);
}

QString weekLabel(const Instant &start, const QString &locale, const QString &zone)
{
    return Formats::format(start, u"MMMd"_s, locale, zone);
}

QList<Sector> ring(const QList<int> &counts, double inset)
{
    const int total = std::accumulate(counts.cbegin(), counts.cend(), 0);
    QList<Sector> out;
    double at = 0;
    for (const int count : counts) {
        const double sweep = total > 0 ? 360.0 * count / total : 0;
        out.append({at, std::max(0.0, sweep - inset)});
        at += sweep;
    }
    return out;
}

} // namespace quorvane::InsightsFigures
