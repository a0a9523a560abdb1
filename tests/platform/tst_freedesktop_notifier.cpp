// The notifier against a notification server on a private session bus: what goes over the
// wire, replacing, markup, reminders on time, answers. The texts themselves are the plan's.
#include "FixedClock.h"
#include "linux/FreedesktopNotifier.h"
#include "support/FakeNotificationServer.h"
#include "support/PrivateBus.h"

#include <QCoroTask>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace quorvane;
using namespace quorvane::test;
using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

// Tuesday 4 March 2025, 14:00 in New York.
const Instant start = QDateTime(QDate(2025, 3, 4), QTime(19, 0), Qt::UTC);
const QString meetLink = u"https://meet.google.com/abc-defg-hij"_s;
const QString intro = u"Intro Call"_s;
const QHash<QString, QString> titles{{u"intro"_s, intro}};
const QStringList plainServer{u"actions"_s, u"body"_s};

Booking booking(const QString &id, const Instant &at, const QString &name = u"Ann Lee"_s)
{
    Booking b;
    b.id = id;
    b.type = u"intro"_s;
    b.start = at;
    b.end = at.addSecs(1800);
    b.name = name;
    b.status = BookingStatus::confirmed;
    return b;
}

} // namespace

class FreedesktopNotifierTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<FixedClock> m_clock;
    std::unique_ptr<FakeNotificationServer> m_server;
    std::unique_ptr<FreedesktopNotifier> m_notifier;

    void startServer(const QStringList &capabilities = plainServer)
    {
        m_server = std::make_unique<FakeNotificationServer>(m_bus->connect(u"server"_s), capabilities);
        QVERIFY(m_server->start());
    }

    const FakeNotificationServer::Call &call(qsizetype i) const { return m_server->calls().at(i); }

private Q_SLOTS:
    void init()
    {
        m_bus = std::make_unique<PrivateBus>();
        QVERIFY2(m_bus->isRunning(), qPrintable(m_bus->error()));
        m_clock = std::make_unique<FixedClock>(start);
        m_notifier = std::make_unique<FreedesktopNotifier>(m_bus->connect(u"app"_s), *m_clock, u"en_US"_s,
                                                           u"America/New_York"_s);
    }
    void cleanup()
    {
        m_notifier.reset();
        m_server.reset();
        m_bus.reset();
    }

    // In the server's own argument types; the body escaped only for a server that reads markup,
    // the summary never. An announcement offers to open the app, never to join, even with a link.
    void announces_data()
    {
        QTest::addColumn<QStringList>("capabilities");
        QTest::addColumn<QString>("body");
        QTest::newRow("plain server") << plainServer << u"R&D <b>sync</b> \u00B7 Tue, Mar 4, 3:00\u202FPM"_s;
        QTest::newRow("markup server") << plainServer + QStringList{u"body-markup"_s}
                                       << u"R&amp;D &lt;b&gt;sync&lt;/b&gt; \u00B7 Tue, Mar 4, 3:00\u202FPM"_s;
    }
    void announces()
    {
        QFETCH(QStringList, capabilities);
        QFETCH(QString, body);
        startServer(capabilities);
        Booking b = booking(u"b1"_s, start.addSecs(3600), u"<i>Ann</i>"_s);
        b.meet = meetLink;
        m_notifier->announce({ChangeEvent::Kind::booked, b}, u"R&D <b>sync</b>"_s);
        QTRY_COMPARE(m_server->calls().size(), 1);
        QCOMPARE(call(0).signature, u"susssasa{sv}i"_s);
        QCOMPARE((std::pair{call(0).summary, call(0).body}), (std::pair{u"New booking: <i>Ann</i>"_s, body}));
        QCOMPARE(call(0).actions, (QStringList{u"default"_s, u"View"_s, u"OPEN"_s, u"View"_s}));
        const QVariant urgency = call(0).hints.value(u"urgency"_s); // a byte, as the server wants
        QCOMPARE((std::pair{urgency.metaType(), urgency.value<uchar>()}),
                 (std::pair{QMetaType::fromType<uchar>(), uchar(1)}));
    }

    void sameIdentifierReplacesWhatIsShown()
    {
        startServer();
        const Booking b = booking(u"b1"_s, start.addSecs(3600));
        // Back to back: the second must still learn what the first became.
        m_notifier->announce({ChangeEvent::Kind::booked, b}, intro);
        m_notifier->announce({ChangeEvent::Kind::booked, booking(u"b1"_s, b.start, u"Ann"_s)}, intro);
        QTRY_COMPARE(m_server->calls().size(), 2);
        const uint first = call(0).id;
        QCOMPARE((std::tuple{call(0).replacesID, call(1).replacesID, call(1).id}), (std::tuple{0u, first, first}));

        // Cancelling is news of its own, beside the booking's announcement.
        m_notifier->announce({ChangeEvent::Kind::cancelled, b}, intro);
        QTRY_COMPARE(m_server->calls().size(), 3);
        QCOMPARE(call(2).replacesID, 0u);

        // Once the user has closed it, there is nothing left to replace.
        m_server->closeByUser(first);
        QTest::qWait(300);
        m_notifier->announce({ChangeEvent::Kind::booked, b}, intro);
        QTRY_COMPARE(m_server->calls().size(), 4);
        QCOMPARE(call(3).replacesID, 0u);
    }

    // Reminders wait until due, and offer to join; a refresh replaces them all, so a booking
    // cancelled on the server loses its reminder; removeAll leaves nothing to come.
    void remindersArriveWhenDue()
    {
        startServer();
        Booking first = booking(u"first"_s, start.addSecs(5 * 60 + 1));
        first.meet = meetLink;
        const Booking second = booking(u"second"_s, start.addSecs(5 * 60 + 2));
        const Booking tomorrow = booking(u"tomorrow"_s, start.addDays(1));
        m_notifier->scheduleReminders({tomorrow, booking(u"gone"_s, start.addSecs(3600))}, 5, titles);
        m_notifier->scheduleReminders({tomorrow, second, first}, 5, titles);
        QTest::qWait(300);
        QVERIFY(m_server->calls().isEmpty());

        m_clock->advance(5s);
        QTRY_COMPARE(m_server->calls().size(), 2);
        QCOMPARE(call(0).actions,
                 (QStringList{u"default"_s, u"View"_s, u"JOIN"_s, u"Join Meet"_s, u"OPEN"_s, u"View"_s}));
        QCOMPARE(m_notifier->pending().size(), 1);
        QCOMPARE(m_notifier->pending()[0].identifier, u"soon-tomorrow"_s);

        m_notifier->removeAll();
        QVERIFY(m_notifier->pending().isEmpty());
        m_clock->advance(48h);
        QTest::qWait(300);
        QCOMPARE(m_server->calls().size(), 2);
    }

    // Join opens the meeting's link; any other answer, or join without a link, brings up the app
    // with the activation token that came with it. Answers to other apps' notifications are theirs.
    void answersReachTheApp()
    {
        startServer();
        QSignalSpy joined(m_notifier.get(), &Notifier::joinRequested);
        QSignalSpy activated(m_notifier.get(), &Notifier::activateRequested);
        const auto answer = [&](std::optional<QString> meet, const QString &action, const QString &token,
                                int other = 0) {
            // A reminder due a tenth of a second from now, then the clock jumps past it.
            Booking b = booking(u"b1"_s, m_clock->now().addMSecs(60'100));
            b.meet = meet;
            const qsizetype shown = m_server->calls().size();
            m_notifier->scheduleReminders({b}, 1, titles);
            m_clock->advance(1s);
            QTRY_COMPARE(m_server->calls().size(), shown + 1);
            QTest::qWait(100); // for the server's answer to reach the notifier
            m_server->invokeAction(call(shown).id + other, action, token); // the server closes it after any answer
            QTest::qWait(200);
        };
        answer(meetLink, u"JOIN"_s, {});
        answer(meetLink, u"OPEN"_s, u"tok-1"_s);
        answer(std::nullopt, u"JOIN"_s, u"tok-2"_s);
        answer(meetLink, u"JOIN"_s, u"tok-3"_s, 1000);
        QCOMPARE(joined.size(), 1);
        QCOMPARE(joined.at(0).at(0).toUrl(), QUrl(meetLink));
        QCOMPARE(activated.size(), 2);
        QCOMPARE(activated.at(0).at(0).toString(), u"tok-1"_s);
        QCOMPARE(activated.at(1).at(0).toString(), u"tok-2"_s);
    }

    // Allowed while a notification server runs, or the bus would start one on demand.
    void authorizedFollowsTheServer()
    {
        QVERIFY(!QCoro::waitFor(m_notifier->authorized()));
        startServer();
        QVERIFY(QCoro::waitFor(m_notifier->requestAuthorization()));
        m_server->stop();
        QVERIFY(!QCoro::waitFor(m_notifier->authorized()));

        QTemporaryDir services; // a server the bus starts on demand counts, too
        QFile file(services.filePath(u"org.freedesktop.Notifications.service"_s));
        QVERIFY(file.open(QIODevice::WriteOnly)
                && file.write("[D-BUS Service]\nName=org.freedesktop.Notifications\nExec=/bin/false\n") > 0);
        file.close();
        PrivateBus bus(services.path());
        FreedesktopNotifier notifier(bus.connect(u"app"_s), *m_clock, u"en_US"_s, u"UTC"_s);
        QVERIFY(QCoro::waitFor(notifier.authorized()));
    }
};

QTEST_GUILESS_MAIN(FreedesktopNotifierTest)
#include "tst_freedesktop_notifier.moc"
