#include "Pages.h"

#include "Html.h"
#include "ISO.h"
#include "SlotEngine.h"

using namespace Qt::StringLiterals;
using quorvane::sandbox::Html::escape;

namespace quorvane::sandbox::Pages {

namespace {

QString card(const QString &inner)
{
    return u"<section class=\"card\">"_s + inner + u"</section>\n"_s;
}

QString statusPill(BookingStatus status)
{
    if (status == BookingStatus::confirmed)
        return {};
    const QString raw = Status::rawValue(status);
    return u" <span class=\"pill "_s + raw + u"\">"_s + raw + u"</span>"_s;
}

QString typeTitle(const HostSettings &settings, const QString &slug)
{
    for (const EventType &t : settings.eventTypes) {
        if (t.slug == slug)
            return t.title;
    }
    return u"Meeting"_s;
}

QString typeColor(const HostSettings &settings, const QString &slug)
{
    for (const EventType &t : settings.eventTypes) {
        if (t.slug == slug)
            return t.colorHex;
    }
    return u"#8E8E93"_s;
}

QString whereText(const EventType &type)
{
    switch (type.location) {
    case MeetingLocation::meet:
        return u"Google Meet"_s;
    case MeetingLocation::phone:
        return u"Phone call"_s;
    case MeetingLocation::in_person:
        return u"In person"_s + (type.locationDetail.isEmpty() ? QString() : u", "_s + type.locationDetail);
    case MeetingLocation::custom:
        return type.locationDetail.isEmpty() ? u"Custom"_s : type.locationDetail;
    }
    return {};
}

QString field(const QString &label, const QString &input)
{
    return u"<label>"_s + escape(label) + u"</label>"_s + input;
}

QString textInput(const QString &name, const QString &type, const QString &value)
{
    return u"<input type=\"%1\" name=\"%2\" value=\"%3\" required>"_s.arg(type, name, escape(value));
}

// The free times, one row of buttons per day, as radio inputs named "start".
QString slotPicker(const BookingPage &p, const QTimeZone &zone)
{
    if (p.slots.isEmpty())
        return u"<p class=\"muted\">No open times in the next days. Please check back later.</p>"_s;
    QString out = u"<fieldset>"_s;
    QString currentDay;
    for (const Slot &slot : p.slots) {
        const QString day = Html::day(slot.start, zone);
        if (day != currentDay) {
            out += (currentDay.isEmpty() ? QString() : u"</div>"_s) + u"<div class=\"day\">"_s + escape(day)
                   + u"</div><div class=\"slots\">"_s;
            currentDay = day;
        }
        const QString value = ISO::secondsString(slot.start);
        out += u"<label><input type=\"radio\" name=\"start\" value=\"%1\"%2 required><span>%3</span></label>"_s.arg(
            value, value == p.form.start ? u" checked"_s : QString(), escape(Html::time(slot.start, zone)));
    }
    return out + u"</div></fieldset>"_s;
}

QString questionFields(const BookingPage &p)
{
    QString out;
    for (qsizetype i = 0; i < p.type.questions.size(); ++i) {
        const QString value = i < p.form.answers.size() ? p.form.answers.at(i) : QString();
        out += field(p.type.questions.at(i), textInput(u"q%1"_s.arg(i), u"text"_s, value));
    }
    return out;
}

QString upcomingList(const Dashboard &d, const QTimeZone &zone)
{
    if (d.upcoming.isEmpty())
        return u"<p class=\"muted\">Nothing booked yet.</p>"_s;
    QString out = u"<ul class=\"plain\">"_s;
    for (const Booking &b : d.upcoming) {
        out += u"<li><span class=\"swatch\" style=\"background:%1\"></span><div class=\"grow\"><b>%2</b>%3<br>"
               "<span class=\"muted\">%4 · %5</span></div></li>"_s.arg(
                   escape(typeColor(d.settings, b.type)), escape(b.name), statusPill(b.status),
                   escape(Html::dateTime(b.start, zone)), escape(typeTitle(d.settings, b.type)));
    }
    return out + u"</ul>"_s;
}

} // namespace

QString errorPage(int status, const QString &message)
{
    return Html::page(u"Error"_s, card(u"<h1>%1</h1><p class=\"muted\">Error %2</p>"_s.arg(escape(message),
                                                                                           QString::number(status))));
}

QString devicePage(const DeviceGrant &grant)
{
    return Html::page(
        u"Approve sign-in"_s,
        card(u"<h1>Approve this computer?</h1><p class=\"muted\">Quorvane on <b>%1</b> asks to sign in to your "
             "account. Check that the code matches the one on that screen.</p><div class=\"code\">%2</div>"
             "<form method=\"post\" action=\"/device\"><input type=\"hidden\" name=\"code\" value=\"%2\">"
             "<button type=\"submit\">Approve</button></form>"_s.arg(escape(grant.label), escape(grant.userCode))));
}

QString deviceApprovedPage(const DeviceGrant &grant)
{
    return Html::page(u"Approved"_s,
                      card(u"<h1 class=\"ok\">Approved</h1><p><b>%1</b> is signed in. You can close this tab and "
                           "return to Quorvane.</p>"_s.arg(escape(grant.label))));
}

QString hostPage(const HostSettings &settings, const QString &name)
{
    QString list = u"<ul class=\"plain\">"_s;
    int active = 0;
    for (const EventType &t : settings.eventTypes) {
        if (!t.isActive)
            continue;
        ++active;
        list += u"<li><span class=\"swatch\" style=\"background:%1\"></span><div class=\"grow\"><a href=\"/%2/%3\"><b>"
                "%4</b></a><br><span class=\"muted\">%5 min · %6</span></div></li>"_s.arg(
                    escape(t.colorHex), escape(settings.handle), escape(t.slug), escape(t.title),
                    QString::number(t.minutes), escape(whereText(t)));
    }
    list += u"</ul>"_s;
    if (active == 0)
        list = u"<p class=\"muted\">No meeting types are open for booking right now.</p>"_s;
    return Html::page(name, card(u"<h1>%1</h1><p class=\"muted\">Pick a meeting type.</p>"_s.arg(escape(name)) + list));
}

QString bookingPage(const BookingPage &p)
{
    const QTimeZone zone = SlotEngine::hostZone(p.settings);
    const QString error = p.error.isEmpty() ? QString() : u"<div class=\"error\">"_s + escape(p.error) + u"</div>"_s;
    const QString intro =
        u"<h1>%1</h1><p class=\"muted\">%2 min · %3 · with %4</p><p>%5</p>"
        "<p class=\"muted\">Times are shown in %6.</p>"_s.arg(
            escape(p.type.title), QString::number(p.type.minutes), escape(whereText(p.type)), escape(p.settings.owner),
            escape(p.type.description), escape(Html::zoneLabel(zone, p.now)));
    const QString tz = p.form.tz.isEmpty() ? QString::fromUtf8(zone.id()) : p.form.tz;
    const QString form =
        u"<form method=\"post\">"_s + slotPicker(p, zone)
        + field(u"Your name"_s, textInput(u"name"_s, u"text"_s, p.form.name))
        + field(u"Email"_s, textInput(u"email"_s, u"email"_s, p.form.email)) + questionFields(p)
        + field(u"Anything to add? (optional)"_s,
                u"<textarea name=\"notes\">"_s + escape(p.form.notes) + u"</textarea>"_s)
        + u"<input type=\"hidden\" name=\"tz\" id=\"tz\" value=\"%1\">"_s.arg(escape(tz))
        + u"<script>try{document.getElementById('tz').value=Intl.DateTimeFormat().resolvedOptions().timeZone}"
          "catch(e){}</script><button type=\"submit\">Book</button></form>"_s;
    return Html::page(p.type.title, card(error + intro + form));
}

QString bookedPage(const Booking &b, const EventType &type, const HostSettings &settings)
{
    const QTimeZone zone = SlotEngine::hostZone(settings);
    QString details = u"<p><b>%1</b><br>%2 – %3 (%4)</p><p>%5 &lt;%6&gt;</p>"_s.arg(
        escape(type.title), escape(Html::dateTime(b.start, zone)), escape(Html::time(b.end, zone)),
        escape(QString::fromUtf8(zone.id())), escape(b.name), escape(b.email));
    if (b.meet)
        details += u"<p>Google Meet: <a href=\"%1\">%1</a></p>"_s.arg(escape(*b.meet));
    for (const Answer &a : b.answers.value_or(QList<Answer>{}))
        details += u"<p><span class=\"muted\">%1</span><br>%2</p>"_s.arg(escape(a.q), escape(a.a));
    if (b.notes)
        details += u"<p><span class=\"muted\">Notes</span><br>%1</p>"_s.arg(escape(*b.notes));
    return Html::page(u"Booked"_s,
                      card(u"<h1 class=\"ok\">You're booked with %1</h1>"_s.arg(escape(settings.owner)) + details));
}

QString pollPage(const Poll &poll, const QTimeZone &zone, const QString &error, const Instant &now)
{
    int top = 1;
    for (const Poll::Option &o : poll.options)
        top = std::max(top, o.votes);
    QString rows;
    for (qsizetype i = 0; i < poll.options.size(); ++i) {
        const Poll::Option &o = poll.options.at(i);
        rows += u"<li><label class=\"grow\"><input type=\"checkbox\" name=\"option\" value=\"%1\"> %2</label>"
                "<div style=\"width:160px\"><div class=\"bar\" style=\"width:%3%\"></div></div><b>%4</b></li>"_s.arg(
                    QString::number(i), escape(Html::dateTime(o.start, zone)), QString::number(100 * o.votes / top),
                    QString::number(o.votes));
    }
    const QString voters =
        poll.voters.isEmpty() ? u"No votes yet"_s : u"Voters: "_s + escape(poll.voters.join(u", "_s));
    const QString errorBox = error.isEmpty() ? QString() : u"<div class=\"error\">"_s + escape(error) + u"</div>"_s;
    const QString body =
        u"<h1>%1</h1><p class=\"muted\">%2 min · times in %3 · tick every time that works for you</p>"
        "<form method=\"post\">%4<ul class=\"plain\">%5</ul>"_s.arg(escape(poll.title), QString::number(poll.minutes),
                                                                    escape(Html::zoneLabel(zone, now)), errorBox, rows)
        + field(u"Your name"_s, textInput(u"name"_s, u"text"_s, QString()))
        + u"<button type=\"submit\">Vote</button></form><p class=\"muted\">"_s + voters + u"</p>"_s;
    return Html::page(poll.title, card(body));
}

QString votedPage(const Poll &poll, const QString &name)
{
    return Html::page(u"Thanks"_s, card(u"<h1 class=\"ok\">Thanks, %1</h1><p>Your vote on “%2” is counted.</p>"
                                        "<p><a href=\"/poll/%3\">See the poll</a></p>"_s.arg(
                                            escape(name), escape(poll.title), escape(poll.id))));
}

QString connectedPage(const QString &email)
{
    return Html::page(u"Calendar connected"_s,
                      card(u"<h1 class=\"ok\">Google Calendar connected</h1><p>Bookings now go to the calendar of "
                           "<b>%1</b>. You can return to Quorvane.</p>"_s.arg(escape(email))));
}

QString dashboard(const Dashboard &d)
{
    const QTimeZone zone = SlotEngine::hostZone(d.settings);
    const QString name = d.account.name.value_or(d.account.email);
    const QString calendar =
        d.google.connected ? u"<span class=\"ok\">connected</span> as "_s + escape(d.google.email.value_or(QString()))
                           : u"not connected"_s;
    const QString head =
        card(u"<h1>%1</h1><p class=\"muted\">%2 · <a href=\"/%3\">booking page</a> · %4</p>"
             "<p>Google Calendar %5</p>"_s.arg(escape(name), escape(d.account.email), escape(d.settings.handle),
                                               escape(Html::zoneLabel(zone, d.now)), calendar));
    const QString stats = u"<div class=\"stats\"><div class=\"stat\"><b>%1</b>upcoming</div><div class=\"stat\"><b>%2"
                          "</b>met in 30 days</div><div class=\"stat\"><b>%3</b>cancelled in 30 days</div>"
                          "<div class=\"stat\"><b>%4</b>polls</div></div><br>"_s.arg(
                              QString::number(d.upcoming.size()), QString::number(d.pastMonth),
                              QString::number(d.cancelledMonth), QString::number(d.polls));
    return Html::page(u"Dashboard"_s, head + stats + card(u"<h2>Upcoming</h2>"_s + upcomingList(d, zone)));
}

} // namespace quorvane::sandbox::Pages
