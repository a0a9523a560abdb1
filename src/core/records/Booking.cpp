#include "Booking.h"

#include "Links.h"

using namespace Qt::StringLiterals;

namespace quorvane {

std::optional<QUrl> Booking::meetURL() const
{
    if (!meet || meet->isEmpty())
        return std::nullopt;
    // A meeting is joined in the browser: any other kind of link offers nothing to join.
    const QUrl url(*meet, QUrl::StrictMode);
    if (!Links::isWebPage(url))
        return std::nullopt;
    return url;
}

size_t qHash(const Booking &b, size_t seed)
{
    return hashFields(seed, b.id, b.type, b.start, b.end, b.name, b.email, b.tz, b.notes, b.status, b.meet,
                      b.inCalendar, b.created, b.updated, b.noShow, b.answers);
}

namespace {
// The rules, for either reader.
template <class Reader>
Booking read(const Reader &r, const CodingPath &path)
{
    Booking b;
    b.id = r.template required<QString>("id"_L1);
    b.type = r.template required<QString>("type"_L1);
    b.start = r.template required<Instant>("start"_L1);
    b.end = r.template required<Instant>("end"_L1);
    b.name = r.template required<QString>("name"_L1);
    b.email = r.template required<QString>("email"_L1);
    b.tz = r.template required<QString>("tz"_L1);
    b.notes = r.template optional<QString>("notes"_L1);
    // The key must be there; whatever it holds decodes, null included.
    const QJsonValue status = r.value("status"_L1);
    if (status.isUndefined())
        codec::fail(path.key(u"status"_s), u"No value for required key \"status\""_s);
    b.status = Codec<BookingStatus>::decode(status, path.key(u"status"_s));
    b.meet = r.template optional<QString>("meet"_L1);
    b.inCalendar = r.template optional<bool>("inCalendar"_L1);
    b.created = r.template optional<Instant>("created"_L1);
    b.updated = r.template optional<Instant>("updated"_L1);
    b.noShow = r.template optional<bool>("noShow"_L1);
    b.answers = r.template optional<QList<Answer>>("answers"_L1);
    return b;
}
} // namespace

Booking Codec<Booking>::decode(const QJsonValue &value, const CodingPath &path)
{
    return read(ObjectReader(value, path), path);
}

Booking Codec<Booking>::decode(const JSONScan::Value &value, const CodingPath &path)
{
    return read(ScanObjectReader(value, path), path);
}

QJsonValue Codec<Booking>::encode(const Booking &b)
{
    return ObjectWriter()
        .set("id"_L1, b.id)
        .set("type"_L1, b.type)
        .set("start"_L1, b.start)
        .set("end"_L1, b.end)
        .set("name"_L1, b.name)
        .set("email"_L1, b.email)
        .set("tz"_L1, b.tz)
        .set("notes"_L1, b.notes)
        .set("status"_L1, b.status)
        .set("meet"_L1, b.meet)
        .set("inCalendar"_L1, b.inCalendar)
        .set("created"_L1, b.created)
        .set("updated"_L1, b.updated)
        .set("noShow"_L1, b.noShow)
        .set("answers"_L1, b.answers)
        .object();
}

} // namespace quorvane
