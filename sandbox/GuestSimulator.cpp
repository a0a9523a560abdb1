#include "GuestSimulator.h"

#include "DemoData.h"
#include "RequestError.h"

using namespace Qt::StringLiterals;

namespace quorvane::sandbox {

namespace {

// Enough upcoming meetings: from here on guests only cancel, so a long run stays bounded.
constexpr int busyEnough = 40;
constexpr int cancelPercent = 30;
constexpr int favouriteTimes = 8;

QList<Booking> cancellable(Backend &backend)
{
    QList<Booking> out;
    for (const Booking &b : backend.upcoming()) {
        if (b.isActive() && b.start > backend.now())
            out.append(b);
    }
    return out;
}

} // namespace

GuestSimulator::GuestSimulator(Backend &backend, int minSeconds, int maxSeconds, QObject *parent)
    : QObject(parent)
    , m_backend(backend)
    , m_minSeconds(std::max(1, minSeconds))
    , m_maxSeconds(std::max(m_minSeconds, maxSeconds))
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        step();
        scheduleNext();
    });
}

void GuestSimulator::start()
{
    scheduleNext();
}

void GuestSimulator::scheduleNext()
{
    const int seconds = m_minSeconds + int(m_backend.random().bounded(m_maxSeconds - m_minSeconds + 1));
    m_timer.start(seconds * 1000);
}

std::optional<Booking> GuestSimulator::step()
{
    const QList<Booking> active = cancellable(m_backend);
    const bool cancel =
        !active.isEmpty() && (active.size() >= busyEnough || int(m_backend.random().bounded(100)) < cancelPercent);
    try {
        return cancel ? cancelSomething() : bookSomething();
    } catch (const RequestError &) {
        return std::nullopt; // a guest who lost a race for a time just goes away
    }
}

std::optional<Booking> GuestSimulator::bookSomething()
{
    const HostSettings s = m_backend.settings();
    QList<EventType> types;
    std::copy_if(s.eventTypes.cbegin(), s.eventTypes.cend(), std::back_inserter(types),
                 [](const EventType &t) { return t.isActive; });
    if (types.isEmpty())
        return std::nullopt;
    const EventType type = types.at(m_backend.random().bounded(int(types.size())));
    QList<Slot> open = m_backend.openSlots(type, s.horizonDays, QTimeZone());
    if (open.isEmpty())
        return std::nullopt;
    // Guests favour the good times, as they do on a real booking page.
    std::stable_sort(open.begin(), open.end(), [](const Slot &a, const Slot &b) { return a.score > b.score; });
    const Slot slot = open.at(m_backend.random().bounded(int(std::min<qsizetype>(open.size(), favouriteTimes))));
    const DemoData::Guest guest = DemoData::randomGuest(m_backend.random(), s.timezone);
    GuestBooking g{type.slug, slot.start,   guest.name, guest.email,
                   guest.tz,  std::nullopt, {},         BookingStatus::confirmed};
    for (const QString &q : type.questions)
        g.answers.append({q, u"Happy to explain on the call"_s});
    const Booking b = m_backend.book(g, true);
    Q_EMIT acted(u"booked"_s);
    return b;
}

std::optional<Booking> GuestSimulator::cancelSomething()
{
    const QList<Booking> active = cancellable(m_backend);
    if (active.isEmpty())
        return std::nullopt;
    const Booking b = m_backend.cancel(active.at(m_backend.random().bounded(int(active.size()))).id);
    Q_EMIT acted(u"cancelled"_s);
    return b;
}

} // namespace quorvane::sandbox
