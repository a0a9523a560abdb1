// The browser pages: booking as a guest, voting, and escaping of everything people typed.
#include "SandboxHarness.h"

#include "Html.h"
#include "ISO.h"
#include "JSON.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::sandbox;

namespace {

const QString markup = u"<img src=x onerror=alert(1)>"_s;
const QByteArray escapedMarkup = "&lt;img src=x onerror=alert(1)&gt;";

// The guest's markup shows on the page as text, and nowhere as markup.
bool showsEscaped(const QByteArray &page)
{
    return page.contains(escapedMarkup) && !page.contains(markup.toUtf8());
}

// A host in New York, open every weekday 9-17, with a video type that asks a question, a phone
// type and a retired one.
HostSettings pageSettings(bool addMeet = true)
{
    HostSettings s;
    s.owner = u"Sam Host"_s;
    s.handle = u"sam"_s;
    s.timezone = u"America/New_York"_s;
    s.addMeet = addMeet;
    for (const char *slug : {"video", "phone", "retired"}) {
        EventType t;
        t.id = t.slug = QString::fromLatin1(slug);
        t.title = u"Video <chat>"_s;
        t.location = t.slug == u"video" ? MeetingLocation::meet : MeetingLocation::phone;
        t.isActive = t.slug != u"retired";
        if (t.slug == u"video")
            t.questions = {u"What about?"_s};
        s.eventTypes.append(t);
    }
    for (int day = 2; day <= 6; ++day)
        s.availability.append({day, {{9 * 60, 17 * 60}}});
    return s;
}

QStringList offeredStarts(const QByteArray &page)
{
    QStringList out;
    static const QRegularExpression radio(u"name=\"start\" value=\"([^\"]+)\""_s);
    for (auto it = radio.globalMatch(QString::fromUtf8(page)); it.hasNext();)
        out.append(it.next().captured(1));
    return out;
}

QList<QPair<QString, QString>> guestForm(const QString &start, const QString &name = u"Kim Guest"_s)
{
    return {{u"start"_s, start}, {u"name"_s, name}, {u"email"_s, u"kim@example.com"_s},
            {u"q0"_s, u"Plans & <ideas>"_s}, {u"tz"_s, u"Europe/Berlin"_s}, {u"notes"_s, u"See you"_s}};
}

} // namespace

class TestSandboxPages : public QObject
{
    Q_OBJECT

    std::unique_ptr<SandboxHarness> h;

    QList<Booking> upcoming()
    {
        const Result<QJsonValue> doc = JSON::parse(h->get(u"/sync/bookings"_s).body);
        return fromJson<QList<Booking>>(doc->toObject().value(u"bookings"_s)).value();
    }

private Q_SLOTS:
    void init()
    {
        h = std::make_unique<SandboxHarness>(SandboxHarness::config(false));
        QVERIFY(h->start());
        h->sandbox().store().setSettings(pageSettings());
    }
    void cleanup() { h.reset(); }

    void escapingCoversWhatBreaksMarkup()
    {
        QCOMPARE(Html::escape(u"<a title=\"x\" id='y'>&lt; Zoë O’Neil"_s),
                 u"&lt;a title=&quot;x&quot; id=&#39;y&#39;&gt;&amp;lt; Zoë O’Neil"_s);
    }

    void aGuestBooksThroughTheForm()
    {
        const auto page = h->get(u"/sam/video"_s, {});
        QCOMPARE(page.status, 200);
        QVERIFY(page.body.contains("Video &lt;chat&gt;"));
        const QStringList starts = offeredStarts(page.body);
        QVERIFY(starts.size() > 20);

        const auto booked = h->postForm(u"/sam/video"_s, guestForm(starts.first(), markup));
        QCOMPARE(booked.status, 200);
        QVERIFY(showsEscaped(booked.body));
        QVERIFY(booked.body.contains("Plans &amp; &lt;ideas&gt;"));

        const QList<Booking> all = upcoming();
        QCOMPARE(all.size(), 1);
        const Booking &b = all.first();
        QCOMPARE(b.name, markup);
        QCOMPARE(b.start, ISO::parse(starts.first()).value());
        QCOMPARE(b.start.secsTo(b.end), 1800);
        QCOMPARE(b.tz, u"Europe/Berlin"_s);
        QCOMPARE(b.answers.value(), (QList<Answer>{{u"What about?"_s, u"Plans & <ideas>"_s}}));
        QVERIFY(QRegularExpression(u"^https://meet\\.google\\.com/[a-z]{3}-[a-z]{4}-[a-z]{3}$"_s).match(b.meet.value()).hasMatch());

        // The time is gone from the page, and taking it again is refused with the form kept.
        QVERIFY(!offeredStarts(h->get(u"/sam/video"_s, {}).body).contains(starts.first()));
        const auto again = h->postForm(u"/sam/video"_s, guestForm(starts.first(), markup));
        QCOMPARE(again.status, 409);
        QVERIFY(again.body.contains("no longer available"));
        QVERIFY(showsEscaped(again.body));
    }

    void theDashboardEscapesGuestNames()
    {
        const auto made = h->post(u"/sandbox/bookings"_s, {{u"type"_s, u"phone"_s}, {u"start"_s, u"2025-03-04T15:00:00Z"_s},
                                                          {u"name"_s, markup}, {u"email"_s, u"x@example.com"_s}});
        QCOMPARE(made.status, 200);
        const auto app = h->get(u"/app"_s, {});
        QCOMPARE(app.status, 200);
        QVERIFY(showsEscaped(app.body));
    }

    // Each mistake comes back on the form with its explanation, and books nothing.
    void mistakesInTheFormAreExplained()
    {
        const QString start = offeredStarts(h->get(u"/sam/video"_s, {}).body).first();
        const auto sent = [&](const QString &field, const QString &value) {
            QList<QPair<QString, QString>> form = guestForm(start);
            for (auto &[key, v] : form) {
                if (key == field)
                    v = value;
            }
            const auto r = h->postForm(u"/sam/video"_s, form);
            return r.body.contains("class=\"error\"") && upcoming().isEmpty() ? r.status : -r.status;
        };
        QCOMPARE(sent(u"name"_s, u"  "_s), 400);
        QCOMPARE(sent(u"email"_s, u"kim.example.com"_s), 400);
        QCOMPARE(sent(u"q0"_s, QString()), 400); // the type's question unanswered
        QCOMPARE(sent(u"start"_s, QString()), 400);
        QCOMPARE(sent(u"start"_s, u"2025-03-04T03:00:00Z"_s), 409); // a time not offered
    }

    void pagesThatAreNotThere()
    {
        for (const QString &path : {u"/someone"_s, u"/someone/video"_s, u"/sam/nothing"_s, u"/sam/retired"_s,
                                    u"/poll/nope"_s}) {
            const auto r = h->get(path, {});
            QCOMPARE(r.status, 404);
            QVERIFY(r.header("Content-Type").startsWith("text/html"));
        }
    }

    void theHostPageListsActiveTypesOnly()
    {
        const auto r = h->get(u"/sam"_s, {});
        QCOMPARE(r.status, 200);
        QVERIFY(r.body.contains("href=\"/sam/video\""));
        QVERIFY(r.body.contains("href=\"/sam/phone\""));
        QVERIFY(!r.body.contains("/sam/retired"));
    }

    // A video type gets a link when the host wants them (see aGuestBooksThroughTheForm); others never.
    void meetLinksOnlyWhereAskedFor()
    {
        const auto meetFor = [&](const QString &type) {
            const auto r = h->post(u"/sandbox/bookings"_s, {{u"type"_s, type}, {u"start"_s, u"2025-03-04T15:00:00Z"_s},
                                                            {u"name"_s, u"Kim"_s}, {u"email"_s, u"kim@example.com"_s}});
            return r.status == 200 ? fromJson<Booking>(r.json()).value().meet.has_value() : true;
        };
        QVERIFY(!meetFor(u"phone"_s));
        h->sandbox().store().setSettings(pageSettings(false));
        QVERIFY(!meetFor(u"video"_s));
    }

    void guestsVoteOnAPoll()
    {
        const auto created = h->post(u"/sync/polls"_s, {{u"title"_s, u"Team <lunch>"_s}, {u"type"_s, u"phone"_s}});
        QCOMPARE(created.status, 200);
        const QString path = created.json().value(u"url"_s).toString().mid(h->base().size());
        const auto page = h->get(path, {});
        QCOMPARE(page.status, 200);
        QVERIFY(page.body.contains("Team &lt;lunch&gt;"));

        QCOMPARE(h->postForm(path, {{u"name"_s, markup}, {u"option"_s, u"0"_s}, {u"option"_s, u"2"_s}}).status, 200);
        QCOMPARE(h->postForm(path, {{u"name"_s, u"Lee"_s}, {u"option"_s, u"2"_s}}).status, 200);
        QCOMPARE(h->postForm(path, {{u"name"_s, u"lee"_s}, {u"option"_s, u"1"_s}}).status, 409);
        QCOMPARE(h->postForm(path, {{u"name"_s, u"Max"_s}}).status, 400);
        QCOMPARE(h->postForm(path, {{u"name"_s, u"Max"_s}, {u"option"_s, u"9"_s}}).status, 400);

        const Result<QJsonValue> doc = JSON::parse(h->get(u"/sync/polls"_s).body);
        const Poll poll = fromJson<QList<Poll>>(doc->toObject().value(u"polls"_s)).value().first();
        QCOMPARE(poll.voters, (QStringList{markup, u"Lee"_s}));
        QList<int> votes;
        for (const Poll::Option &o : poll.options)
            votes.append(o.votes);
        QCOMPARE(votes, (QList<int>{1, 0, 2, 0}));
        const auto after = h->get(path, {});
        QVERIFY(showsEscaped(after.body));
    }
};

QTEST_GUILESS_MAIN(TestSandboxPages)
#include "tst_sandbox_pages.moc"
