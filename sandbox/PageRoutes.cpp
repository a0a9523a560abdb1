#include "PageRoutes.h"

#include "ISO.h"
#include "RequestError.h"
#include "SlotEngine.h"

using namespace Qt::StringLiterals;

namespace quorvane::sandbox::PageRoutes {

namespace {

using Access = Router::Access;

QString formValue(const QUrlQuery &form, const QString &key)
{
    return form.queryItemValue(key, QUrl::FullyDecoded);
}

EventType bookableType(Backend &b, const HostSettings &s, const QStringList &captures)
{
    if (captures.value(0) != s.handle)
        throw RequestError{404, u"There is no booking page here"_s};
    const EventType t = b.type(captures.value(1));
    if (!t.isActive)
        throw RequestError{404, u"“%1” isn't open for booking"_s.arg(t.title)};
    return t;
}

Pages::BookingForm bookingForm(const QUrlQuery &form, const EventType &t)
{
    Pages::BookingForm f{formValue(form, u"start"_s), formValue(form, u"name"_s), formValue(form, u"email"_s),
                         formValue(form, u"notes"_s), formValue(form, u"tz"_s),   {}};
    for (qsizetype i = 0; i < t.questions.size(); ++i)
        f.answers.append(formValue(form, u"q%1"_s.arg(i)));
    return f;
}

GuestBooking guestBooking(const Pages::BookingForm &f, const EventType &t)
{
    GuestBooking g;
    g.type = t.slug;
    g.start = ISO::parse(f.start).value_or(QDateTime());
    g.name = f.name;
    g.email = f.email;
    g.tz = f.tz;
    if (!f.notes.trimmed().isEmpty())
        g.notes = f.notes;
    for (qsizetype i = 0; i < t.questions.size(); ++i)
        g.answers.append(Answer{t.questions.at(i), f.answers.value(i).trimmed()});
    return g;
}

HttpReply bookingPage(Backend &b, const EventType &t, const Pages::BookingForm &form, const QString &error, int status)
{
    Pages::BookingPage page;
    page.settings = b.settings();
    page.type = t;
    page.slots = b.openSlots(t, page.settings.horizonDays, QTimeZone());
    page.form = form;
    page.error = error;
    page.now = b.now();
    return HttpReply::html(Pages::bookingPage(page), status);
}

HttpReply book(Backend &b, const HttpRequest &r)
{
    const HostSettings s = b.settings();
    const EventType t = bookableType(b, s, r.captures);
    const Pages::BookingForm form = bookingForm(r.form(), t);
    try {
        const Booking booking = b.book(guestBooking(form, t), true);
        return HttpReply::html(Pages::bookedPage(booking, t, s));
    } catch (const RequestError &e) {
        return bookingPage(b, t, form, e.message, e.status);
    }
}

HttpReply vote(Backend &b, const HttpRequest &r)
{
    const Poll poll = b.poll(r.captures.value(0));
    const QUrlQuery form = r.form();
    QList<int> options;
    for (const QString &value : form.allQueryItemValues(u"option"_s, QUrl::FullyDecoded)) {
        bool ok = false;
        options.append(value.toInt(&ok));
        if (!ok)
            options.last() = -1;
    }
    const QString name = formValue(form, u"name"_s);
    try {
        return HttpReply::html(Pages::votedPage(b.vote(poll.id, name, options), name.trimmed()));
    } catch (const RequestError &e) {
        return HttpReply::html(Pages::pollPage(poll, SlotEngine::hostZone(b.settings()), e.message, b.now()), e.status);
    }
}

void installHostPages(Router &router, Backend &b)
{
    router.add("GET", u"/"_s, Access::page, [](const HttpRequest &) { return HttpReply::redirect(u"/app"_s); });
    router.add("GET", u"/app"_s, Access::page,
               [&b](const HttpRequest &) { return HttpReply::html(Pages::dashboard(b.dashboard())); });
    router.add("GET", u"/*"_s, Access::page, [&b](const HttpRequest &r) {
        const HostSettings s = b.settings();
        if (r.captures.value(0) != s.handle)
            throw RequestError{404, u"There is no booking page here"_s};
        return HttpReply::html(Pages::hostPage(s, b.account().name.value_or(s.handle)));
    });
    router.add("GET", u"/*/*"_s, Access::page, [&b](const HttpRequest &r) {
        const EventType t = bookableType(b, b.settings(), r.captures);
        return bookingPage(b, t, {}, {}, 200);
    });
    router.add("POST", u"/*/*"_s, Access::page, [&b](const HttpRequest &r) { return book(b, r); });
}

void installGuestPages(Router &router, Backend &b, DeviceFlow &devices)
{
    router.add("GET", u"/device"_s, Access::page, [&devices](const HttpRequest &r) {
        const std::optional<DeviceGrant> grant = devices.waiting(r.queryValue(u"code"_s));
        if (!grant)
            throw RequestError{404, u"This code has expired or is unknown. Start signing in again from Quorvane."_s};
        return HttpReply::html(Pages::devicePage(*grant));
    });
    router.add("POST", u"/device"_s, Access::page, [&devices](const HttpRequest &r) {
        const QString code = formValue(r.form(), u"code"_s);
        const std::optional<DeviceGrant> grant = devices.waiting(code);
        if (!grant || !devices.approve(code))
            throw RequestError{404, u"This code has expired or is unknown. Start signing in again from Quorvane."_s};
        return HttpReply::html(Pages::deviceApprovedPage(*grant));
    });
    router.add("GET", u"/poll/*"_s, Access::page, [&b](const HttpRequest &r) {
        const Poll poll = b.poll(r.captures.value(0));
        return HttpReply::html(Pages::pollPage(poll, SlotEngine::hostZone(b.settings()), {}, b.now()));
    });
    router.add("POST", u"/poll/*"_s, Access::page, [&b](const HttpRequest &r) { return vote(b, r); });
    router.add("GET", u"/connect/*"_s, Access::page, [&b](const HttpRequest &r) {
        return HttpReply::html(Pages::connectedPage(b.connectCalendar(r.captures.value(0))));
    });
}

} // namespace

void install(Router &router, Backend &backend, DeviceFlow &devices)
{
    installHostPages(router, backend);
    installGuestPages(router, backend, devices);
}

} // namespace quorvane::sandbox::PageRoutes
