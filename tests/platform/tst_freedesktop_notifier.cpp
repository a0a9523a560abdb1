#include "FixedClock.h"
#include "linux/FreedesktopNotifier.h"
#include "support/FakeNotificationServer.h"
#include "support/PrivateBus.h"

#include <QCoroTask>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace quorvane;
using namespace quorvane::test;
using namespace std::chrono_literals;

namespace {

// Tuesday 4 March 2025, 14:00 in New York.
const Instant start = QDateTime(QDate(2025, 3, 4), QTime(19, 0), Qt::UTC);
const QString meetLink = QStringLiteral("https://meet.google.com/abc-defg-hij");
const QHash<QString, QString> titles{{QStringLiteral("intro"), QStringLiteral("Intro Call")}};

Booking booking(const QString &id, const Instant &at, const QString &name = QStringLiteral("Ann Lee"))
{
    Booking b;
    b.id = id;
    b.type = QStringLiteral("intro");
    b.start = at;
    b.end = at.addSecs(1800);
    b.name = name;
    b.status = BookingStatus::confirmed;
    return b;
}

ChangeEvent change(ChangeEvent::Kind kind, const Booking &b)
{
    return ChangeEvent{kind, b};
}

} // namespace

class FreedesktopNotifierTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void announcesWithTheServersTypes();
    void sameIdentifierReplacesWhatIsShown();
    void bodyIsEscapedOnlyForMarkupServers_data();
    void bodyIsEscapedOnlyForMarkupServers();
    void remindersArriveWhenDue();
    void reschedulingAndRemovingAll();
    void answersReachTheApp_data();
    void answersReachTheApp();
    void authorizedFollowsTheServer();
    void authorizedWhenTheServerStartsOnDemand();

private:
    // Brings a reminder for `b` to the screen and answers the id the server gave it.
    uint deliverReminder(Booking b);
    void startServer(const QStringList &capabilities = {QStringLiteral("actions"), QStringLiteral("body")});

    std::unique_ptr<PrivateBus> m_bus;
    std::unique_ptr<FixedClock> m_clock;
    std::unique_ptr<FakeNotificationServer> m_server;
    std::unique_ptr<FreedesktopNotifier> m_notifier;
};

void FreedesktopNotifierTest::init()
{
    m_bus = std::make_unique<PrivateBus>();
    QVERIFY2(m_bus->isRunning(), qPrintable(m_bus->error()));
    m_clock = std::make_unique<FixedClock>(start);
    m_notifier = std::make_unique<FreedesktopNotifier>(m_bus->connect(QStringLiteral("app")), *m_clock,
                                                       QStringLiteral("en_US"), QStringLiteral("America/New_York"));
}

void FreedesktopNotifierTest::cleanup()
{
    m_notifier.reset();
    m_server.reset();
    m_bus.reset();
}

void FreedesktopNotifierTest::startServer(const QStringList &capabilities)
{
    m_server = std::make_unique<FakeNotificationServer>(m_bus->connect(QStringLiteral("server")), capabilities);
    QVERIFY(m_server->start());
}

uint FreedesktopNotifierTest::deliverReminder(Booking b)
{
    // Due a tenth of a second from now, then the clock jumps past it.
    b.start = m_clock->now().addMSecs(60'100);
    b.end = b.start.addSecs(1800);
    const qsizetype before = m_server->calls().size();
    m_notifier->scheduleReminders({b}, 1, titles);
    m_clock->advance(1s);
    [&] { QTRY_COMPARE(m_server->calls().size(), before + 1); }();
    const uint id = m_server->calls().size() > before ? m_server->calls().constLast().id : 0;
    QTest::qWait(100); // for the server's answer to reach the notifier
    return id;
}

void FreedesktopNotifierTest::announcesWithTheServersTypes()
{
    startServer();
    Booking b = booking(QStringLiteral("b1"), start.addSecs(3600));
    b.meet = meetLink;
    m_notifier->announce(change(ChangeEvent::Kind::booked, b), QStringLiteral("Intro Call"));
    QTRY_COMPARE(m_server->calls().size(), 1);

    const auto &call = m_server->calls().constFirst();
    QCOMPARE(call.signature, QStringLiteral("susssasa{sv}i"));
    QCOMPARE(call.appName, QStringLiteral("Quorvane"));
    QCOMPARE(call.replacesID, 0u);
    QCOMPARE(call.summary, QStringLiteral("New booking: Ann Lee"));
    QCOMPARE(call.body, QStringLiteral("Intro Call \u00B7 Tue, Mar 4, 3:00\u202FPM"));
    // An announcement offers to open the app, never to join, even when there is a link.
    QCOMPARE(call.actions, (QStringList{QStringLiteral("default"), QStringLiteral("View"), QStringLiteral("OPEN"),
                                        QStringLiteral("View")}));
    QCOMPARE(call.hints.value(QStringLiteral("desktop-entry")), QVariant(QStringLiteral("com.peldrachen.quorvane")));
    const QVariant urgency = call.hints.value(QStringLiteral("urgency"));
    QCOMPARE(urgency.metaType(), QMetaType::fromType<uchar>());
    QCOMPARE(urgency.value<uchar>(), uchar(1));
    QCOMPARE(call.expireTimeout, -1);
}

void FreedesktopNotifierTest::sameIdentifierReplacesWhatIsShown()
{
    startServer();
    const Booking b = booking(QStringLiteral("b1"), start.addSecs(3600));
    // Back to back: the second must still learn what the first became.
    m_notifier->announce(change(ChangeEvent::Kind::booked, b), QStringLiteral("Intro Call"));
    m_notifier->announce(change(ChangeEvent::Kind::booked, booking(QStringLiteral("b1"), b.start, QStringLiteral("Ann"))),
                         QStringLiteral("Intro Call"));
    QTRY_COMPARE(m_server->calls().size(), 2);
    const uint first = m_server->calls()[0].id;
    QCOMPARE(m_server->calls()[1].replacesID, first);
    QCOMPARE(m_server->calls()[1].id, first);
    QCOMPARE(m_server->calls()[1].summary, QStringLiteral("New booking: Ann"));

    // Cancelling is news of its own, beside the booking's announcement.
    m_notifier->announce(change(ChangeEvent::Kind::cancelled, b), QStringLiteral("Intro Call"));
    QTRY_COMPARE(m_server->calls().size(), 3);
    QCOMPARE(m_server->calls()[2].replacesID, 0u);
    QVERIFY(m_server->calls()[2].id != first);

    // Once the user has closed it, there is nothing left to replace.
    m_server->closeByUser(first);
    QTest::qWait(300);
    m_notifier->announce(change(ChangeEvent::Kind::booked, b), QStringLiteral("Intro Call"));
    QTRY_COMPARE(m_server->calls().size(), 4);
    QCOMPARE(m_server->calls()[3].replacesID, 0u);
}

void FreedesktopNotifierTest::bodyIsEscapedOnlyForMarkupServers_data()
{
    QTest::addColumn<QStringList>("capabilities");
    QTest::addColumn<QString>("body");

    QTest::newRow("plain server") << QStringList{QStringLiteral("actions"), QStringLiteral("body")}
                                  << QStringLiteral("R&D <b>sync</b> \u00B7 Tue, Mar 4, 3:00\u202FPM");
    QTest::newRow("markup server") << QStringList{QStringLiteral("actions"), QStringLiteral("body"),
                                                  QStringLiteral("body-markup")}
                                   << QStringLiteral("R&amp;D &lt;b&gt;sync&lt;/b&gt; \u00B7 Tue, Mar 4, 3:00\u202FPM");
}

void FreedesktopNotifierTest::bodyIsEscapedOnlyForMarkupServers()
{
    QFETCH(QStringList, capabilities);
    QFETCH(QString, body);

    startServer(capabilities);
    const Booking b = booking(QStringLiteral("b1"), start.addSecs(3600), QStringLiteral("<i>Ann</i>"));
    m_notifier->announce(change(ChangeEvent::Kind::booked, b), QStringLiteral("R&D <b>sync</b>"));
    QTRY_COMPARE(m_server->calls().size(), 1);
    QCOMPARE(m_server->calls()[0].body, body);
    QCOMPARE(m_server->calls()[0].summary, QStringLiteral("New booking: <i>Ann</i>")); // never markup
}

void FreedesktopNotifierTest::remindersArriveWhenDue()
{
    startServer();
    Booking first = booking(QStringLiteral("first"), start.addSecs(5 * 60 + 1));
    first.meet = meetLink;
    const Booking second = booking(QStringLiteral("second"), start.addSecs(5 * 60 + 2));
    const Booking tomorrow = booking(QStringLiteral("tomorrow"), start.addDays(1));
    m_notifier->scheduleReminders({tomorrow, second, first}, 5, titles);

    QCOMPARE(m_notifier->pending().size(), 3);
    QTest::qWait(300);
    QVERIFY(m_server->calls().isEmpty());

    m_clock->advance(5s);
    QTRY_COMPARE(m_server->calls().size(), 2);
    const auto &call = m_server->calls()[0];
    QCOMPARE(call.summary, QStringLiteral("Intro Call with Ann Lee in 5 min"));
    QCOMPARE(call.body, QStringLiteral("2:05\u202FPM \u00B7 Google Meet"));
    QCOMPARE(call.actions, (QStringList{QStringLiteral("default"), QStringLiteral("View"), QStringLiteral("JOIN"),
                                        QStringLiteral("Join Meet"), QStringLiteral("OPEN"), QStringLiteral("View")}));
    QCOMPARE(call.signature, QStringLiteral("susssasa{sv}i"));
    QCOMPARE(m_server->calls()[1].body, QStringLiteral("2:05\u202FPM"));
    QCOMPARE(m_notifier->pending().size(), 1);
    QCOMPARE(m_notifier->pending()[0].identifier, QStringLiteral("soon-tomorrow"));
}

void FreedesktopNotifierTest::reschedulingAndRemovingAll()
{
    startServer();
    const Booking a = booking(QStringLiteral("a"), start.addSecs(3600));
    const Booking b = booking(QStringLiteral("b"), start.addSecs(7200));
    m_notifier->scheduleReminders({a, b}, 5, titles);
    QCOMPARE(m_notifier->pending().size(), 2);

    // "a" was cancelled on the server: the next refresh leaves it out, and its reminder goes.
    m_notifier->scheduleReminders({b}, 5, titles);
    QCOMPARE(m_notifier->pending().size(), 1);
    QCOMPARE(m_notifier->pending()[0].identifier, QStringLiteral("soon-b"));

    m_notifier->scheduleReminders({}, 5, titles);
    QVERIFY(m_notifier->pending().isEmpty());

    m_notifier->scheduleReminders({a, b}, 5, titles);
    m_notifier->removeAll();
    QVERIFY(m_notifier->pending().isEmpty());
    m_clock->advance(3h);
    QTest::qWait(300);
    QVERIFY(m_server->calls().isEmpty());
}

void FreedesktopNotifierTest::answersReachTheApp_data()
{
    QTest::addColumn<QString>("meet");
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("token");
    QTest::addColumn<bool>("ours");
    QTest::addColumn<QString>("joins");
    QTest::addColumn<bool>("activates");

    QTest::newRow("join with a link") << meetLink << QStringLiteral("JOIN") << QString() << true << meetLink << false;
    QTest::newRow("join without a link") << QString() << QStringLiteral("JOIN") << QStringLiteral("tok-1") << true
                                         << QString() << true;
    QTest::newRow("view") << meetLink << QStringLiteral("OPEN") << QStringLiteral("tok-2") << true << QString()
                          << true;
    QTest::newRow("click") << meetLink << QStringLiteral("default") << QString() << true << QString() << true;
    QTest::newRow("another app's notification")
        << meetLink << QStringLiteral("JOIN") << QStringLiteral("tok-3") << false << QString() << false;
}

void FreedesktopNotifierTest::answersReachTheApp()
{
    QFETCH(QString, meet);
    QFETCH(QString, action);
    QFETCH(QString, token);
    QFETCH(bool, ours);
    QFETCH(QString, joins);
    QFETCH(bool, activates);

    startServer();
    Booking b = booking(QStringLiteral("b1"), start.addSecs(3600));
    if (!meet.isEmpty())
        b.meet = meet;
    const uint id = deliverReminder(b);
    QVERIFY(id != 0);
    QSignalSpy joined(m_notifier.get(), &Notifier::joinRequested);
    QSignalSpy activated(m_notifier.get(), &Notifier::activateRequested);

    m_server->invokeAction(ours ? id : id + 1000, action, token);
    if (ours)
        QTRY_COMPARE(joined.size() + activated.size(), 1);
    QTest::qWait(200); // room for anything that shouldn't come

    QCOMPARE(joined.size(), joins.isEmpty() ? 0 : 1);
    if (!joins.isEmpty())
        QCOMPARE(joined.at(0).at(0).toUrl(), QUrl(joins));
    QCOMPARE(activated.size(), activates ? 1 : 0);
    if (activates)
        QCOMPARE(activated.at(0).at(0).toString(), token);
}

void FreedesktopNotifierTest::authorizedFollowsTheServer()
{
    QVERIFY(!QCoro::waitFor(m_notifier->authorized()));
    startServer();
    QVERIFY(QCoro::waitFor(m_notifier->authorized()));
    QVERIFY(QCoro::waitFor(m_notifier->requestAuthorization()));
    m_server->stop();
    QVERIFY(!QCoro::waitFor(m_notifier->requestAuthorization()));
}

void FreedesktopNotifierTest::authorizedWhenTheServerStartsOnDemand()
{
    QTemporaryDir services;
    QFile file(services.filePath(QStringLiteral("org.freedesktop.Notifications.service")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[D-BUS Service]\nName=org.freedesktop.Notifications\nExec=/bin/false\n");
    file.close();

    PrivateBus bus(services.path());
    QVERIFY2(bus.isRunning(), qPrintable(bus.error()));
    FreedesktopNotifier notifier(bus.connect(QStringLiteral("app")), *m_clock, QStringLiteral("en_US"),
                                 QStringLiteral("UTC"));
    QVERIFY(QCoro::waitFor(notifier.authorized()));
}

QTEST_GUILESS_MAIN(FreedesktopNotifierTest)
#include "tst_freedesktop_notifier.moc"
