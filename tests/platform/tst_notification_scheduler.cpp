#include "FixedClock.h"
#include "NotificationScheduler.h"

#include <QSignalSpy>
#include <QTest>

using namespace quorvane;
using namespace std::chrono_literals;

namespace {

const Instant start = QDateTime(QDate(2025, 3, 4), QTime(19, 0), Qt::UTC);

NotificationRequest request(const QString &identifier, std::optional<qint64> inMs, const QString &title = {})
{
    NotificationRequest r;
    r.identifier = identifier;
    r.title = title.isEmpty() ? identifier : title;
    if (inMs)
        r.fireAt = start.addMSecs(*inMs);
    return r;
}

QStringList identifiers(const QList<NotificationRequest> &requests)
{
    QStringList list;
    for (const auto &r : requests)
        list << r.identifier;
    return list;
}

QStringList delivered(const QSignalSpy &spy)
{
    QStringList list;
    for (const auto &arguments : spy)
        list << arguments.at(0).value<NotificationRequest>().identifier;
    return list;
}

} // namespace


class NotificationSchedulerTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void pendingAreListedEarliestFirst();
    void sameIdentifierReplaces();
    void removeByPrefixKeepsOthers();
    void deliversOnlyWhatTheClockHasReached();
    void requestWithoutTimeIsDueAtOnce();
    void removedRequestsNeverArrive();
};

void NotificationSchedulerTest::pendingAreListedEarliestFirst()
{
    FixedClock clock(start);
    NotificationScheduler scheduler(clock);
    scheduler.add(request(QStringLiteral("soon-c"), 30'000));
    scheduler.add(request(QStringLiteral("soon-a"), 10'000));
    scheduler.add(request(QStringLiteral("soon-b"), 20'000));
    QCOMPARE(identifiers(scheduler.pending()),
             (QStringList{QStringLiteral("soon-a"), QStringLiteral("soon-b"), QStringLiteral("soon-c")}));
}

void NotificationSchedulerTest::sameIdentifierReplaces()
{
    FixedClock clock(start);
    NotificationScheduler scheduler(clock);
    scheduler.add(request(QStringLiteral("soon-a"), 10'000, QStringLiteral("first")));
    scheduler.add(request(QStringLiteral("soon-b"), 20'000));
    scheduler.add(request(QStringLiteral("soon-a"), 30'000, QStringLiteral("second")));

    const auto pending = scheduler.pending();
    QCOMPARE(identifiers(pending), (QStringList{QStringLiteral("soon-b"), QStringLiteral("soon-a")}));
    QCOMPARE(pending[1].title, QStringLiteral("second"));
    QCOMPARE(pending[1].fireAt, start.addMSecs(30'000));
}

void NotificationSchedulerTest::removeByPrefixKeepsOthers()
{
    FixedClock clock(start);
    NotificationScheduler scheduler(clock);
    scheduler.add(request(QStringLiteral("soon-a"), 10'000));
    scheduler.add(request(QStringLiteral("chg-x-b"), 15'000));
    scheduler.add(request(QStringLiteral("soon-b"), 20'000));
    scheduler.add(request(QStringLiteral("xsoon-c"), 25'000));

    scheduler.removeWithPrefix(QStringLiteral("soon-"));
    QCOMPARE(identifiers(scheduler.pending()), (QStringList{QStringLiteral("chg-x-b"), QStringLiteral("xsoon-c")}));

    scheduler.removeAll();
    QVERIFY(scheduler.pending().isEmpty());
}

void NotificationSchedulerTest::deliversOnlyWhatTheClockHasReached()
{
    FixedClock clock(start);
    NotificationScheduler scheduler(clock);
    QSignalSpy due(&scheduler, &NotificationScheduler::due);
    scheduler.add(request(QStringLiteral("soon-late"), 3'600'000));
    scheduler.add(request(QStringLiteral("soon-second"), 200));
    scheduler.add(request(QStringLiteral("soon-first"), 100));

    // The timers run out, but the clock says it isn't time yet: a timer woken early must not deliver.
    QTest::qWait(400);
    QCOMPARE(due.size(), 0);

    clock.advance(1s);
    QTRY_COMPARE(due.size(), 2);
    QCOMPARE(delivered(due), (QStringList{QStringLiteral("soon-first"), QStringLiteral("soon-second")}));
    QCOMPARE(identifiers(scheduler.pending()), QStringList{QStringLiteral("soon-late")});
}

void NotificationSchedulerTest::requestWithoutTimeIsDueAtOnce()
{
    FixedClock clock(start);
    NotificationScheduler scheduler(clock);
    QSignalSpy due(&scheduler, &NotificationScheduler::due);
    scheduler.add(request(QStringLiteral("chg-a-b"), std::nullopt));
    QTRY_COMPARE(due.size(), 1);
    QCOMPARE(due.at(0).at(0).value<NotificationRequest>().fireAt, start);
    QVERIFY(scheduler.pending().isEmpty());
}

void NotificationSchedulerTest::removedRequestsNeverArrive()
{
    FixedClock clock(start);
    NotificationScheduler scheduler(clock);
    QSignalSpy due(&scheduler, &NotificationScheduler::due);
    scheduler.add(request(QStringLiteral("soon-a"), 100));
    scheduler.add(request(QStringLiteral("chg-b-b"), 100));
    scheduler.removeWithPrefix(QStringLiteral("soon-"));
    clock.advance(1s);
    QTRY_COMPARE(due.size(), 1);
    scheduler.add(request(QStringLiteral("soon-c"), 1'100));
    scheduler.removeAll();
    clock.advance(1s);
    QTest::qWait(300);
    QCOMPARE(delivered(due), QStringList{QStringLiteral("chg-b-b")});
}

QTEST_GUILESS_MAIN(NotificationSchedulerTest)
#include "tst_notification_scheduler.moc"
