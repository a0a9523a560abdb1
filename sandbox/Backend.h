#pragma once

#include "Clock.h"
#include "Pages.h"
#include "Records.h"
#include "Store.h"

#include <QJsonObject>
#include <QRandomGenerator>
#include <QTimeZone>

namespace quorvane::sandbox {

// A booking as a guest asks for it.
struct GuestBooking {
    QString type; // slug
    Instant start;
    QString name;
    QString email;
    QString tz;
    std::optional<QString> notes;
    QList<Answer> answers;
    BookingStatus status = BookingStatus::confirmed;
};

// The service's rules over the store: what the API and the pages both do. Failures are
// thrown as RequestError with the status and words the caller should see.
class Backend
{
public:
    Backend(Store &store, Clock clock, QRandomGenerator &random);

    void setBaseUrl(const QString &base) { m_base = base; }
    [[nodiscard]] const QString &baseUrl() const { return m_base; }
    [[nodiscard]] Instant now() const { return m_clock(); }
    [[nodiscard]] Store &store() { return m_store; }
    [[nodiscard]] QRandomGenerator &random() { return m_random; }

    [[nodiscard]] Account account();
    [[nodiscard]] HostSettings settings() { return m_store.settings(); }
    // Read leniently, as the client reads it: a bad field takes its default.
    HostSettings saveSettings(const QJsonObject &document);
    [[nodiscard]] GoogleStatus google();

    [[nodiscard]] QList<Booking> upcoming();
    [[nodiscard]] QList<Booking> history(const Instant &from);
    [[nodiscard]] QList<Booking> changes(const Instant &since);
    [[nodiscard]] SlotList slots(const QString &typeSlug, int days, const QTimeZone &guestZone);
    [[nodiscard]] QList<Slot> openSlots(const EventType &type, int days, const QTimeZone &guestZone);

    Booking cancel(const QString &id);
    Booking setNoShow(const QString &id, bool value);
    // `checkSlot` holds a guest to the offered times, the active types and the questions;
    // test controls place bookings anywhere.
    Booking book(const GuestBooking &request, bool checkSlot);

    Poll createPoll(const QString &title, const QString &typeSlug);
    void deletePoll(const QString &id);
    Poll vote(const QString &pollId, const QString &name, const QList<int> &options);
    [[nodiscard]] Poll poll(const QString &id);

    QString connectLink();
    // Gives the connected address.
    QString connectCalendar(const QString &nonce);
    void disconnectCalendar();

    [[nodiscard]] EventType type(const QString &slug);
    [[nodiscard]] QString link(const QString &handle, const QString &slug) const;
    [[nodiscard]] QString pollUrl(const QString &id) const;
    [[nodiscard]] Pages::Dashboard dashboard();

private:
    [[nodiscard]] Booking existing(const QString &id);
    [[nodiscard]] Booking newBooking(const GuestBooking &request, const EventType &type, const HostSettings &settings);
    void checkGuest(const GuestBooking &request, const EventType &type);

    Store &m_store;
    Clock m_clock;
    QRandomGenerator &m_random;
    QString m_base;
};

} // namespace quorvane::sandbox
