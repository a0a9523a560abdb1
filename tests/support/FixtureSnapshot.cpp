#include "FixtureSnapshot.h"

#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace quorvane::test::FixtureSnapshot {

namespace {

const QTimeZone newYork(QByteArrayLiteral("America/New_York"));

// A local New York time, `dayOffset` days from the fixture's today.
Instant at(int dayOffset, int hour, int minute)
{
    return QDateTime(QDate(2026, 3, 10).addDays(dayOffset), QTime(hour, minute), newYork).toUTC();
}

EventType eventType(const QString &slug, const QString &title, int minutes, const QString &color, bool active,
                    MeetingLocation location)
{
    EventType t;
    t.id = u"et-"_s + slug;
    t.slug = slug;
    t.title = title;
    t.minutes = minutes;
    t.colorHex = color;
    t.isActive = active;
    t.location = location;
    t.bufferAfter = minutes >= 60 ? 10 : 0;
    return t;
}

struct Guest {
    const char *name;
    const char *email;
    const char *tz;
};

Booking booking(int n, const QString &type, int minutes, Instant start, const Guest &guest,
                BookingStatus status = BookingStatus::confirmed)
{
    Booking b;
    b.id = u"bk-%1"_s.arg(n, 3, 10, QLatin1Char('0'));
    b.type = type;
    b.start = start;
    b.end = start.addSecs(minutes * 60);
    b.name = QString::fromUtf8(guest.name);
    b.email = QString::fromUtf8(guest.email);
    b.tz = QString::fromUtf8(guest.tz);
    b.status = status;
    b.meet = u"https://meet.google.com/qvn-%1-ilse"_s.arg(n, 4, 10, QLatin1Char('0'));
    b.inCalendar = true;
    b.created = start.addDays(-4);
    return b;
}

HostSettings settings()
{
    HostSettings s;
    s.owner = u"Ilse Varga"_s;
    s.handle = u"ilse"_s;
    s.timezone = u"America/New_York"_s;
    s.eventTypes = {
        eventType(u"intro"_s, u"Intro Call"_s, 15, u"#34C759"_s, true, MeetingLocation::meet),
        eventType(u"consult"_s, u"Consultation"_s, 30, u"#0A84FF"_s, true, MeetingLocation::meet),
        eventType(u"deep-dive"_s, u"Deep Dive"_s, 60, u"#AF52DE"_s, true, MeetingLocation::meet),
        eventType(u"office-hours"_s, u"Office Hours"_s, 45, u"#FF9F0A"_s, false, MeetingLocation::in_person),
    };
    s.eventTypes[0].description = u"A quick hello to see whether we fit."_s;
    s.eventTypes[2].questions = {u"What should we cover?"_s};
    s.eventTypes[3].locationDetail = u"Studio, 4th floor"_s;
    for (int weekday = 2; weekday <= 6; ++weekday) // Monday to Friday; Friday ends at one
        s.availability.append(DayAvailability{weekday, {TimeRange{540, weekday == 6 ? 780 : 1020}}});
    s.focusBlocks = {FocusBlock{u"fb-lunch"_s, 4, TimeRange{720, 780}, u"Lunch"_s}};
    return s;
}

const Guest guests[] = {
    {"Priya Raman", "priya@lumenfield.io", "America/New_York"},
    {"Tomás Ferreira", "tomas@ferreira.pt", "Europe/Lisbon"},
    {"Hannah Okafor", "hannah.okafor@northwind.org", "America/Chicago"},
    {"Wen Zhao", "wen@zhao.design", "Asia/Singapore"},
    {"Leah Goldberg", "leah@goldberg.law", "America/New_York"},
    {"Jonas Becker", "jonas.becker@kraftwerk.de", "Europe/Berlin"},
    {"Amara Nwosu", "amara@nwosu.co", "Europe/London"},
    {"Sofia Marchetti", "sofia@marchetti.it", "Europe/Rome"},
    {"Diego Alvarez", "diego@alvarez.mx", "America/Mexico_City"},
    {"Marcus Lindqvist", "marcus@lindqvist.se", "Europe/Stockholm"},
    {"Noor Haddad", "noor@haddad.ae", "Asia/Dubai"},
    {"Ben Carter", "ben.carter@fastmail.com", "America/Los_Angeles"},
};

QList<Booking> upcoming()
{
    QList<Booking> list = {
        booking(1, u"consult"_s, 30, at(0, 9, 30), guests[0]), // in progress at 09:40
        booking(2, u"intro"_s, 15, at(0, 11, 0), guests[1]),
        booking(3, u"deep-dive"_s, 60, at(0, 13, 0), guests[2]),
        booking(4, u"consult"_s, 30, at(0, 15, 30), guests[3], BookingStatus::pending),
        booking(5, u"consult"_s, 30, at(1, 10, 0), guests[4]),
        booking(6, u"deep-dive"_s, 60, at(2, 14, 0), guests[5]),
        booking(7, u"intro"_s, 15, at(3, 9, 15), guests[6]),
        booking(8, u"consult"_s, 30, at(2, 16, 0), guests[7], BookingStatus::cancelled),
        booking(9, u"retired-type"_s, 30, at(6, 10, 30), guests[8]),
    };
    list[2].notes = u"Bring the Q1 numbers; we'll go through the onboarding funnel."_s;
    list[2].answers = QList<Answer>{{u"What should we cover?"_s, u"Pricing tiers and the rollout plan"_s}};
    list[6].meet.reset(); // booked before links were added: nothing to join
    return list;
}

QList<Booking> history()
{
    const char *types[] = {"consult", "intro", "deep-dive", "consult", "intro"};
    const int lengths[] = {30, 15, 60, 30, 15};
    QList<Booking> list;
    list.append(booking(20, u"consult"_s, 30, at(0, 9, 0), guests[9])); // earlier this morning
    for (int i = 0; i < 24; ++i) {
        const int day = -1 - i * 3 - (i % 2);
        const int t = i % 5;
        BookingStatus status = BookingStatus::confirmed;
        if (i % 7 == 3)
            status = BookingStatus::cancelled;
        Booking b = booking(21 + i, QString::fromLatin1(types[t]), lengths[t], at(day, 9 + (i * 5) % 8, (i % 2) * 30),
                            guests[(i + 2) % 12], status);
        if (i % 9 == 5)
            b.noShow = true;
        list.append(b);
    }
    return list;
}

QList<Poll> polls()
{
    Poll planning{u"poll-q2"_s, u"Q2 planning sync"_s, 30, false, {u"Priya"_s, u"Jonas"_s, u"Leah"_s}, {}};
    planning.options = {{at(3, 10, 0), 3}, {at(3, 14, 0), 1}, {at(6, 11, 0), 2}};
    Poll review{u"poll-design"_s, u"Design review"_s, 60, true, {u"Amara"_s, u"Wen"_s}, {}};
    review.options = {{at(1, 15, 0), 2}, {at(2, 9, 30), 0}};
    return {planning, review};
}

Account account()
{
    Account a;
    a.id = 4182;
    a.email = u"ilse@varga.studio"_s;
    a.name = u"Ilse Varga"_s;
    a.handle = u"ilse"_s;
    a.google = Account::Google{true, u"ilse.varga@gmail.com"_s, std::nullopt};
    return a;
}

GoogleStatus google()
{
    GoogleStatus g;
    g.connected = true;
    g.email = u"ilse.varga@gmail.com"_s;
    g.connectedAt = u"2025-11-02T15:12:00Z"_s;
    g.calendars = QList<CalendarItem>{{u"primary"_s, u"Ilse Varga"_s, true, true, u"#0A84FF"_s},
                                      {u"team@varga.studio"_s, u"Studio"_s, false, true, u"#34C759"_s}};
    return g;
}

} // namespace

Instant now()
{
    return QDateTime(QDate(2026, 3, 10), QTime(13, 40), Qt::UTC);
}

Snapshot make()
{
    Snapshot s;
    s.account = account();
    s.settings = settings();
    s.upcoming = upcoming();
    s.history = history();
    s.polls = polls();
    s.google = google();
    s.savedAt = now().addSecs(-120);
    return s;
}

Snapshot empty()
{
    Snapshot s = make();
    s.upcoming.clear();
    s.history.clear();
    s.polls.clear();
    return s;
}

} // namespace quorvane::test::FixtureSnapshot
