// The application model's commands against the sandbox: the debounced settings save,
// one-shot commands with their banners and toasts, links, messages and reminders.
#include "ModelRig.h"

#include "Formats.h"
#include "JSON.h"

#include <QCoroTask>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

class TestAppModelCommands : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<ModelRig> rig;
    std::unique_ptr<AppModel> model;

    Booking firstUpcoming() const
    {
        const QList<Booking> list = model->upcoming();
        return list.isEmpty() ? Booking() : list.first();
    }

private Q_SLOTS:
    void init()
    {
        rig = std::make_unique<ModelRig>();
        QString why;
        QVERIFY2(rig->ready(&why), qPrintable(why));
        model = rig->makeModel();
        QCoro::waitFor(model->refresh());
        QVERIFY(model->snapshot().settings);
    }
    void cleanup()
    {
        model.reset();
        rig.reset();
    }

    // A burst of edits is one request that holds every change.
    void editsWithinThePauseSendOneSave()
    {
        const int putsBefore = rig->transport->count("PUT", u"/sync/settings"_s);
        model->editSettings([](HostSettings &s) { s.maxMeetingsPerDay = 7; });
        QTest::qWait(100);
        model->editSettings([](HostSettings &s) { s.horizonDays = 21; });
        QTest::qWait(100);
        model->editSettings([](HostSettings &s) { s.addMeet = false; });
        QCOMPARE(model->draftSettings()->maxMeetingsPerDay, 7); // the screens see edits at once
        QVERIFY(!model->saving());

        QTRY_COMPARE(rig->transport->count("PUT", u"/sync/settings"_s), putsBefore + 1);
        QTRY_VERIFY(!model->saving());
        const HostSettings sent = JSON::decode<HostSettings>(rig->transport->sent.last().body).value();
        QVERIFY(sent.maxMeetingsPerDay == 7 && sent.horizonDays == 21 && !sent.addMeet);
        QCOMPARE(rig->server.sandbox().backend().settings().horizonDays, 21);
        QCOMPARE(model->snapshot().settings->horizonDays, 21);
        QTest::qWait(1000);
        QCOMPARE(rig->transport->count("PUT", u"/sync/settings"_s), putsBefore + 1);
    }

    void failedSaveKeepsTheDraft()
    {
        rig->server.sandbox().faults().plant(u"sync/settings"_s, {500, R"({"error":"Try later"})", 0, false, 1});
        model->editSettings([](HostSettings &s) { s.horizonDays = 30; });
        QTRY_VERIFY(model->banner().has_value());
        QTRY_VERIFY(!model->saving());
        QCOMPARE(*model->banner(), (Banner{u"Try later"_s, Banner::Kind::error, true}));
        QCOMPARE(model->draftSettings()->horizonDays, 30);
        // The next successful refresh brings the draft back in line with the server.
        QCoro::waitFor(model->refresh());
        QCOMPARE(model->draftSettings()->horizonDays, model->snapshot().settings->horizonDays);
        QVERIFY(model->draftSettings()->horizonDays != 30);
    }

    void editWithoutSettingsDoesNothing()
    {
        rig->keychain.signOut();
        model->signOut();
        bool called = false;
        model->editSettings([&](HostSettings &) { called = true; });
        QVERIFY(!called);
        QVERIFY(!model->draftSettings());
        QVERIFY(model->needsSignIn());
        QVERIFY(!QFile::exists(rig->dataDirectory + u"/cache-v2.json"_s));
        QVERIFY(!QFile::exists(rig->dataDirectory + u"/changes-v2.json"_s));
    }

    void cancelShowsAfterTheRefresh()
    {
        const Booking b = firstUpcoming();
        model->cancel(b);
        QTRY_VERIFY(model->banner().has_value());
        QCOMPARE(*model->banner(), (Banner{u"Booking cancelled. %1 was notified."_s.arg(b.name), Banner::Kind::info, false}));
        const auto it = std::find_if(model->snapshot().upcoming.cbegin(), model->snapshot().upcoming.cend(),
                                     [&](const Booking &x) { return x.id == b.id; });
        QVERIFY(it != model->snapshot().upcoming.cend());
        QCOMPARE(it->status, BookingStatus::cancelled);
    }

    void failedCommandRaisesABannerWithoutToast()
    {
        Booking ghost = firstUpcoming();
        ghost.id = u"no-such-booking"_s;
        model->setNoShow(ghost, true);
        QTRY_VERIFY(model->banner().has_value());
        QCOMPARE(model->banner()->kind, Banner::Kind::error);
        QTest::qWait(400);
        QCOMPARE(model->banner()->kind, Banner::Kind::error);
    }

    void createPollCopiesItsLink()
    {
        model->createPoll(u"Team sync"_s, model->activeTypes().first().slug);
        QTRY_VERIFY(model->banner().has_value());
        QCOMPARE(model->banner()->message, u"Poll created. Link copied."_s);
        QCOMPARE(rig->clipboard.texts.size(), 1);
        QVERIFY(rig->clipboard.texts.first().startsWith(rig->server.base() + u"/poll/"_s));
        QVERIFY(std::any_of(model->snapshot().polls.cbegin(), model->snapshot().polls.cend(),
                            [](const Poll &p) { return p.title == u"Team sync"_s; }));
    }

    void linksAndMessages()
    {
        const EventType type = model->activeTypes().first();
        model->copyLink(type);
        const QString handle = *model->snapshot().account->handle;
        QCOMPARE(rig->clipboard.texts.last(), rig->server.base() + u'/' + handle + u'/' + type.slug);
        QCOMPARE(model->banner()->message, u"Copied link for %1"_s.arg(type.title));

        Booking b = firstUpcoming();
        b.type = u"retired-type"_s;
        b.name = u"  "_s;
        const QString date = Formats::format(b.start, u"EEEEMMMdjmm"_s, u"en_US"_s, u"America/New_York"_s);
        QCOMPARE(model->rescheduleText(b),
                 u"Hi , I need to move our meeting on %1. Could you pick a new time here? %2\n"
                 u"I'll cancel the original once you've rebooked. Thanks!"_s.arg(date, model->pageLink()));
    }

    void joinOpensOnlyWebLinks()
    {
        Booking b = firstUpcoming();
        b.meet = u"https://meet.google.com/abc-defg-hij"_s;
        model->join(b);
        b.meet = u"javascript:alert(1)"_s;
        model->join(b);
        b.meet = std::nullopt;
        model->join(b);
        QCOMPARE(rig->opened, QList<QUrl>{QUrl(u"https://meet.google.com/abc-defg-hij"_s)});
    }

    void connectGoogleOpensTheServersLink()
    {
        model->connectGoogle();
        QTRY_COMPARE(rig->opened.size(), 1);
        QVERIFY(rig->opened.first().toString().startsWith(rig->server.base()));
        QVERIFY(!model->banner());
    }

    void remindersFollowThePreference()
    {
        QVERIFY(!rig->notifier->pending().isEmpty());
        model->setNotifyReminders(false);
        model->scheduleReminders();
        QVERIFY(rig->notifier->pending().isEmpty());
        model->setNotifyReminders(true);
        model->setReminderMinutes(0); // fires a minute ahead, says 0
        model->scheduleReminders();
        QVERIFY(!rig->notifier->pending().isEmpty());
        const NotificationRequest first = rig->notifier->pending().first();
        QVERIFY(first.title.endsWith(u" in 0 min"_s));
    }
};

QTEST_GUILESS_MAIN(TestAppModelCommands)
#include "tst_appmodel_commands.moc"
