#include "Countdown.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

namespace {

const Instant now(QDate(2026, 3, 10), QTime(12, 0), Qt::UTC);

} // namespace

class TestCountdown : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shortText_data()
    {
        QTest::addColumn<qint64>("msecsLeft");
        QTest::addColumn<QString>("expected");
        QTest::newRow("at the moment") << 0LL << u"now"_s;
        QTest::newRow("past") << -90'000LL << u"now"_s;
        QTest::newRow("0.9 s truncates to now") << 900LL << u"now"_s;
        QTest::newRow("1 s rounds up") << 1'000LL << u"in 1m"_s;
        QTest::newRow("60 s") << 60'000LL << u"in 1m"_s;
        QTest::newRow("61 s") << 61'000LL << u"in 2m"_s;
        QTest::newRow("3540 s") << 3'540'000LL << u"in 59m"_s;
        QTest::newRow("3541 s") << 3'541'000LL << u"in 1h"_s;
        QTest::newRow("3660 s") << 3'660'000LL << u"in 1h 1m"_s;
        QTest::newRow("23h 59m") << (24 * 3600 - 61) * 1000LL << u"in 23h 59m"_s;
        QTest::newRow("23h 59m 1s") << (24 * 3600 - 59) * 1000LL << u"in 1d"_s;
        QTest::newRow("47h 59m") << (48 * 3600 - 60) * 1000LL << u"in 1d"_s;
        QTest::newRow("48h") << 48 * 3600 * 1000LL << u"in 2d"_s;
    }
    void shortText()
    {
        QFETCH(qint64, msecsLeft);
        QFETCH(QString, expected);
        QCOMPARE(Countdown::shortText(now.addMSecs(msecsLeft), now), expected);
    }

    void menuTitle_data()
    {
        QTest::addColumn<bool>("hasBooking");
        QTest::addColumn<QString>("name");
        QTest::addColumn<qint64>("startIn");
        QTest::addColumn<qint64>("endIn");
        QTest::addColumn<QString>("expected"); // empty: no title
        QTest::newRow("no booking") << false << u"Ann Lee"_s << 60LL << 120LL << QString();
        QTest::newRow("exactly at horizon") << true << u"Ann Lee"_s << 28800LL << 30000LL << u"Ann in 8h"_s;
        QTest::newRow("past horizon") << true << u"Ann Lee"_s << 28801LL << 30000LL << QString();
        QTest::newRow("running") << true << u"Ann Lee"_s << -600LL << 600LL << u"Now: Ann"_s;
        QTest::newRow("starts now") << true << u"Ann Lee"_s << 0LL << 600LL << u"Now: Ann"_s;
        QTest::newRow("ended a second ago") << true << u"Ann Lee"_s << -1800LL << -1LL << QString();
        QTest::newRow("ends now") << true << u"Ann Lee"_s << -1800LL << 0LL << QString();
        QTest::newRow("leading blanks") << true << u"  Bo  Ek"_s << 300LL << 900LL << u"Bo in 5m"_s;
        QTest::newRow("only blanks") << true << u"   "_s << 300LL << 900LL << u"    in 5m"_s;
        QTest::newRow("empty name") << true << QString() << 300LL << 900LL << u" in 5m"_s;
    }
    void menuTitle()
    {
        QFETCH(bool, hasBooking);
        QFETCH(QString, name);
        QFETCH(qint64, startIn);
        QFETCH(qint64, endIn);
        QFETCH(QString, expected);
        std::optional<Booking> next;
        if (hasBooking) {
            next = Booking{};
            next->name = name;
            next->start = now.addSecs(startIn);
            next->end = now.addSecs(endIn);
        }
        const std::optional<QString> title = Countdown::menuTitle(next, now, 28800);
        QCOMPARE(title.value_or(QString()), expected);
        QCOMPARE(title.has_value(), !expected.isNull());
    }
};

QTEST_APPLESS_MAIN(TestCountdown)
#include "tst_countdown.moc"
