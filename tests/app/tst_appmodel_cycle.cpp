// The application model's cycle against the sandbox, the session keyring and a notification
// server: refreshes, change polling and what is announced, saved files, failures and banners,
// and the views derived from the snapshot as the clock moves.
#include "ModelRig.h"

#include "Formats.h"
#include "SnapshotCache.h"

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

Booking booking(const QString &id, const Instant &start, qint64 minutes, BookingStatus status = BookingStatus::confirmed)
{
    Booking b;
    b.id = id;
    b.type = u"intro"_s;
    b.start = start;
    b.end = start.addSecs(minutes * 60);
    b.name = u"Guest "_s + id;
    b.status = status;
    return b;
}
} // namespace

class TestAppModelCycle : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ModelRig> rig;

private Q_SLOTS:
    void init()
    {
        rig = std::make_unique<ModelRig>();
        QString why;
        QVERIFY2(rig->ready(&why), qPrintable(why));
    }
    void cleanup() { rig.reset(); }

    // A guest books on the web; the next poll announces it once, refreshes, and files follow.
    void roadOfOneBooking()
    {
        auto model = rig->makeModel();
        QVERIFY(!model->needsSignIn());
        QCoro::waitFor(model->refresh());
        QVERIFY(model->firstLoadDone());
        QVERIFY(!model->banner());
        QVERIFY(!model->snapshot().upcoming.isEmpty());
        QVERIFY(model->tracker().cursor > distantPast()); // primed by the first refresh
        QTest::qWait(100);
        QCOMPARE(rig->notifications->calls().size(), 0); // priming announces nothing
        // The saved files are the user's alone.
        QCOMPARE(mode(rig->dataDirectory), 0700);
        for (const QString &file : {u"/cache-v2.json"_s, u"/changes-v2.json"_s})
            QVERIFY2(mode(rig->dataDirectory + file) == 0600, qPrintable(file));
        // Reminders for what comes up soon.
        const Instant now = rig->now();
        QVERIFY(!rig->notifier->pending().isEmpty());
        for (const NotificationRequest &r : rig->notifier->pending())
            QVERIFY(r.identifier.startsWith(u"soon-"_s) && r.fireAt && *r.fireAt > now);

        rig->advance(60);
        const Booking made = rig->guestBooks(u"Maya Lindqvist"_s, now.addSecs(3 * 3600));
        QVERIFY(!contains(model->snapshot().upcoming, made.id));
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
        auto model = rig->makeModel();
        QCoro::waitFor(model->refresh());
        rig->advance(60);
        const Booking made = rig->guestBooks(u"Ann Lee"_s, rig->now().addSecs(26 * 3600));
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
            QVERIFY(r.identifier != u"soon-"_s + made.id);

        // A restart opens with the saved snapshot at once and repeats nothing.
        model.reset();
        auto restarted = rig->makeModel();
        QVERIFY(restarted->firstLoadDone());
        QVERIFY(contains(restarted->snapshot().upcoming, made.id));
        QVERIFY(restarted->tracker().cursor > distantPast());
        rig->advance(60);
        QCoro::waitFor(restarted->pollChanges(false));
        QCoro::waitFor(restarted->refresh());
        QTest::qWait(100);
        QCOMPARE(rig->notifications->calls().size(), 2);
    }

    // Unreachable, the model keeps what it saved and says from when; back online, a success
    // clears the state and its banner.
    void offlineKeepsSavedData()
    {
        auto model = rig->makeModel();
        rig->preferences->setServerURL(u"http://127.0.0.1:9"_s); // nothing listens there
        QCoro::waitFor(model->refresh());
        QCOMPARE(model->banner()->message, u"You're offline. Showing saved data."_s); // nothing saved yet
        QVERIFY(model->firstLoadDone()); // a failed first refresh still ends the skeletons

        rig->preferences->setServerURL(rig->server.base());
        QCoro::waitFor(model->refresh(true));
        QVERIFY(!model->offline() && !model->banner());
        const qsizetype shown = model->snapshot().upcoming.size();

        rig->preferences->setServerURL(u"http://127.0.0.1:9"_s);
        QCoro::waitFor(model->refresh());
        QVERIFY(model->offline());
        QCOMPARE(*model->banner(),
                 (Banner{u"You're offline. Showing saved data from 9:40\u202FAM."_s, Banner::Kind::offline, true}));
        QCOMPARE(model->snapshot().upcoming.size(), shown);
    }

    void expiredTokenAsksForSignIn()
    {
        auto model = rig->makeModel();
        QVERIFY(rig->keychain.write(u"revoked-token"_s));
        QCoro::waitFor(model->refresh());
        QVERIFY(model->needsSignIn());
        QCOMPARE(*model->banner(), (Banner{u"Your session has expired. Sign in again."_s, Banner::Kind::error, false}));
    }

    void withoutTokenNothingIsAsked()
    {
        rig->keychain.signOut();
        auto model = rig->makeModel();
        QVERIFY(model->needsSignIn());
        QCoro::waitFor(model->refresh());
        QCoro::waitFor(model->pollChanges(false));
        QVERIFY(!model->firstLoadDone() && !model->banner());
        QVERIFY(rig->transport->sent.isEmpty());
    }

    void silentFailureKeepsTheBannerUp()
    {
        auto model = rig->makeModel();
        sandbox::FaultInjector &faults = rig->server.sandbox().faults();
        faults.plant(u"sync/me"_s, {500, R"({"error":"The database is resting"})", 0, false, 2});
        QCoro::waitFor(model->refresh());
        QCOMPARE(*model->banner(), (Banner{u"The database is resting"_s, Banner::Kind::error, true}));
        QVERIFY(!model->snapshot().account);

        // A silent failure of the same kind leaves the banner, words and all.
        faults.plant(u"sync/me"_s, {503, R"({"error":"Other words"})", 0, false, 2});
        QCoro::waitFor(model->refresh(true));
        QCOMPARE(model->banner()->message, u"The database is resting"_s);

        // Unreachable is news even when silent.
        // (The network stack itself resends once on a dropped connection, hence the count.)
        faults.plant(u"sync/me"_s, {std::nullopt, std::nullopt, 0, true, 8});
        QCoro::waitFor(model->refresh(true));
        QVERIFY(model->banner() && model->banner()->kind == Banner::Kind::offline);
    }

    void halfAnswerKeepsNothing()
    {
        auto model = rig->makeModel();
        rig->server.sandbox().faults().plant(u"sync/settings"_s, {404, QByteArray(), 0, false, 1});
        QCoro::waitFor(model->refresh());
        QVERIFY(!model->snapshot().account); // me() succeeded, yet nothing of it is kept
        QCOMPARE(*model->banner(), (Banner{u"Server error (404)"_s, Banner::Kind::error, false}));
        QVERIFY(!model->loading());

        // A failed calendar status alone doesn't fail the refresh.
        rig->server.sandbox().faults().plant(u"sync/google"_s, {500, QByteArray(), 0, false, 2});
        QCoro::waitFor(model->refresh());
        QVERIFY(model->snapshot().account && !model->snapshot().google && !model->banner());
        QCOMPARE(model->googleConnected(), model->snapshot().account->google->connected);
    }

    void toastOutlivesARefresh()
    {
        auto model = rig->makeModel();
        model->toast(u"Copied"_s);
        QCoro::waitFor(model->refresh());
        QCOMPARE(*model->banner(), (Banner{u"Copied"_s, Banner::Kind::info, false}));
        QTRY_VERIFY(!model->banner());
    }

    void derivedViewsFollowTheClock()
    {
        const Instant now = rig->now();
        Snapshot s;
        s.savedAt = now;
        Booking running = booking(u"run"_s, now.addSecs(-600), 30);
        Booking later = booking(u"later"_s, now.addSecs(3600), 30);
        Booking tomorrow = booking(u"tmrw"_s, now.addSecs(24 * 3600), 30);
        Booking cancelled = booking(u"gone"_s, now.addSecs(1800), 30, BookingStatus::cancelled);
        Booking old = booking(u"later"_s, now.addSecs(-7 * 24 * 3600), 30);
        old.name = u"From history"_s;
        s.upcoming = {tomorrow, later, cancelled, running};
        s.history = {old, booking(u"past"_s, now.addSecs(-3 * 24 * 3600), 60)};
        QVERIFY(SnapshotCache(rig->dataDirectory + u"/cache-v2.json"_s).save(s));

        auto model = rig->makeModel();
        QVERIFY(model->firstLoadDone());
        QCOMPARE(model->next()->id, u"run"_s); // a meeting in progress is next
        QCOMPARE(model->today().size(), 2);
        QCOMPARE(model->upcoming().size(), 3);
        const QList<Booking> all = model->allBookings();
        QCOMPARE(all.size(), 5); // nothing filtered, "later" once
        QCOMPARE(all.first().id, u"tmrw"_s);
        const auto merged = std::find_if(all.cbegin(), all.cend(), [](const Booking &b) { return b.id == u"later"_s; });
        QCOMPARE(merged->name, u"Guest later"_s); // the upcoming record wins

        rig->advance(20 * 60 + 1); // the running meeting ended a second ago
        QCOMPARE(model->next()->id, u"later"_s);
        QCOMPARE(model->upcoming().size(), 2);
    }

    void migrationOfTheOldServerKey()
    {
        rig->settings->setValue(u"publicBaseURL"_s, u"http://insecure.example"_s);
        QCOMPARE(rig->makeModel()->serverURL(), rig->server.base());
        rig->settings->setValue(u"publicBaseURL"_s, u"https://old.example"_s);
        QCOMPARE(rig->makeModel()->serverURL(), u"https://old.example"_s);
    }
};

QTEST_GUILESS_MAIN(TestAppModelCycle)
#include "tst_appmodel_cycle.moc"
