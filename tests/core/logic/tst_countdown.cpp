#include "Countdown.h"

#include <QTest>

using namespace quorvane;
using namespace Qt::StringLiterals;

static const Instant now(QDate(2026, 3, 10), QTime(12, 0), Qt::UTC);

class TestCountdown : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shortText_data()
    {
        QTest::addColumn<qint64>("msecsLeft");
        QTest::addColumn<QString>("expected");
        constexpr qint64 day = 24 * 3600'000LL;
        const std::pair<qint64, const char *> rows[] = {
            {0, "now"},          {-90'000, "now"},       {900, "now"},             {1'000, "in 1m"},
            {60'000, "in 1m"},   {61'000, "in 2m"},      {3'540'000, "in 59m"},    {3'541'000, "in 1h"},
            {3'660'000, "in 1h 1m"}, {day - 61'000, "in 23h 59m"}, {day - 59'000, "in 1d"}, {2 * day - 60'000, "in 1d"},
            {2 * day, "in 2d"}};
        for (const auto &[msecs, text] : rows)
            QTest::addRow("%lld ms", msecs) << msecs << QString::fromLatin1(text);
    }
    void shortText()
    {
        QFETCH(qint64, msecsLeft);
        QFETCH(QString, expected);
        QCOMPARE(Countdown::shortText(now.addMSecs(msecsLeft), now), expected);
    }

    void menuTitle_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("startIn");
        QTest::addColumn<int>("endIn");
        QTest::addColumn<QString>("expected"); // null: no title
        QTest::newRow("exactly at horizon") << u"Ann Lee"_s << 28800 << 30000 << u"Ann in 8h"_s;
        QTest::newRow("past horizon") << u"Ann Lee"_s << 28801 << 30000 << QString();
        QTest::newRow("running") << u"Ann Lee"_s << -600 << 600 << u"Now: Ann"_s;
        QTest::newRow("starts now") << u"Ann Lee"_s << 0 << 600 << u"Now: Ann"_s;
        QTest::newRow("ended a second ago") << u"Ann Lee"_s << -1800 << -1 << QString();
        QTest::newRow("ends now") << u"Ann Lee"_s << -1800 << 0 << QString();
        QTest::newRow("leading blanks") << u"  Bo  Ek"_s << 300 << 900 << u"Bo in 5m"_s;
        QTest::newRow("only blanks") << u"   "_s << 300 << 900 << u"    in 5m"_s;
    }
    void menuTitle()
    {
        QFETCH(QString, name);
        QFETCH(int, startIn);
        QFETCH(int, endIn);
        QFETCH(QString, expected);
        Booking next;
        next.name = name;
        next.start = now.addSecs(startIn);
        next.end = now.addSecs(endIn);
        const std::optional<QString> title = Countdown::menuTitle(next, now, 28800);
        QCOMPARE(title.has_value(), !expected.isNull());
        QCOMPARE(title.value_or(QString()), expected);
    }
    void menuTitleWithoutBooking() { QVERIFY(!Countdown::menuTitle(std::nullopt, now, 28800)); }
};

QTEST_APPLESS_MAIN(TestCountdown)
#include "tst_countdown.moc"
