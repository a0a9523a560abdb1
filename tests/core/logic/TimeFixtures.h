#pragma once

#include "Instant.h"

#include <QString>

namespace quorvane::test {

// "2026-01-06T14:30:00Z" (or with an offset) as an Instant; tables read better in ISO text.
inline Instant at(const char *iso)
{
    const QDateTime parsed = QDateTime::fromString(QString::fromLatin1(iso), Qt::ISODate);
    Q_ASSERT(parsed.isValid());
    return parsed.toUTC();
}

} // namespace quorvane::test
