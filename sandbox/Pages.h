#pragma once

#include "Records.h"
#include "Store.h"

#include <QTimeZone>

// The pages a person opens in a browser: plain HTML, rendered on the server.
namespace quorvane::sandbox::Pages {

// What a guest typed into the booking form, kept to fill it again after a mistake.
struct BookingForm {
    QString start; // the chosen slot, as its ISO text
    QString name;
    QString email;
    QString notes;
    QString tz;
    QStringList answers; // one per question, in order
};

struct BookingPage {
    HostSettings settings;
    EventType type;
    QList<Slot> slots;
    BookingForm form;
    QString error;
    Instant now;
};

struct Dashboard {
    Account account;
    HostSettings settings;
    GoogleStatus google;
    QList<Booking> upcoming; // active and not ended, soonest first
    int pastMonth = 0;       // confirmed in the last 30 days
    int cancelledMonth = 0;
    int polls = 0;
    Instant now;
};

[[nodiscard]] QString errorPage(int status, const QString &message);
[[nodiscard]] QString devicePage(const DeviceGrant &grant);
[[nodiscard]] QString deviceApprovedPage(const DeviceGrant &grant);
[[nodiscard]] QString hostPage(const HostSettings &settings, const QString &name);
[[nodiscard]] QString bookingPage(const BookingPage &page);
[[nodiscard]] QString bookedPage(const Booking &booking, const EventType &type, const HostSettings &settings);
[[nodiscard]] QString pollPage(const Poll &poll, const QTimeZone &zone, const QString &error, const Instant &now);
[[nodiscard]] QString votedPage(const Poll &poll, const QString &name);
[[nodiscard]] QString connectedPage(const QString &email);
[[nodiscard]] QString dashboard(const Dashboard &d);

} // namespace quorvane::sandbox::Pages
