#pragma once

#include "Instant.h"
#include "Slot.h"

#include <QList>
#include <QString>

// The plain-text message that offers a few times to someone.
namespace quorvane::ShareFormatter {

// `timeZone` is an IANA id and `locale` an ICU/BCP-47 name. The zone name in the first line is
// the one for the season at `now`, the moment of writing, not at the slots.
[[nodiscard]] QString text(const QList<Slot> &slots, const QString &typeTitle, int minutes, const QString &link,
                           const QString &timeZone, const QString &locale, const Instant &now);

} // namespace quorvane::ShareFormatter
