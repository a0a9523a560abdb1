#pragma once

#include <QDateTime>
#include <QTimeZone>

namespace quorvane {

// A point in time. Always held in UTC.
using Instant = QDateTime;

// 0001-01-01T00:00:00Z: the moment before everything, for new snapshots and trackers.
inline Instant distantPast()
{
    return QDateTime(QDate(1, 1, 1), QTime(0, 0), Qt::UTC);
}

} // namespace quorvane
