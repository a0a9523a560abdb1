#include "Backend.h"

#include "ISO.h"
#include "Ids.h"
#include "RequestError.h"
#include "SlotEngine.h"

using namespace Qt::StringLiterals;

namespace quorvane::sandbox {

namespace {

constexpr int pollOptionCount = 4;
constexpr qint64 nonceLifetimeSeconds = 3600;

bool plausibleEmail(const QString &email)
{
    const qsizetype at = email.indexOf(u'@');
    return at > 0 && at < email.size() - 1 && !email.contains(u' ');
}

QList<CalendarItem> defaultCalendars(const Account &account)
{
    return {CalendarItem{account.email, account.name.value_or(account.email), true, true, u"#0A84FF"_s}};
}

} // namespace

Backend::Backend(Store &store, Clock clock, QRandomGenerator &random)
    : m_store(store)
    , m_clock(std::move(clock))
    , m_random(random)
{}

Account Backend::account()
{
    Account a = m_store.account();
    const HostSettings s = m_store.settings();
    const GoogleStatus g = m_store.google();
    if (!s.owner.isEmpty())
        a.name = s.owner;
    a.handle = s.handle;
    a.base = m_base;
    a.google = Account::Google{g.connected, g.connected ? g.email : std::nullopt, g.lastError};
    QList<Account::Link> links;
    for (const EventType &t : s.eventTypes) {
        if (t.isActive)
            links.append({t.title, t.minutes, link(s.handle, t.slug)});
    }
    a.links = links;
    return a;
}

HostSettings Backend::saveSettings(const QJsonObject &document)
{
    const Result<HostSettings> settings = fromJson<HostSettings>(document);
    if (!settings)
        throw RequestError{400, settings.error().description()};
    m_store.setSettings(*settings);
    return m_store.settings();
}

GoogleStatus Backend::google()
{
    GoogleStatus g = m_store.google();
    if (!g.connected) {
        // What a disconnected account still knows stays in the store for the next connect.
        g.email.reset();
        g.connectedAt.reset();
        g.calendars.reset();
    }
    return g;
}

QList<Booking> Backend::upcoming()
{
    return m_store.bookingsEndingAfter(now());
}

QList<Booking> Backend::history(const Instant &from)
{
    return m_store.bookingsStartedBetween(from, now());
}

QList<Booking> Backend::changes(const Instant &since)
{
    return m_store.bookingsUpdatedSince(since);
}

EventType Backend::type(const QString &slug)
{
    for (const EventType &t : m_store.settings().eventTypes) {
        if (t.slug == slug)
            return t;
    }
    throw RequestError{404, u"No event type \"%1\""_s.arg(slug)};
}

QList<Slot> Backend::openSlots(const EventType &type, int days, const QTimeZone &guestZone)
{
    SlotEngine::Query q;
    q.settings = m_store.settings();
    q.type = type;
    q.now = now();
    q.days = days;
    q.guestZone = guestZone;
    // A day either side covers meetings that straddle the window's edges in any zone.
    q.bookings = m_store.bookingsOverlapping(q.now.addDays(-1), q.now.addDays(std::max(days, 0) + 1));
    return SlotEngine::slots(q);
}

SlotList Backend::slots(const QString &typeSlug, int days, const QTimeZone &guestZone)
{
    const EventType t = type(typeSlug);
    return SlotList{t.slug, QString::fromLatin1(SlotEngine::mode), link(m_store.settings().handle, t.slug),
                    openSlots(t, days, guestZone)};
}

Booking Backend::existing(const QString &id)
{
    const std::optional<Booking> b = m_store.booking(id);
    if (!b)
        throw RequestError{404, u"No booking with id \"%1\""_s.arg(id)};
    return *b;
}

Booking Backend::cancel(const QString &id)
{
    Booking b = existing(id);
    if (b.status == BookingStatus::cancelled)
        return b;
    b.status = BookingStatus::cancelled;
    b.updated = now();
    m_store.putBooking(b);
    return b;
}

Booking Backend::setNoShow(const QString &id, bool value)
{
    Booking b = existing(id);
    b.noShow = value;
    b.updated = now();
    m_store.putBooking(b);
    return b;
}

void Backend::checkGuest(const GuestBooking &r, const EventType &t)
{
    if (!t.isActive)
        throw RequestError{404, u"“%1” isn't open for booking"_s.arg(t.title)};
    for (qsizetype i = 0; i < t.questions.size(); ++i) {
        if (i >= r.answers.size() || r.answers.at(i).a.trimmed().isEmpty())
            throw RequestError{400, u"Please answer: %1"_s.arg(t.questions.at(i))};
    }
    const QList<Slot> open = openSlots(t, m_store.settings().horizonDays, QTimeZone());
    const bool offered = std::any_of(open.cbegin(), open.cend(), [&](const Slot &s) { return s.start == r.start; });
    if (!offered)
        throw RequestError{409, u"That time is no longer available. Please pick another."_s};
}

Booking Backend::newBooking(const GuestBooking &r, const EventType &t, const HostSettings &s)
{
    Booking b;
    b.id = Ids::uuid(m_random);
    b.type = t.slug;
    b.start = r.start.toUTC();
    b.end = b.start.addSecs(60LL * t.minutes);
    b.name = r.name.trimmed();
    b.email = r.email.trimmed();
    b.tz = QTimeZone(r.tz.toUtf8()).isValid() ? r.tz : s.timezone;
    if (r.notes && !r.notes->trimmed().isEmpty())
        b.notes = r.notes->trimmed();
    b.status = r.status;
    if (t.location == MeetingLocation::meet && s.addMeet)
        b.meet = Ids::meetLink(m_random);
    b.inCalendar = m_store.google().connected;
    b.created = now();
    b.updated = b.created;
    if (!r.answers.isEmpty())
        b.answers = r.answers;
    return b;
}

Booking Backend::book(const GuestBooking &r, bool checkSlot)
{
    if (r.name.trimmed().isEmpty())
        throw RequestError{400, u"Please give your name"_s};
    if (!plausibleEmail(r.email.trimmed()))
        throw RequestError{400, u"Please give a valid email address"_s};
    if (!r.start.isValid())
        throw RequestError{400, u"Please pick a time"_s};
    const EventType t = type(r.type);
    if (checkSlot)
        checkGuest(r, t);
    const Booking b = newBooking(r, t, m_store.settings());
    m_store.putBooking(b);
    return b;
}

Poll Backend::poll(const QString &id)
{
    const std::optional<Poll> p = m_store.poll(id);
    if (!p)
        throw RequestError{404, u"No poll with id \"%1\""_s.arg(id)};
    return *p;
}

Poll Backend::createPoll(const QString &title, const QString &typeSlug)
{
    if (title.trimmed().isEmpty())
        throw RequestError{400, u"A poll needs a title"_s};
    const EventType t = type(typeSlug);
    const HostSettings s = m_store.settings();
    const QList<Slot> best = SlotEngine::bestOnDifferentDays(openSlots(t, s.horizonDays, QTimeZone()), pollOptionCount,
                                                             SlotEngine::hostZone(s));
    if (best.isEmpty())
        throw RequestError{409, u"No open times to offer"_s};
    Poll p{Ids::uuid(m_random), title, t.minutes, false, {}, {}};
    for (const Slot &slot : best)
        p.options.append({slot.start, 0});
    m_store.putPoll(p);
    return p;
}

void Backend::deletePoll(const QString &id)
{
    if (!m_store.removePoll(id))
        throw RequestError{404, u"No poll with id \"%1\""_s.arg(id)};
}

Poll Backend::vote(const QString &pollId, const QString &name, const QList<int> &options)
{
    Poll p = poll(pollId);
    const QString voter = name.trimmed();
    if (p.booked)
        throw RequestError{409, u"This poll is closed"_s};
    if (voter.isEmpty())
        throw RequestError{400, u"Please give your name"_s};
    if (p.voters.contains(voter, Qt::CaseInsensitive))
        throw RequestError{409, u"%1 has already voted"_s.arg(voter)};
    if (options.isEmpty())
        throw RequestError{400, u"Pick at least one time"_s};
    for (const int i : options) {
        if (i < 0 || i >= p.options.size())
            throw RequestError{400, u"That time isn't part of this poll"_s};
    }
    for (const int i : QSet<int>(options.cbegin(), options.cend()))
        ++p.options[i].votes;
    p.voters.append(voter);
    m_store.putPoll(p);
    return p;
}

QString Backend::connectLink()
{
    const QString nonce = Ids::hex(*QRandomGenerator::system(), 16);
    m_store.addNonce(nonce, now());
    return m_base + u"/connect/"_s + nonce;
}

QString Backend::connectCalendar(const QString &nonce)
{
    const std::optional<Instant> created = m_store.takeNonce(nonce);
    if (!created || created->secsTo(now()) > nonceLifetimeSeconds)
        throw RequestError{404, u"This link has expired or was already used"_s};
    const Account a = m_store.account();
    GoogleStatus g = m_store.google();
    g.connected = true;
    g.email = a.email;
    g.connectedAt = ISO::secondsString(now());
    g.lastError.reset();
    g.error.reset();
    if (!g.calendars || g.calendars->isEmpty())
        g.calendars = defaultCalendars(a);
    m_store.setGoogle(g);
    return a.email;
}

void Backend::disconnectCalendar()
{
    GoogleStatus g = m_store.google();
    g.connected = false;
    m_store.setGoogle(g);
}

QString Backend::link(const QString &handle, const QString &slug) const
{
    return m_base + u'/' + handle + u'/' + slug;
}

QString Backend::pollUrl(const QString &id) const
{
    return m_base + u"/poll/"_s + id;
}

Pages::Dashboard Backend::dashboard()
{
    Pages::Dashboard d;
    d.now = now();
    d.account = account();
    d.settings = m_store.settings();
    d.google = google();
    d.polls = int(m_store.polls().size());
    for (const Booking &b : upcoming()) {
        if (b.isActive())
            d.upcoming.append(b);
    }
    for (const Booking &b : history(d.now.addDays(-30))) {
        d.pastMonth += b.status == BookingStatus::confirmed ? 1 : 0;
        d.cancelledMonth += b.status == BookingStatus::cancelled ? 1 : 0;
    }
    return d;
}

} // namespace quorvane::sandbox
