#include "DemoData.h"

#include "ISO.h"
#include "Ids.h"
#include "SlotEngine.h"

#include <QHash>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace quorvane::sandbox::DemoData {

namespace {

constexpr int historyDays = 180;
constexpr int aheadDays = 14;
constexpr int gapMinutes = 15;

const QStringList firstNames = {u"Priya"_s, u"Tom"_s,    u"Lena"_s,   u"Marcus"_s, u"Aiko"_s,  u"Sofia"_s,  u"Daniel"_s,
                                u"Chloé"_s, u"Omar"_s,   u"Hannah"_s, u"Mateo"_s,  u"Grace"_s, u"Jonas"_s,  u"Amara"_s,
                                u"Liam"_s,  u"Yuki"_s,   u"Noah"_s,   u"Elif"_s,   u"Ravi"_s,  u"Isabel"_s, u"Felix"_s,
                                u"Zoe"_s,   u"Samuel"_s, u"Ingrid"_s, u"Kwame"_s,  u"Mei"_s,   u"Lucas"_s,  u"Nora"_s,
                                u"Diego"_s, u"Freya"_s,  u"Ahmed"_s,  u"Clara"_s};
const QStringList lastNames = {u"Shah"_s,     u"Becker"_s, u"Fischer"_s, u"Hill"_s,   u"Tanaka"_s, u"Rossi"_s,
                               u"Okafor"_s,   u"Dubois"_s, u"Haddad"_s,  u"Murphy"_s, u"García"_s, u"Lindqvist"_s,
                               u"Novak"_s,    u"Mensah"_s, u"O'Brien"_s, u"Sato"_s,   u"Walker"_s, u"Yılmaz"_s,
                               u"Iyer"_s,     u"Costa"_s,  u"Wagner"_s,  u"Chen"_s,   u"Park"_s,   u"Andersen"_s,
                               u"Kowalski"_s, u"Nguyen"_s};
const QStringList domains = {u"gmail.com"_s, u"outlook.com"_s,      u"fastmail.com"_s, u"northwind.io"_s,
                             u"acme.co"_s,   u"studio-lumen.com"_s, u"hey.com"_s,      u"proton.me"_s};
const QStringList guestZones = {u"Europe/London"_s, u"America/New_York"_s, u"America/Los_Angeles"_s, u"Europe/Berlin"_s,
                                u"Asia/Tokyo"_s,    u"Australia/Sydney"_s, u"Asia/Kolkata"_s};
const QStringList notes = {u"Looking forward to it!"_s,
                           u"Could we look at the Q3 numbers?"_s,
                           u"I'll bring the latest draft."_s,
                           u"Might be a few minutes late, sorry."_s,
                           u"Happy to switch to a phone call if that's easier."_s,
                           u"First time booking — thanks!"_s};
const QStringList focusAnswers = {u"Pricing for the new plan"_s, u"Migrating our team's calendars"_s,
                                  u"Feedback on the prototype"_s, u"Hiring a second designer"_s,
                                  u"Our launch timeline"_s};
const QStringList companies = {u"Northwind"_s, u"Acme Co"_s, u"Studio Lumen"_s, u"Freelance"_s, u"Harbour Labs"_s};

// Meetings per weekday (Monday … Friday): midweek is busiest, Friday lightest.
constexpr double weekdayMean[] = {2.2, 3.0, 3.2, 2.8, 1.6};

template <class T>
const T &pick(QRandomGenerator &rng, const QList<T> &list)
{
    return list.at(rng.bounded(int(list.size())));
}

bool chance(QRandomGenerator &rng, int percent)
{
    return int(rng.bounded(100)) < percent;
}

// How likely a meeting starts at this minute of the day: mid-morning most, early
// afternoon next.
int hourWeight(int minute)
{
    const int morning = std::max(0, 12 - std::abs(minute - 630) / 20);
    const int afternoon = std::max(0, 6 - std::abs(minute - 870) / 20);
    return 1 + morning + afternoon;
}

EventType eventType(QRandomGenerator &rng, const QString &slug, const QString &title, int minutes, int before,
                    int after, const QString &color)
{
    EventType t;
    t.id = Ids::uuid(rng);
    t.slug = slug;
    t.title = title;
    t.minutes = minutes;
    t.bufferBefore = before;
    t.bufferAfter = after;
    t.colorHex = color;
    return t;
}

QList<DayAvailability> weekdayHours()
{
    QList<DayAvailability> out;
    for (int day = 2; day <= 6; ++day)
        out.append({day, {{9 * 60, 12 * 60 + 30}, {13 * 60 + 30, 17 * 60}}});
    return out;
}

// Places meetings on local days without overlaps, inside the host's hours.
class Planner
{
public:
    Planner(Store &store, QRandomGenerator &rng, HostSettings settings, Instant now)
        : m_store(store)
        , m_rng(rng)
        , m_settings(std::move(settings))
        , m_zone(SlotEngine::hostZone(m_settings))
        , m_now(std::move(now))
    {
        for (const EventType &t : m_settings.eventTypes)
            m_types.append(t);
    }

    void fillDay(const QDate &date, int count, bool past);
    void add(const Instant &start, const EventType &type, BookingStatus status);
    [[nodiscard]] const QList<EventType> &types() const { return m_types; }

private:
    [[nodiscard]] QList<QPair<int, int>> candidates(const QDate &date, const EventType &type);
    [[nodiscard]] std::optional<int> freeMinute(const QDate &date, const EventType &type);
    [[nodiscard]] const EventType &randomType(bool past);
    [[nodiscard]] BookingStatus randomStatus(bool past);
    [[nodiscard]] Booking booking(const Instant &start, const EventType &type, BookingStatus status);

    Store &m_store;
    QRandomGenerator &m_rng;
    HostSettings m_settings;
    QTimeZone m_zone;
    Instant m_now;
    QList<EventType> m_types;
    QHash<QDate, QList<QPair<int, int>>> m_taken;
};

QList<QPair<int, int>> Planner::candidates(const QDate &date, const EventType &type)
{
    const int day = SlotEngine::weekday(date);
    const QList<QPair<int, int>> &taken = m_taken[date];
    QList<QPair<int, int>> out; // minute, weight
    for (const DayAvailability &a : m_settings.availability) {
        if (a.weekday != day)
            continue;
        for (const TimeRange &r : a.ranges) {
            for (int m = r.start; m + type.minutes <= r.end; m += SlotEngine::gridMinutes) {
                const auto clash = [&](const QPair<int, int> &t) {
                    return m < t.second + gapMinutes && t.first < m + type.minutes + gapMinutes;
                };
                const auto focus = [&](const FocusBlock &f) {
                    return f.weekday == day && m < f.range.end && f.range.start < m + type.minutes;
                };
                if (std::none_of(taken.cbegin(), taken.cend(), clash)
                    && std::none_of(m_settings.focusBlocks.cbegin(), m_settings.focusBlocks.cend(), focus))
                    out.append({m, hourWeight(m)});
            }
        }
    }
    return out;
}

std::optional<int> Planner::freeMinute(const QDate &date, const EventType &type)
{
    const QList<QPair<int, int>> options = candidates(date, type);
    int total = 0;
    for (const auto &option : options)
        total += option.second;
    if (total == 0)
        return std::nullopt;
    int roll = int(m_rng.bounded(total));
    for (const auto &[minute, weight] : options) {
        if ((roll -= weight) < 0)
            return minute;
    }
    return std::nullopt;
}

const EventType &Planner::randomType(bool past)
{
    // Intro calls are most of the work; the workshop was only booked before it was retired.
    const int roll = int(m_rng.bounded(100));
    const int index = roll < 48 ? 0 : roll < 74 ? 1 : roll < 94 ? 2 : 3;
    return m_types.at(index == 3 && !past ? 0 : index);
}

BookingStatus Planner::randomStatus(bool past)
{
    const int roll = int(m_rng.bounded(100));
    if (past)
        return roll < 88 ? BookingStatus::confirmed : roll < 98 ? BookingStatus::cancelled : BookingStatus::rejected;
    return roll < 84 ? BookingStatus::confirmed : roll < 93 ? BookingStatus::pending : BookingStatus::cancelled;
}

Booking Planner::booking(const Instant &start, const EventType &type, BookingStatus status)
{
    const Guest guest = randomGuest(m_rng, m_settings.timezone);
    Booking b;
    b.id = Ids::uuid(m_rng);
    b.type = type.slug;
    b.start = start;
    b.end = start.addSecs(60LL * type.minutes);
    b.name = guest.name;
    b.email = guest.email;
    b.tz = guest.tz;
    b.status = status;
    if (chance(m_rng, 20))
        b.notes = pick(m_rng, notes);
    if (type.location == MeetingLocation::meet && m_settings.addMeet)
        b.meet = Ids::meetLink(m_rng);
    b.inCalendar = status != BookingStatus::cancelled && status != BookingStatus::rejected;
    const qint64 lead = 3600LL * (2 + m_rng.bounded(24 * 12));
    b.created = std::min(start.addSecs(-lead), m_now.addSecs(-600));
    b.updated = b.created;
    if (status == BookingStatus::cancelled || status == BookingStatus::rejected)
        b.updated = std::min(b.created->addSecs(b.created->secsTo(start) / 2), m_now.addSecs(-300));
    if (status == BookingStatus::confirmed && b.end < m_now && chance(m_rng, 5)) {
        b.noShow = true;
        b.updated = std::min(b.end.addSecs(3600), m_now);
    }
    QList<Answer> answers;
    for (const QString &q : type.questions) {
        const QString a = q.startsWith(u"Company"_s)       ? pick(m_rng, companies)
                          : q.startsWith(u"Best number"_s) ? u"+44 20 7946 0%1"_s.arg(100 + m_rng.bounded(900))
                                                           : pick(m_rng, focusAnswers);
        answers.append({q, a});
    }
    if (!answers.isEmpty())
        b.answers = answers;
    return b;
}

void Planner::add(const Instant &start, const EventType &type, BookingStatus status)
{
    const QDateTime local = start.toTimeZone(m_zone);
    const int minute = local.time().hour() * 60 + local.time().minute();
    m_taken[local.date()].append({minute, minute + type.minutes});
    m_store.putBooking(booking(start, type, status));
}

void Planner::fillDay(const QDate &date, int count, bool past)
{
    for (int i = 0; i < count; ++i) {
        const EventType &type = randomType(past);
        const std::optional<int> minute = freeMinute(date, type);
        if (!minute)
            return;
        const QDateTime local(date, QTime(*minute / 60, *minute % 60), m_zone);
        if (!local.isValid())
            continue;
        add(local.toUTC(), type, randomStatus(past));
    }
}

// Draws a count around `mean` (a sum of coin flips, so days vary but stay plausible).
int meetingCount(QRandomGenerator &rng, double mean)
{
    int count = 0;
    for (int i = 0; i < 6; ++i)
        count += rng.generateDouble() < mean / 6.0 ? 1 : 0;
    return count;
}

void seedHistoryAndAhead(Planner &planner, QRandomGenerator &rng, const QDate &today)
{
    for (int back = historyDays; back >= 1; --back) {
        const QDate date = today.addDays(-back);
        const int weekday = date.dayOfWeek();
        if (weekday > 5)
            continue;
        // The practice grew over the half year: fewer meetings early on.
        const double growth = 0.7 + 0.3 * double(historyDays - back) / historyDays;
        planner.fillDay(date, meetingCount(rng, weekdayMean[weekday - 1] * growth), true);
    }
    for (int ahead = 1; ahead <= aheadDays; ++ahead) {
        const QDate date = today.addDays(ahead);
        if (date.dayOfWeek() > 5)
            continue;
        // Near days are fuller: guests book a few days out.
        const double fill = std::max(0.2, 1.0 - double(ahead) / 16.0);
        planner.fillDay(date, std::max(1, meetingCount(rng, weekdayMean[date.dayOfWeek() - 1] * fill)), false);
    }
}

// Several meetings today whatever the hour: one under way, the rest later, and earlier
// ones when the day is nearly over.
void seedToday(Planner &planner, const Instant &now, const QTimeZone &zone)
{
    const qint64 quarter = 15 * 60;
    const Instant floor = QDateTime::fromSecsSinceEpoch(now.toSecsSinceEpoch() / quarter * quarter, Qt::UTC);
    const QDate today = now.toTimeZone(zone).date();
    const QList<EventType> &t = planner.types();
    const QList<QPair<qint64, int>> plan = {{-15 * 60, 0}, {60 * 60, 1},   {195 * 60, 2},
                                            {285 * 60, 0}, {-150 * 60, 2}, {-300 * 60, 0}};
    int placed = 0;
    for (const auto &[offset, typeIndex] : plan) {
        const Instant start = floor.addSecs(offset);
        const EventType &type = t.at(typeIndex);
        if (start.toTimeZone(zone).date() != today
            || start.addSecs(60LL * type.minutes).toTimeZone(zone).date() != today)
            continue;
        if (offset < 0 && placed >= 3 && start.addSecs(60LL * type.minutes) < now)
            continue;
        planner.add(start, type, BookingStatus::confirmed);
        ++placed;
    }
}

Poll poll(QRandomGenerator &rng, const QString &title, const EventType &type, const QList<Slot> &options, int voters)
{
    Poll p{Ids::uuid(rng), title, type.minutes, false, {}, {}};
    for (const Slot &s : options)
        p.options.append({s.start, 0});
    while (p.voters.size() < voters && !p.options.isEmpty()) {
        const QString name = pick(rng, firstNames) + u' ' + pick(rng, lastNames);
        if (p.voters.contains(name))
            continue;
        p.voters.append(name);
        bool any = false;
        for (Poll::Option &o : p.options) {
            const bool yes = chance(rng, 55);
            o.votes += yes ? 1 : 0;
            any = any || yes;
        }
        if (!any)
            ++p.options[rng.bounded(int(p.options.size()))].votes;
    }
    return p;
}

void seedPolls(Store &store, QRandomGenerator &rng, const HostSettings &s, const Instant &now)
{
    const auto best = [&](const EventType &type) {
        SlotEngine::Query q{s,   type,          store.bookingsOverlapping(now.addDays(-1), now.addDays(aheadDays + 1)),
                            now, s.horizonDays, QTimeZone()};
        return SlotEngine::bestOnDifferentDays(SlotEngine::slots(q), 4, SlotEngine::hostZone(s));
    };
    store.putPoll(poll(rng, u"Quarterly roadmap review"_s, s.eventTypes.at(1), best(s.eventTypes.at(1)), 5));
    store.putPoll(poll(rng, u"Design crit with the team"_s, s.eventTypes.at(0), best(s.eventTypes.at(0)), 3));
}

GoogleStatus connectedCalendar(const Account &a, const Instant &now)
{
    GoogleStatus g;
    g.connected = true;
    g.email = a.email;
    g.connectedAt = ISO::secondsString(now.addDays(-92));
    g.calendars = QList<CalendarItem>{
        {u"primary"_s, a.name, true, true, u"#0A84FF"_s},
        {u"team"_s, u"Team"_s, false, true, u"#30D158"_s},
        {u"holidays"_s, u"Holidays"_s, false, false, u"#FF9F0A"_s},
    };
    return g;
}

} // namespace

QString machineZone()
{
    const QByteArray id = QTimeZone::systemTimeZoneId();
    return id.isEmpty() || !QTimeZone(id).isValid() ? u"UTC"_s : QString::fromUtf8(id);
}

Guest randomGuest(QRandomGenerator &rng, const QString &hostZone)
{
    const QString first = pick(rng, firstNames);
    const QString last = pick(rng, lastNames);
    QString local = (first + u'.' + last).toLower();
    local.remove(u'\'');
    local = local.normalized(QString::NormalizationForm_KD);
    local.removeIf([](QChar c) { return c.unicode() > 127; });
    return {first + u' ' + last, local + u'@' + pick(rng, domains), chance(rng, 60) ? hostZone : pick(rng, guestZones)};
}

HostSettings demoSettings(const QString &zoneId, QRandomGenerator &rng)
{
    HostSettings s;
    s.owner = u"Jordan Reyes"_s;
    s.handle = u"jordan"_s;
    s.timezone = zoneId;
    EventType intro = eventType(rng, u"intro"_s, u"Intro Call"_s, 30, 0, 5, u"#0A84FF"_s);
    intro.description = u"A first conversation to see how we might work together."_s;
    EventType consult = eventType(rng, u"consultation"_s, u"Project Consultation"_s, 60, 10, 10, u"#30D158"_s);
    consult.description = u"A deep dive into your project. Bring your questions."_s;
    consult.questions = {u"What would you like to focus on?"_s, u"Company or team"_s};
    EventType phone = eventType(rng, u"phone-checkin"_s, u"Phone Check-in"_s, 15, 0, 0, u"#FF9F0A"_s);
    phone.location = MeetingLocation::phone;
    phone.questions = {u"Best number to reach you"_s};
    EventType workshop = eventType(rng, u"workshop"_s, u"Design Workshop"_s, 90, 15, 15, u"#BF5AF2"_s);
    workshop.isActive = false;
    workshop.location = MeetingLocation::in_person;
    workshop.locationDetail = u"Studio 4, 12 Harbour Street"_s;
    s.eventTypes = {intro, consult, phone, workshop};
    s.availability = weekdayHours();
    s.focusBlocks = {{Ids::uuid(rng), 3, {9 * 60, 10 * 60 + 30}, u"Deep work"_s},
                     {Ids::uuid(rng), 5, {14 * 60, 16 * 60}, u"Writing"_s}};
    s.maxMeetingsPerDay = 6;
    s.busyCalendarIDs = {u"primary"_s, u"team"_s};
    return s;
}

void seed(Store &store, const Instant &now, QRandomGenerator &rng, const QString &zoneId)
{
    store.transaction([&] {
        Account account;
        account.id = 10000 + rng.bounded(90000);
        account.email = u"jordan.reyes@example.com"_s;
        account.name = u"Jordan Reyes"_s;
        store.setAccount(account);
        const HostSettings settings = demoSettings(zoneId, rng);
        store.setSettings(settings);
        store.setGoogle(connectedCalendar(account, now));
        Planner planner(store, rng, settings, now);
        const QTimeZone zone = SlotEngine::hostZone(settings);
        seedToday(planner, now, zone);
        seedHistoryAndAhead(planner, rng, now.toTimeZone(zone).date());
        seedPolls(store, rng, settings, now);
    });
}

void seedEmpty(Store &store, const QString &zoneId)
{
    Account account;
    account.id = 1;
    account.email = u"host@example.com"_s;
    account.name = u"Host"_s;
    HostSettings s;
    s.owner = u"Host"_s;
    s.handle = u"host"_s;
    s.timezone = zoneId;
    EventType meeting;
    meeting.id = newRecordId();
    meeting.slug = u"meeting"_s;
    meeting.title = u"30 Minute Meeting"_s;
    s.eventTypes = {meeting};
    for (int day = 2; day <= 6; ++day)
        s.availability.append({day, {{9 * 60, 17 * 60}}});
    store.transaction([&] {
        store.setAccount(account);
        store.setSettings(s);
        store.setGoogle(GoogleStatus{});
    });
}

} // namespace quorvane::sandbox::DemoData
