#pragma once

#include "Account.h"
#include "CalendarItem.h"
#include "GoogleStatus.h"
#include "HostSettings.h"
#include "Instant.h"

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

// The settings window's rules, apart from drawing: how a calendar is named in the host's
// settings, which calendars are offered where, and the panes' texts.
namespace quorvane::Settings {

// How the host's settings name a calendar: "primary" for the primary one, else its id.
[[nodiscard]] QString calendarKey(const CalendarItem &calendar);
// Its title, or its id where it has none.
[[nodiscard]] QString calendarLabel(const CalendarItem &calendar);

// The calendar counts for conflicts under its key or under its own id.
[[nodiscard]] bool checksConflicts(const HostSettings &settings, const CalendarItem &calendar);
// Takes out every entry naming the calendar, by key or by id, and puts back the key if on:
// a primary calendar stored by its real id comes back as "primary".
void setChecksConflicts(HostSettings &settings, const CalendarItem &calendar, bool on);

// The calendars new bookings may be added to, in the server's order.
[[nodiscard]] QList<CalendarItem> writable(const QList<CalendarItem> &calendars);
// Where `bookingCalendarID` stands among `choices`; -1 when it names none of them.
[[nodiscard]] int bookingChoice(const QList<CalendarItem> &choices, const QString &bookingCalendarID);

// "Connected as ann@example.com", "Connected", "Not connected".
[[nodiscard]] QString connectionText(bool connected, const std::optional<GoogleStatus> &status);
// The server's word on the connection: its last error, else its error; empty when fine.
[[nodiscard]] QString calendarError(const std::optional<GoogleStatus> &status);

// The account's name, or "—".
[[nodiscard]] QString nameText(const Account &account);

// The minutes "Remind me" offers, and how each reads: "5 min before".
[[nodiscard]] QList<int> reminderChoices();
[[nodiscard]] QString reminderText(int minutes);

// "2.0 (200)", with "?" for a part that is missing.
[[nodiscard]] QString versionText(const QString &shortVersion, const QString &build);
// "Last checked yesterday"; empty before the first check.
[[nodiscard]] QString lastCheckedText(const QDateTime &lastCheck, const Instant &now, const QString &locale);

} // namespace quorvane::Settings
