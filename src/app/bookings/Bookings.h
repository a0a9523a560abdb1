#pragma once

#include "Booking.h"
#include "Instant.h"
#include "WeekCalendar.h"

#include <QDate>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

// The bookings screen's derivations: which bookings a filter and a search show, how they
// group by day, and what a single booking offers at a given moment. Locale, zone and the
// present moment are always passed in.
namespace quorvane::Bookings {

enum class Filter { upcoming, past, cancelled, all };

[[nodiscard]] QList<Filter> allFilters();
// "Upcoming", "Past", "Cancelled", "All".
[[nodiscard]] QString title(Filter filter);

using TypeTitle = std::function<QString(const QString &slug)>;

// The bookings that a filter, an optional event type and a query show, from the model's list
// of all bookings (newest first). Only `upcoming` sorts, by start; the others keep the order.
// The query is sought, ignoring case by the locale's rules, in "{name} {email} {notes} {type
// title}".
[[nodiscard]] QList<Booking> filtered(const QList<Booking> &all, Filter filter,
                                      const std::optional<QString> &typeFilter, const QString &query,
                                      const Instant &now, const QString &locale, const TypeTitle &typeTitle);

struct Day {
    QDate day;
    QList<Booking> bookings;
};

// The filtered bookings by the local day of their start in the calendar's zone: the days
// ascending for `upcoming`, the most recent first otherwise. Each day keeps the filtered order.
[[nodiscard]] QList<Day> grouped(QList<Booking> filtered, Filter filter, const WeekCalendar &calendar);

// The start as the guest sees it: "Mar 10, 2026, 3:30 PM (Europe/Berlin)". A zone the
// machine doesn't know gives way to `machineZone`, whose name then shows.
[[nodiscard]] QString theirTime(const Booking &booking, const QString &locale, const QString &machineZone);

// The first word of the name, or empty for a name of blanks only.
[[nodiscard]] QString firstName(const QString &name);
// "Email Ann".
[[nodiscard]] QString emailLabel(const QString &name);

// What a booking offers at a moment, in the list's context menu and in the detail pane.
struct Actions {
    bool join = false;       // it has a meeting link and is on
    bool reschedule = false; // on and not over: reschedule and cancel
    bool noShow = false;     // a confirmed booking that has ended: mark or clear a no-show
    bool operator==(const Actions &) const = default;
};
[[nodiscard]] Actions actions(const Booking &booking, const Instant &now);
// Join from the detail pane needs the meeting still ahead, not only the link.
[[nodiscard]] bool joinsFromDetail(const Booking &booking, const Instant &now);

// The panel shown in place of an empty list.
struct EmptyState {
    QString title;
    QString symbol;
    QString description;
};
[[nodiscard]] EmptyState emptyState(Filter filter, const QString &query);

} // namespace quorvane::Bookings
