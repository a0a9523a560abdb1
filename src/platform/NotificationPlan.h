#pragma once

#include "Booking.h"
#include "ChangeEvent.h"
#include "NotificationRequest.h"

#include <QHash>
#include <QList>
#include <QUrl>

#include <optional>

// What the app notifies about, and what it does when a notification is answered. Locale and
// zone are passed in, so none of this depends on the machine it runs on.
namespace quorvane::NotificationPlan {

inline const QString reminderPrefix = QStringLiteral("soon-");
inline constexpr int reminderHorizonSeconds = 48 * 3600;

// The announcement of a new or cancelled booking, shown at once.
[[nodiscard]] NotificationRequest announcement(const ChangeEvent &event, const QString &typeTitle,
                                               const QString &locale, const QString &zone);

// The reminders for the bookings, in their order: active ones whose reminder falls strictly
// inside the next 48 hours. A lead below one minute acts as one minute; the title keeps the
// number as given.
[[nodiscard]] QList<NotificationRequest> reminders(const QList<Booking> &bookings, const Instant &now,
                                                   int minutesBefore, const QHash<QString, QString> &titles,
                                                   const QString &locale, const QString &zone);

// The link to open when the user answers with `action`; none means "bring the app to the front".
// Only "JOIN" with a usable link opens it.
[[nodiscard]] std::optional<QUrl> joinTarget(const QString &action, const QString &meet);

} // namespace quorvane::NotificationPlan
