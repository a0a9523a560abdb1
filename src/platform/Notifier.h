#pragma once

#include "Booking.h"
#include "ChangeEvent.h"

#include <QCoroTask>
#include <QHash>
#include <QList>
#include <QObject>
#include <QUrl>

namespace quorvane {

// The desktop's notifications as the app uses them: announcements of booking changes, and
// reminders shortly before meetings that the app keeps pending until they are due.
class Notifier : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    // Shows at once that the event's booking was made or cancelled; a repeat replaces the earlier one.
    virtual void announce(const ChangeEvent &event, const QString &typeTitle) = 0;

    // Replaces all pending reminders by those of `bookings` that fall in the next two days.
    // `titles` maps event type slugs to their titles.
    virtual void scheduleReminders(const QList<Booking> &bookings, int minutesBefore,
                                   const QHash<QString, QString> &titles) = 0;

    // Drops every pending request, whatever its kind.
    virtual void removeAll() = 0;

    // Whether notifications can be shown at all.
    virtual QCoro::Task<bool> authorized() = 0;
    // Asks for permission where the desktop has such a thing; never fails, answers as authorized().
    virtual QCoro::Task<bool> requestAuthorization() = 0;

Q_SIGNALS:
    // The user chose "Join Meet" on a reminder with a usable link.
    void joinRequested(const QUrl &meet);
    // Any other answer: bring the app to the front. The token, when the desktop gave one,
    // lets the window be raised properly (Wayland's activation protocol).
    void activateRequested(const QString &activationToken);
};

} // namespace quorvane
