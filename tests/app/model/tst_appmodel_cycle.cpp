// The application model against the sandbox, the session keyring and a notification server:
// refreshes, change polling and what is announced, saved files, failures and banners, and the
// debounced settings save.
#include "ModelRig.h"

#include "Formats.h"
#include "JSON.h"

#include <QCoroTask>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {
int mode(const QString &path)
{
    struct stat info {};
    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? int(info.st_mode & 07777) : -1;
}

bool contains(const QList<Booking> &list, const QString &id)
{
    return std::any_of(list.cbegin(), list.cend(), [&](const Booking &b) { return b.id == id; });
}
} // namespace

class TestAppModel : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ModelRig> rig;
    std::unique_ptr<AppModel> model;

private Q_SLOTS:
    // Every test starts signed in, after a first refresh.
    void init()
    {
        rig = std::make_unique<ModelRig>();
        QString why;
        QVERIFY2(rig->ready(&why), qPrintable(why));
        model = rig->makeModel();
        QCoro::waitFor(model->refresh());
    }
    void cleanup()
    {
        model.reset();
        rig.reset();
    }

    // A guest books on the web; the next poll announces it once, refreshes, and files follow.
    void roadOfOneBooking()
    {
        QVERIFY(model->firstLoadDone() && !model->banner());
        QTest::qWait(100);
        QCOMPARE(rig->notifications->calls().size(), 0); // priming announces nothing
        // The saved files are the user's alone.
        QCOMPARE(mode(rig->dataDirectory), 0700);
        for (const QString &file : {u"/cache-v2.json"_s, u"/changes-v2.json"_s})
            QVERIFY2(mode(rig->dataDirectory + file) == 0600, qPrintable(file));
        // Reminders for the next two days only.
        const Instant now = rig->clock.now(), horizon = now.addSecs(48 * 3600);
        QVERIFY(!rig->notifier->pending().isEmpty());
        for (const NotificationRequest &r : rig->notifier->pending())
            QVERIFY(r.identifier == u"soon-"_s + r.bookingID && r.fireAt && *r.fireAt > now && *r.fireAt < horizon);
        const QList<Booking> shown = model->upcoming();
        QVERIFY(std::any_of(shown.cbegin(), shown.cend(), [&](const Booking &b) { return b.start > horizon; }));

        rig->advance(60);
        const Booking made = rig->guestBooks(u"Maya Lindqvist"_s, now.addSecs(3 * 3600));
        rig->advance(30);
        QCoro::waitFor(model->pollChanges(false));
        QTRY_COMPARE(rig->notifications->calls().size(), 1);
        const FakeNotificationServer::Call call = rig->notifications->calls().first();
        QCOMPARE(call.summary, u"New booking: Maya Lindqvist"_s);
        QCOMPARE(call.body, model->typeTitle(made.type) + u" · "_s
                                + Formats::format(made.start, u"EEEMMMdjmm"_s, u"en_US"_s, u"America/New_York"_s));
        QCOMPARE(call.hints.value(u"desktop-entry"_s).toString(), u"com.peldrachen.quorvane"_s);
        QVERIFY(contains(model->snapshot().upcoming, made.id)); // the refresh followed

        // The overlap asks for the latest seconds again; nothing is announced twice.
        rig->advance(60);
        QCoro::waitFor(model->pollChanges(false));
        QTest::qWait(100);
        QCOMPARE(rig->notifications->calls().size(), 1);
    }

    void cancellationAnnouncedOnceAndNotAfterRestart()
    {
        rig->advance(60);
        const Booking made = rig->guestBooks(u"Ann Lee"_s, rig->clock.now().addSecs(26 * 3600));
        QCoro::waitFor(model->pollChanges(false));
        QTRY_COMPARE(rig->notifications->calls().size(), 1);

        rig->advance(60);
        rig->server.sandbox().backend().cancel(made.id);
        rig->advance(1);
        QCoro::waitFor(model->pollChanges(false));
        QTRY_COMPARE(rig->notifications->calls().size(), 2);
        QCOMPARE(rig->notifications->calls().last().summary, u"Cancelled: Ann Lee"_s);
        QVERIFY(rig->notifications->calls().last().body.endsWith(u" was cancelled"_s));
        for (const NotificationRequest &r : rig->notifier->pending())
            QVERIFY(r.bookingID != made.id);

        // A restart opens with the saved snapshot at once and repeats nothing.
        model.reset();
        auto restarted = rig->makeModel();
        QVERIFY(restarted->firstLoadDone());
        QVERIFY(contains(restarted->snapshot().upcoming, made.id));
        rig->advance(60);
        QCoro::waitFor(restarted->pollChanges(false));
        QCoro::waitFor(restarted->refresh());
        QTest::qWait(100);
        QCOMPARE(rig->notifications->calls().size(), 2);
    }

    // One model through the failures a day may bring, each with its banner.
    void failuresAndTheirBanners()
    {
        const qsizetype shown = model->snapshot().upcoming.size();
        QVERIFY(shown > 0);

        // A toast outlives the refresh that follows it, then goes.
        model->toast(u"Copied"_s);
        QCoro::waitFor(model->refresh());
        QCOMPARE(*model->banner(), (Banner{u"Copied"_s, Banner::Kind::info, false}));
        QTRY_VERIFY(!model->banner());

        // A silent failure leaves the error banner that is up, words and all.
        sandbox::FaultInjector &faults = rig->server.sandbox().faults();
        faults.plant(u"sync/me"_s, {500, R"({"error":"The database is resting"})", 0, false, 2});
        QCoro::waitFor(model->refresh());
        QCOMPARE(*model->banner(), (Banner{u"The database is resting"_s, Banner::Kind::error, true}));
        faults.plant(u"sync/me"_s, {500, R"({"error":"Other words"})", 0, false, 2});
        QCoro::waitFor(model->refresh(true));
        QCOMPARE(model->banner()->message, u"The database is resting"_s);

        // Unreachable is news even when silent; what was saved stays, and says from when.
        rig->preferences->setServerURL(u"http://127.0.0.1:9"_s); // nothing listens there
        QCoro::waitFor(model->refresh(true));
        QVERIFY(model->offline());
        QCOMPARE(*model->banner(),
                 (Banner{u"You're offline. Showing saved data from 9:40\u202FAM."_s, Banner::Kind::offline, true}));
        QCOMPARE(model->snapshot().upcoming.size(), shown);

        // Back online, a success clears both; then a token the server no longer knows asks
        // for a new sign-in.
        rig->preferences->setServerURL(rig->server.base());
        QCoro::waitFor(model->refresh(true));
        QVERIFY(!model->offline() && !model->banner());
        QVERIFY(rig->keychain.write(u"revoked-token"_s));
        QCoro::waitFor(model->refresh());
        QVERIFY(model->needsSignIn());
        QCOMPARE(*model->banner(), (Banner{u"Your session has expired. Sign in again."_s, Banner::Kind::error, false}));
    }

    // A burst of edits is one request that holds every change; a failed save keeps the draft
    // until a refresh brings it back in line with the server.
    void editsWithinThePauseSendOneSave()
    {
        const std::function<void(HostSettings &)> edits[] = {
            [](HostSettings &s) { s.maxMeetingsPerDay = 7; }, [](HostSettings &s) { s.minNoticeMinutes = 120; },
            [](HostSettings &s) { s.horizonDays = 21; }, [](HostSettings &s) { s.alertMinutesBefore = 15; },
            [](HostSettings &s) { s.addMeet = false; }};
        HostSettings expected = *model->snapshot().settings;
        for (const auto &edit : edits) {
            model->editSettings(edit);
            edit(expected);
            QCOMPARE(*model->draftSettings(), expected); // the screens see edits at once
            QTest::qWait(180);
        }
        QTRY_COMPARE(rig->transport->count("PUT", u"/sync/settings"_s), 1);
        QCOMPARE(JSON::decode<HostSettings>(rig->transport->sent.last().body).value(), expected);
        QTRY_COMPARE(*model->snapshot().settings, expected);
        QTest::qWait(1000);
        QCOMPARE(rig->transport->count("PUT", u"/sync/settings"_s), 1);

        rig->server.sandbox().faults().plant(u"sync/settings"_s, {500, R"({"error":"Try later"})", 0, false, 1});
        model->editSettings([](HostSettings &s) { s.horizonDays = 30; });
        QTRY_VERIFY(model->banner().has_value());
        QCOMPARE(*model->banner(), (Banner{u"Try later"_s, Banner::Kind::error, true}));
        QCOMPARE(model->draftSettings()->horizonDays, 30);
        QCoro::waitFor(model->refresh());
        QCOMPARE(*model->draftSettings(), expected);
    }
};

QTEST_GUILESS_MAIN(TestAppModel)
#include "tst_appmodel_cycle.moc"
