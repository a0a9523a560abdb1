#pragma once

#include "Booking.h"
#include "Instant.h"

#include <QString>

// The texts of the next-meeting card. `date` is the moment of the card's latest redraw.
namespace quorvane::NextMeeting {

// The card trusts the model to hand it a meeting that has not ended, so only the start counts.
[[nodiscard]] bool isNow(const Booking &booking, const Instant &date);

// "HAPPENING NOW", or "NEXT · in 25m".
[[nodiscard]] QString caption(const Booking &booking, const Instant &date);

// "Intro call with Ann Lee"; the type's title is "Meeting" for a type that no longer exists.
[[nodiscard]] QString headline(const QString &typeTitle, const QString &name);

// "Tuesday 9:40 AM – 10:10 AM": the start with its weekday, the end as a time alone.
[[nodiscard]] QString timeRange(const Booking &booking, const QString &locale, const QString &zone);

[[nodiscard]] QString joinAccessibleName(const QString &name);

} // namespace quorvane::NextMeeting
